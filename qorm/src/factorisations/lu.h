// LU factorisation with row pivoting, P·A = L·U. Rows are never moved: the index tells their order.
#pragma once

#include "factorisations/objects.h"
#include "factorisations/pivots.h"
#include "frame/entry.h"

// name, the kind of source and destination, type, layout
#define QORM_LU(name, kind, type, layout) \
    QORM_FUNCTION_##kind##_##layout( \
        name, qorm::factorisations::formOfLu(sizeof(QORM_TYPE_##type), qorm::Layout::layout), \
        QORM_ON_OBJECTS(qorm::factorisations::factoriseLu), QORM_LU_ARGUMENTS, QORM_TYPE_##type, \
        kind)

#define QORM_LU_ARGUMENTS(PART, access, T, kind) \
    PART##_##kind##_##access(const T, Src, src), PART##_pivots_##kind(std::int32_t, pDstIndex), \
        PART##_##kind##_##access(T, Dst, dst), PART##_widthHeight_##kind

namespace qorm::factorisations {

using LuMeasure = std::uint32_t(std::uint32_t n, std::uint32_t count);

inline std::uint32_t measureOfLu(std::uint32_t n, std::uint32_t c) {
    return n * n * c;
}

constexpr Form<LuMeasure> formOfLu(std::size_t elementSize, Layout layout) {
    return {.checks = {Check::null, Check::count, Check::size, Check::stride, Check::shift},
            .measure = measureOfLu,
            .contiguousThreshold = 40001,
            .generalThreshold = 20001,
            .fansOut = elementSize == 4 && layout == Layout::L};
}

// The rows of one matrix in the order of their pivots.
template <class T, class Matrix>
struct IndexedRows {
    Matrix matrix;
    Run<std::int32_t> index;

    decltype(auto) operator()(std::ptrdiff_t k, std::ptrdiff_t j) const {
        return matrix(index(k), j);
    }
    void beginInOrder(std::ptrdiff_t n) const {
        for (std::ptrdiff_t i = 0; i < n; ++i) index(i) = static_cast<std::int32_t>(i);
    }
    void exchange(std::ptrdiff_t k, std::ptrdiff_t p) const {
        const std::int32_t upper = index(k);
        index(k) = std::int32_t{index(p)};
        index(p) = upper;
    }
};

template <class T>
struct Pivot {
    std::ptrdiff_t position;
    T size; // its absolute value
};

// The largest element of column k, the first of equal ones. Where NaN stands, it depends: fixed sizes
// and the general routine in 32f never choose it, the general routine in 64f always does, and then
// whatever follows it. In step 0 of the fixed sizes NaN and then its successor overwrite the size.
template <bool hasFixedSize, class T, class Matrix>
Pivot<T> findPivot(const IndexedRows<T, Matrix>& rows, std::ptrdiff_t k, std::ptrdiff_t n) {
    constexpr bool choosesNan = !hasFixedSize && sizeof(T) == 8;
    Pivot<T> pivot = {k, abs(T(rows(k, k)))};
    for (std::ptrdiff_t p = k + 1; p < n; ++p) {
        const T candidate = abs(T(rows(p, k)));
        const bool isBetter = choosesNan ? !(candidate <= pivot.size) : candidate > pivot.size;
        if (isBetter) pivot.position = p;
        if (hasFixedSize && k == 0)
            pivot.size = pivot.size > candidate ? pivot.size : candidate;
        else if (isBetter)
            pivot.size = candidate;
    }
    return pivot;
}

template <bool hasFixedSize, class V>
Mask<V> isTooSmall(const V& pivotSize) {
    if (hasFixedSize) return !(epsilon<V>() <= pivotSize);
    if (sizeof(LaneType<V>) == 8) return !(pivotSize > epsilon<V>());
    return pivotSize <= epsilon<V>();
}

// The last pivot is tested otherwise. Fixed sizes look at the last element of what was the last row
// of the source, wherever that has got: where it was a pivot row before, a last pivot of 0 passes.
template <bool hasFixedSize, class V>
Mask<V> isLastTooSmall(const V& last) {
    return hasFixedSize ? !(epsilon<V>() <= abs(last)) : abs(last) <= epsilon<V>();
}

// Factorises one matrix in place and calls accept(k) as soon as pivot k has passed its test. Returns
// qorStatusSingular at the first that fails.
template <class T, class Matrix, class N, class Accept>
qorStatus eliminate(const IndexedRows<T, Matrix>& rows, N n, const Accept& accept) {
    constexpr bool hasFixedSize = hasOwnPath<N>;
    rows.beginInOrder(n);
    for (std::ptrdiff_t k = 0; k < n - 1; ++k) {
        const auto pivot = findPivot<hasFixedSize>(rows, k, n);
        if (hasFixedSize) rows.exchange(k, pivot.position);
        if (isTooSmall<hasFixedSize>(pivot.size)) return qorStatusSingular;
        if (!hasFixedSize) rows.exchange(k, pivot.position);
        accept(k);
        const T reciprocal = T(1) / T(rows(k, k));
        for (std::ptrdiff_t i = k + 1; i < n; ++i) rows(i, k) = T(rows(i, k)) * reciprocal;
        for (std::ptrdiff_t i = k + 1; i < n; ++i) {
            for (std::ptrdiff_t j = k + 1; j < n; ++j) {
                rows(i, j) = T(rows(i, j)) - T(rows(i, k)) * T(rows(k, j));
            }
        }
    }
    const T last = hasFixedSize ? T(rows.matrix(n - 1, n - 1)) : T(rows(n - 1, n - 1));
    if (isLastTooSmall<hasFixedSize>(last)) return qorStatusSingular;
    accept(n - 1);
    return qorStatusOk;
}

// The matrices in the lanes of a block. Lanes have no addresses of their own, so rows do change places:
// row k of a lane ends as row index(k) of its matrix. Returns qorStatusSingular where a matrix in any
// lane has to go the exact way.
template <class V, class N>
[[gnu::always_inline]] inline qorStatus eliminateInLanes(const PackMatrix<V, N>& a,
                                                         const PackRun<V>& index, N n) {
    constexpr bool hasFixedSize = hasOwnPath<N>;
    const auto number = [](std::ptrdiff_t i) { return V(static_cast<LaneType<V>>(i)); };
    const auto exchangeWhere = [](const Mask<V>& where, V& upper, V& lower) {
        const V kept = upper;
        assignWhere(where, upper, lower);
        assignWhere(where, lower, kept);
    };
    Mask<V> isSingular = V(0) > V(0);
    for (std::ptrdiff_t i = 0; i < n; ++i) index(i) = number(i);
    const auto eliminateColumn = [&](auto k) __attribute__((always_inline)) {
        V position = number(k);
        V size = abs(a(k, k));
        for (std::ptrdiff_t p = k + 1; p < n; ++p) {
            const V candidate = abs(a(p, k));
            const Mask<V> isBetter = candidate > size;
            assignWhere(isBetter, position, number(p));
            assignWhere(isBetter, size, candidate);
        }
        isSingular = isSingular | isTooSmall<hasFixedSize>(size);
        for (std::ptrdiff_t p = k + 1; p < n; ++p) {
            const Mask<V> isHere = position == number(p);
            if (!isFixed<N> && !any(isHere)) continue;
            exchangeWhere(isHere, index(k), index(p));
            for (std::ptrdiff_t j = 0; j < n; ++j) exchangeWhere(isHere, a(k, j), a(p, j));
        }
        const V reciprocal = V(1) / a(k, k);
        for (std::ptrdiff_t i = k + 1; i < n; ++i) {
            a(i, k) = a(i, k) * reciprocal;
            for (std::ptrdiff_t j = k + 1; j < n; ++j) a(i, j) = a(i, j) - a(i, k) * a(k, j);
        }
    };
    forRange(Fixed<0>(), before(n), eliminateColumn);
    if constexpr (!hasFixedSize) isSingular = isSingular | isLastTooSmall<false>(a(n - 1, n - 1));

    // NaN where a pivot was searched has other rules, and has come to the last column.
    V sum(0);
    for (std::ptrdiff_t i = 0; i < n; ++i) sum = sum + a(i, n - 1);
    return any(isSingular | !(sum == sum)) ? qorStatusSingular : qorStatusOk;
}

// Rows back to where they came from.
template <class V, class N>
[[gnu::always_inline]] inline void restoreRows(const PackMatrix<V, N>& a, const PackRun<V>& index,
                                               N n) {
    const auto restoreColumn = [&](auto j) __attribute__((always_inline)) {
        V column[largestSize<N>];
        for (std::ptrdiff_t i = 0; i < n; ++i) {
            const V row(static_cast<LaneType<V>>(i));
            column[i] = a(0, j);
            for (std::ptrdiff_t k = 1; k < n; ++k) {
                assignWhere(index(k) == row, column[i], a(k, j));
            }
        }
        for (std::ptrdiff_t i = 0; i < n; ++i) a(i, j) = column[i];
    };
    forRange(Fixed<0>(), n, restoreColumn);
}

template <class V, class N>
[[gnu::always_inline]] inline qorStatus factoriseLuLanes(const PackMatrix<V, N>& a,
                                                         const PackRun<V>& index, N n) {
    if (eliminateInLanes(a, index, n)) return qorStatusSingular;
    if constexpr (hasOwnPath<N>) {
        restoreRows(a, index, n);
        if (any(isLastTooSmall<true>(a(n - 1, n - 1)))) return qorStatusSingular;
    }
    return qorStatusOk;
}

// One matrix, exactly as the contract tells, down to the state that a failure leaves: fixed sizes
// work on a copy and write each row when its pivot is accepted, others work in the destination.
template <class Src, class Dst, class N>
qorStatus factoriseOneLu(const Src& src, Run<std::int32_t> index, const Dst& dst, N n) {
    using T = typename decltype(src(0, 0))::Value;
    const auto copyTo = [&](const auto& work) {
        for (std::ptrdiff_t i = 0; i < n; ++i) {
            for (std::ptrdiff_t j = 0; j < n; ++j) work(i, j) = T(src(i, j));
        }
    };
    if constexpr (hasOwnPath<N>) {
        T elements[areaOf<N>];
        const PackMatrix<T, N> work = {elements, n};
        copyTo(work);
        const IndexedRows<T, PackMatrix<T, N>> rows = {work, index};
        return eliminate(rows, n, [&](std::ptrdiff_t k) {
            const std::int32_t row = index(k);
            for (std::ptrdiff_t j = 0; j < n; ++j) dst(row, j) = work(row, j);
        });
    } else {
        copyTo(dst);
        return eliminate(IndexedRows<T, Dst>{dst, index}, n, [](std::ptrdiff_t) {});
    }
}

// Objects first .. first + live - 1. Lanes write nothing if one of them fails.
template <class V, class Src, class Dst, class N>
[[gnu::flatten]] qorStatus factoriseLuBlock(const Src src, const Plain<std::int32_t> pivots,
                                            const Dst dst, std::ptrdiff_t first, int live, N n) {
    if constexpr (laneCount<V> == 1) {
        return factoriseOneLu(src.object(first, n), pivots.object(first), dst.object(first, n),
                              sizeOfOne(n));
    } else {
        V elements[areaOf<N>];
        V order[largestSize<N>];
        const PackMatrix<V, N> work = {elements, n};
        const PackRun<V> index = {order};
        loadLanes(src, first, live, n, n, work);
        if (const auto status = runFor<factoriseLuLanes<V, N>>(src, work, index, n)) return status;
        if constexpr (hasOwnPath<N>) {
            storeLanes(dst, first, live, n, n, work);
        } else if (movesRowsInRegisters<N>(dst)) {
            restoreRows(work, index, n);
            storeLanes(dst, first, live, n, n, work);
        } else {
            const auto rowOf = [&](int lane, std::ptrdiff_t k) {
                return static_cast<std::ptrdiff_t>(laneOf(index(k), lane));
            };
            storeLanesInOrder(dst, first, live, n, rowOf, work);
        }
        storePivots(pivots, first, live, n, order);
        return qorStatusOk;
    }
}

// Exchanges of rows keep whole matrices at work: larger ones need all registers for one pack.
template <class Operand, class N>
using LuLanes = LanesOf<Operand, N, (isFixed<N> && areaOf<N> > 16) ? 1 : 2>;

template <class Src, class Dst>
qorStatus factoriseLu(const Src& src, const Plain<std::int32_t>& pivots, const Dst& dst, Size size,
                      Count count = Count(1)) {
    const std::ptrdiff_t n = size.value;
    const Sharing sharing = sharingOf(n, Sharing::places);
    const auto guard = [&] { return guardOf(sharing, src, dst, {n, n}, count.value); };
    return withKnownSize<Src>(n, [&](auto fixed) {
        return onAllObjects<LuLanes<Src, decltype(fixed)>, Src::holdsArray>(
            guard, count.value, [&]<class V>(std::ptrdiff_t first, int live) {
                return factoriseLuBlock<V>(src, pivots, dst, first, live, fixed);
            });
    });
}

// The general routine by itself, for any size.
template <class Src, class Dst>
qorStatus factoriseLuAtAnySize(const Src& src, const Plain<std::int32_t>& pivots, const Dst& dst,
                               Size size) {
    const std::ptrdiff_t n = size.value;
    return factoriseOneLu(src.object(0, n), pivots.object(0), dst.object(0, n), n);
}

} // namespace qorm::factorisations
