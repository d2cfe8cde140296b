// Squares times vectors, one object after the other: a register holds a column, y = Σₖ x(k)·A(:,k).
#pragma once

#include "frame/held_rows.h"
#include "products/systems.h"

namespace qorm::products {

// Whether columns are loaded and stored whole, or by masks. Of arrays they are transposed, which takes
// too long for five columns in eight whole registers.
template <class S, class N>
inline constexpr bool hasColumns = false;
template <class S, std::ptrdiff_t n>
inline constexpr bool hasColumns<S, Fixed<n>> = [] {
    using T = typename S::T;
    constexpr bool takesLong = S::hasMatrices && n == 5 && lanesFor(n) == laneCount<Pack<T>>;
    return S::hasContiguousRows && rowsFitRegisters<T, n> && !takesLong;
}();

// Whether packed objects go in lanes all the same, which fill whole registers: where columns fill but a
// quarter of one, and where five of an array are transposed as eight.
template <class S, class N>
inline constexpr bool mayGoInLanes = !hasColumns<S, N>;
template <class S, std::ptrdiff_t n>
inline constexpr bool mayGoInLanes<S, Fixed<n>> =
    !hasColumns<S, Fixed<n>> || 4 * lanesFor(n) <= laneCount<Pack<typename S::T>> ||
    (S::hasMatrices && n == 5);

// work(begin, end, apart) on stretches of objects: whether they can be done by columns. Squares of 3 to 6
// have read all vectors of an object before they write, so only the matrix matters.
template <class S, class N, class Work>
void forEachStretch(const S& s, std::ptrdiff_t count, N n, const Work& work) {
    const Spans writes = spansOf(s.dst, 1, n);
    const auto inStretchesOf = [&](const auto&... reads) {
        if ((areApart(reads, writes, count) && ...)) return work(0, count, true);
        inStretches(writes, count, work, reads...);
    };
    if constexpr (hasOwnPath<N>)
        inStretchesOf(spansOf(s.matrix, n, n));
    else
        withReads(s, inStretchesOf);
}

// Objects begin .. end - 1. All that is read of an object is read before its result is written.
template <Sums sums, class S, std::ptrdiff_t n>
QORM_KERNEL void multiplyByColumns(const S s, std::ptrdiff_t begin, std::ptrdiff_t end,
                                   Fixed<n> size) {
    using T = typename S::T;
    using Column = Vector<T, lanesFor(n)>;
    const auto columnsOf = [&](std::ptrdiff_t object) __attribute__((always_inline)) {
        return HeldRows<T, n>(transposed(s.matrixOf(object)));
    };
    const auto multiply = [&](std::ptrdiff_t object, const HeldRows<T, n>& columns)
        __attribute__((always_inline)) {
        const auto x = vectorOf(s.x, object, n);
        Column y = sumInLanes<sums, Column>(
            [&](std::ptrdiff_t k)
                __attribute__((always_inline)) { return T(x(k)) * columns.rows[k]; },
            size);
        if constexpr (isAdded<decltype(s.addend)>) {
            const T* const addend = vectorOf(s.addend, object, n)(0).address();
            y = y + loadVector<T, lanesFor(n), n>(addend);
        }
        storeVector<T, lanesFor(n), n>(y, vectorOf(s.dst, object, n)(0).address());
    };
    if constexpr (S::hasMatrices) {
        for (std::ptrdiff_t object = begin; object < end; ++object)
            multiply(object, columnsOf(object));
    } else {
        const auto columns = columnsOf(0);
        for (std::ptrdiff_t object = begin; object < end; ++object) multiply(object, columns);
    }
}

} // namespace qorm::products
