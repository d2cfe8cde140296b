// Squares times vectors, y = Σₖ x(k)·A(:,k): a register holds a column, or those of several objects.
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

// Whether a register holds several vectors that lie one behind the other, all for the same matrix.
// Fewer than four of them don't pay for their permutations.
template <class S, class N>
inline constexpr bool hasRunsOfVectors = false;
template <class S, std::ptrdiff_t n>
inline constexpr bool hasRunsOfVectors<S, Fixed<n>> =
    decltype(S::dst)::layout == Layout::S&& S::hasContiguousRows && !S::hasMatrices &&
    decltype(S::x)::holdsArray && decltype(S::x)::hasContiguousRows &&
    4 * lanesFor(n) <= laneCount<Pack<typename S::T>>;

// Whether the objects lie so, and no vector is written before another one is read that lies there.
template <class S, class N>
bool areRunsOfVectors(const S& s, std::ptrdiff_t count, N n) {
    const auto isApart = [&](const Spans& reads) {
        return areApart(reads, spansOf(s.dst, 1, n), count);
    };
    const auto isRun = [&](const auto& vectors) {
        const bool isInPlace = hasOwnPath<N> && vectors.base == s.dst.base;
        return vectors.hasAdjacentObjects(n) && (isInPlace || isApart(spansOf(vectors, 1, n)));
    };
    if constexpr (isAdded<decltype(s.addend)>) {
        if (!isRun(s.addend)) return false;
    }
    return s.dst.hasAdjacentObjects(n) && isRun(s.x) && isApart(spansOf(s.matrix, n, n));
}

template <Sums sums, class S, std::ptrdiff_t n>
QORM_KERNEL void multiplyRunsOfVectors(const S s, std::ptrdiff_t count, Fixed<n> size) {
    using T = typename S::T;
    using V = Pack<T>;
    constexpr std::ptrdiff_t objects = laneCount<V> / n;
    T columns[n][laneCount<V>] = {};
    for (std::ptrdiff_t k = 0; k < n; ++k) {
        for (std::ptrdiff_t lane = 0; lane < objects * n; ++lane)
            columns[k][lane] = s.matrixOf(0)(lane % n, k);
    }
    const auto runOf = [](const auto& vectors, std::ptrdiff_t object) {
        return vectors.object(object, n)(0, 0).address();
    };
    const auto multiply = [&](std::ptrdiff_t object, int live) __attribute__((always_inline)) {
        const V x = loadRun(runOf(s.x, object), live);
        V spread[n]; // element k of each vector to all its lanes
        forEachConstant(
            upTo<n>, [&](auto k) __attribute__((always_inline)) {
                constexpr int element = k;
                constexpr auto sourceOf = [](int lane) {
                    return lane < objects * n ? lane / n * n + element : lane;
                };
                spread[k].lanes[0] = shuffled<sourceOf>(x.lanes[0], x.lanes[0], upTo<laneCount<V>>);
            });
        V y = sumInLanes<sums, V>(
            [&](std::ptrdiff_t k)
                __attribute__((always_inline)) { return spread[k] * loadRun(columns[k]); },
            size);
        if constexpr (isAdded<decltype(s.addend)>) y = y + loadRun(runOf(s.addend, object), live);
        storeRun(runOf(s.dst, object), y, live);
    };
    std::ptrdiff_t object = 0;
    for (; object + objects <= count; object += objects) multiply(object, objects * n);
    if (object < count) multiply(object, static_cast<int>((count - object) * n));
}

} // namespace qorm::products
