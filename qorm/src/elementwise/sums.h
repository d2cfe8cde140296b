// Sums and differences of matrices: dst(i,j) = A(i,j) ± B(i,j), each operand a matrix or an array,
// as stored or transposed.
//
// One operation per element: all paths give the same bits. Every element is read before it is
// written, in ascending order of objects, rows and columns; only disjoint operands are taken in
// another order.
#pragma once

#include "frame/entry.h"
#include "frame/overlap.h"
#include "frame/static_size.h"

#include <functional>

// name, Add or Sub, the operands' kinds, the destination's kind, type, layout
#define QORM_SUM(name, sign, first, second, result, type, layout) \
    QORM_FUNCTION_##result##_##layout( \
        name, qorm::sums::form(qorm::Kind::first, qorm::Kind::second, qorm::Layout::layout), \
        (qorm::sums::run<qorm::sums::sign, qorm::Kind::first, qorm::Kind::second>), \
        QORM_SUM_ARGUMENTS, QORM_TYPE_##type, first, second, result)

#define QORM_SUM_ARGUMENTS(PART, access, T, first, second, result) \
    PART##_##first##_##access(const T, Src1, src1), \
        PART##_##second##_##access(const T, Src2, src2), PART##_##result##_##access(T, Dst, dst), \
        PART##_width_height_##result

namespace qorm::sums {

using Add = std::plus<>;
using Sub = std::minus<>;

using Measure = std::uint32_t(std::uint32_t width, std::uint32_t height, std::uint32_t count);

// What a call reads and writes, in elements.
inline std::uint32_t measureWithSingle(std::uint32_t w, std::uint32_t h, std::uint32_t c) {
    return w * h * (2 * c + 1);
}
inline std::uint32_t measureOfArrays(std::uint32_t w, std::uint32_t h, std::uint32_t c) {
    return 3 * w * h * c;
}

// An array with a single matrix, both as stored, tests its strides before the size in the standard
// layout; all other forms test the size first.
constexpr Form<Measure> form(Kind first, Kind second, Layout layout) {
    const bool asStored = !isTransposed(first) && !isTransposed(second);
    const bool withSingle = isArray(first) != isArray(second);
    const bool stridesFirst = asStored && withSingle && layout == Layout::S;
    return {
        .checks = stridesFirst ? CheckOrder{Check::null, Check::count, Check::stride, Check::size}
                               : CheckOrder{Check::null, Check::count, Check::size, Check::stride,
                                            Check::shift},
        .measure = withSingle ? measureWithSingle : measureOfArrays,
        .contiguousThreshold = layout == Layout::S   ? 36864
                               : layout == Layout::P ? 9216
                                                     : 18432,
        .generalThreshold = layout == Layout::P ? 9216 : 18432,
    };
}

// Object n as the shape reads it. The size is the destination's: a transposed operand is stored with
// `height` columns.
template <Kind kind, class Operand>
auto objectOf(const Operand& operand, std::ptrdiff_t n, std::ptrdiff_t width,
              std::ptrdiff_t height) {
    return asRead<kind>(operand.object(n, isTransposed(kind) ? height : width));
}

template <class Sign, Kind first, Kind second, class A, class B, class D, class Width, class Height>
[[gnu::always_inline]] inline void combineObjects(const A& src1, const B& src2, const D& dst,
                                                  Width width, Height height,
                                                  std::ptrdiff_t count) {
    for (std::ptrdiff_t n = 0; n < count; ++n) {
        const auto a = objectOf<first>(src1, n, width, height);
        const auto b = objectOf<second>(src2, n, width, height);
        const auto d = dst.object(n, width);
        for (std::ptrdiff_t i = 0; i < height; ++i) {
            for (std::ptrdiff_t j = 0; j < width; ++j) d(i, j) = Sign()(a(i, j), b(i, j));
        }
    }
}

// The same where the destination is apart from both sources. Told so, the compiler keeps a single
// operand in registers and uses packed arithmetic inside an object. It believes parameters only.
template <class Sign, Kind first, Kind second, class A, class B, class D, class Width, class Height>
[[gnu::noinline]] void
combineApart(A src1, B src2, D dst, const typename D::Element* __restrict base1,
             const typename D::Element* __restrict base2, typename D::Element* __restrict base,
             Width width, Height height, std::ptrdiff_t count) {
    src1.base = base1;
    src2.base = base2;
    dst.base = base;
    combineObjects<Sign, first, second>(src1, src2, dst, width, height, count);
}

// The elements of one position over all objects; a single operand has one for all.
template <bool array, class T>
auto elementsAlong(Element<T> first) {
    if constexpr (array)
        return Run<T>{first.address()};
    else
        return [value = std::remove_const_t<T>(first)](std::ptrdiff_t) { return value; };
}

// Where objects lie side by side: position by position instead of object by object, which makes
// loops over plain arrays. False, with nothing done, where the order would show.
template <class Sign, Kind first, Kind second, class A, class B, class D>
bool combinePositions(const A& src1, const B& src2, const D& dst, std::ptrdiff_t width,
                      std::ptrdiff_t height, std::ptrdiff_t count) {
    const auto a = objectOf<first>(src1, 0, width, height);
    const auto b = objectOf<second>(src2, 0, width, height);
    const auto d = dst.object(0, width);
    const bool independent =
        positionsAreIndependent(a, isArray(first) ? count : 1, d, width, height, count) &&
        positionsAreIndependent(b, isArray(second) ? count : 1, d, width, height, count) &&
        positionsAreIndependent(d, count, d, width, height, count);
    if (!independent) return false;

    for (std::ptrdiff_t i = 0; i < height; ++i) {
        for (std::ptrdiff_t j = 0; j < width; ++j) {
            const auto x = elementsAlong<isArray(first)>(a(i, j));
            const auto y = elementsAlong<isArray(second)>(b(i, j));
            const auto z = elementsAlong<true>(d(i, j));
            for (std::ptrdiff_t n = 0; n < count; ++n) z(n) = Sign()(x(n), y(n));
        }
    }
    return true;
}

// Whether no element of an operand lies where the destination is written. A list is not looked
// through: a test for each object costs more than it brings.
template <Kind kind, class Src, class Dst>
bool isApart(const Src& src, const Dst& dst, std::ptrdiff_t width, std::ptrdiff_t height,
             std::ptrdiff_t count) {
    if constexpr (Dst::layout == Layout::S) {
        const RegularSpans read =
            isTransposed(kind) ? spansOf(src, width, height) : spansOf(src, height, width);
        return areApart(read, spansOf(dst, height, width), count);
    } else {
        return false;
    }
}

template <class Sign, Kind first, Kind second, class A, class B, class D, class Width, class Height>
void combineStrided(const A& src1, const B& src2, const D& dst, Width width, Height height,
                    bool apart, std::ptrdiff_t count) {
    if constexpr (D::layout == Layout::S) {
        if (apart) {
            return combineApart<Sign, first, second>(src1, src2, dst, src1.base, src2.base,
                                                     dst.base, width, height, count);
        }
    }
    combineObjects<Sign, first, second>(src1, src2, dst, width, height, count);
}

template <class Sign, Kind first, Kind second, class A, class B, class D>
qorStatus run(const A& src1, const B& src2, const D& dst, Size widthOf, Size heightOf,
              Count countOf = Count(1)) {
    const std::ptrdiff_t width = widthOf.value;
    const std::ptrdiff_t height = heightOf.value;
    const std::ptrdiff_t count = countOf.value;
    const auto all = [&](auto holds) { return holds(src1) && holds(src2) && holds(dst); };

    if constexpr (D::layout == Layout::P) {
        if (count < width * height ||
            !all([](auto& operand) { return operand.hasObjectsSideBySide(); }) ||
            !combinePositions<Sign, first, second>(src1, src2, dst, width, height, count)) {
            withStaticSquare(width, height, [&](auto columns, auto rows) {
                combineObjects<Sign, first, second>(src1, src2, dst, columns, rows, count);
            });
        }
        return qorStatusOk;
    } else {
        constexpr bool asStored = !isTransposed(first) && !isTransposed(second);
        const bool adjacentRows =
            asStored && all([&](auto& operand) { return operand.hasAdjacentRows(width); });
        if (adjacentRows &&
            all([&](auto& operand) { return operand.hasAdjacentObjects(width * height); })) {
            combineObjects<Sign, first, second>(src1, src2, dst, width * height * count, Fixed<1>(),
                                                1);
            return qorStatusOk;
        }
        const bool apart = isApart<first>(src1, dst, width, height, count) &&
                           isApart<second>(src2, dst, width, height, count);
        withStaticSquare(width, height, [&](auto columns, auto rows) {
            if (adjacentRows)
                combineStrided<Sign, first, second>(src1, src2, dst, area(columns, rows),
                                                    Fixed<1>(), apart, count);
            else
                combineStrided<Sign, first, second>(src1, src2, dst, columns, rows, apart, count);
        });
        return qorStatusOk;
    }
}

} // namespace qorm::sums
