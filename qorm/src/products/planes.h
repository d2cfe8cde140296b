// Products of objects that lie side by side: registers run along the objects of one position.
#pragma once

#include "frame/runs.h"
#include "products/product_in_order.h"

#include <algorithm>
#include <array>

namespace qorm::products {

// The elements of one position from object `first` on; a single operand has one for all.
template <bool array, class T>
auto planeAt(Element<T> element, std::ptrdiff_t first) {
    using Value = std::remove_const_t<T>;
    if constexpr (array)
        return element.address() + first;
    else
        return Pack<Value>(Value(element));
}

template <Scalar T>
Pack<T> runOf(const T* plane, std::ptrdiff_t offset, int live) {
    return live == laneCount<Pack<T>> ? loadRun(plane + offset) : loadRun(plane + offset, live);
}
template <Scalar T>
Pack<T> runOf(const Pack<T>& same, std::ptrdiff_t /*offset*/, int /*live*/) {
    return same;
}

// Element (i, j) of as many objects as there are lanes in some registers, from object `first` on.
template <bool arrayOfA, bool arrayOfB, int registers, class T, class A, class B>
std::array<Pack<T>, registers> sumsAt(const A& a, const B& b, std::ptrdiff_t i, std::ptrdiff_t j,
                                      std::ptrdiff_t inner, std::ptrdiff_t first, int live) {
    using V = Pack<T>;
    std::array<V, registers> sums;
    sums.fill(V(0));
    for (std::ptrdiff_t k = 0; k < inner; ++k) {
        const auto x = planeAt<arrayOfA>(a(i, k), first);
        const auto y = planeAt<arrayOfB>(b(k, j), first);
        for (int r = 0; r < registers; ++r) {
            const std::ptrdiff_t offset = r * laneCount<V>;
            V& sum = sums[static_cast<std::size_t>(r)];
            sum = sum + runOf(x, offset, live) * runOf(y, offset, live);
        }
    }
    return sums;
}

// Writes `live` objects, or all lanes of some registers, at each position.
template <class T, int registers, class D>
auto writeToPlanes(const D& d, std::ptrdiff_t first, int live) {
    return [=](std::ptrdiff_t i, std::ptrdiff_t j, const std::array<Pack<T>, registers>& values) {
        T* const to = d(i, j).address() + first;
        for (int r = 0; r < registers; ++r) {
            const Pack<T>& value = values[static_cast<std::size_t>(r)];
            if (live == laneCount<Pack<T>>)
                storeRun(to + r * laneCount<Pack<T>>, value);
            else
                storeRun(to, value, live);
        }
    };
}

// As many objects as a register has lanes, of an operand that is held.
template <int n, class Reader>
auto heldPlanes(const Reader& src, std::ptrdiff_t first, int live) {
    const auto matrix = src.object(0);
    using V = Pack<typename std::remove_cvref_t<decltype(matrix(0, 0))>::Value>;
    const auto runAt = [&](std::ptrdiff_t i, std::ptrdiff_t j) {
        return runOf(planeAt<Reader::isArray>(matrix(i, j), first), 0, live);
    };
    return Held<V, n>(runAt, Fixed<n>());
}

template <int n, class A, class B, class D>
[[gnu::noinline]] void multiplyHeldPlanes(const A src1, const B src2, const D dst,
                                          std::ptrdiff_t count) {
    using T = typename D::Element;
    constexpr std::ptrdiff_t lanes = laneCount<Pack<T>>;
    const auto d = dst.object(0, n);
    for (std::ptrdiff_t first = 0; first < count; first += lanes) {
        const int live = static_cast<int>(std::min(lanes, count - first));
        const auto write = writeToPlanes<T, 1>(d, first, live);
        multiplySquare<Pack<T>>(
            heldPlanes<n>(src1, first, live), heldPlanes<n>(src2, first, live),
            [&](std::ptrdiff_t i, std::ptrdiff_t j, const Pack<T>& sum) { write(i, j, {sum}); },
            Fixed<n>());
    }
}

template <int registers, class A, class B, class D>
void multiplyTile(const A& src1, const B& src2, const D& dst, const Shape& shape,
                  std::ptrdiff_t first, int live) {
    using T = typename D::Element;
    const auto a = src1.object(0);
    const auto b = src2.object(0);
    const auto write = writeToPlanes<T, registers>(dst.object(0, shape.columns), first, live);
    for (std::ptrdiff_t i = 0; i < shape.rows; ++i) {
        for (std::ptrdiff_t j = 0; j < shape.columns; ++j) {
            write(
                i, j,
                sumsAt<A::isArray, B::isArray, registers, T>(a, b, i, j, shape.inner, first, live));
        }
    }
}

template <class A, class B, class D>
[[gnu::noinline]] void multiplyTiles(const A src1, const B src2, const D dst, const Shape shape,
                                     std::ptrdiff_t count) {
    constexpr int registers = 4;
    constexpr int lanes = laneCount<Pack<typename D::Element>>;
    std::ptrdiff_t n = 0;
    for (; n + registers * lanes <= count; n += registers * lanes) {
        multiplyTile<registers>(src1, src2, dst, shape, n, lanes);
    }
    for (; n < count; n += lanes) {
        const int live = static_cast<int>(std::min(std::ptrdiff_t{lanes}, count - n));
        multiplyTile<1>(src1, src2, dst, shape, n, live);
    }
}

// The largest operands that are held: as far as straight-line code for them is worth its length.
inline constexpr int mostHeldPlanes = registerBytes == 64 ? 8 : 6;

template <class A, class B, class D, class N>
void multiplyPlanes(const A& src1, const B& src2, const D& dst, const Shape& shape, N n,
                    std::ptrdiff_t count) {
    if constexpr (largestSize<N> <= mostHeldPlanes)
        multiplyHeldPlanes<n>(src1, src2, dst, count);
    else
        multiplyTiles(src1, src2, dst, shape, count);
}

} // namespace qorm::products
