// LU factorisation with row pivoting, P·A = L·U. Rows are never moved: the index tells their order.
#pragma once

#include "factorisations/objects.h"
#include "frame/entry.h"

// name, the kind of source and destination, type, layout
#define QORM_LU(name, kind, type, layout) \
    QORM_FUNCTION_##kind##_##layout( \
        name, qorm::factorisations::formOfLu(sizeof(QORM_TYPE_##type), qorm::Layout::layout), \
        qorm::factorisations::factoriseLu, QORM_LU_ARGUMENTS, QORM_TYPE_##type, kind)

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

    void beginInOrder(std::ptrdiff_t n) const {
        for (std::ptrdiff_t i = 0; i < n; ++i) index(i) = static_cast<std::int32_t>(i);
    }
    decltype(auto) operator()(std::ptrdiff_t k, std::ptrdiff_t j) const {
        return matrix(index(k), j);
    }
    T ofSource(std::ptrdiff_t i, std::ptrdiff_t j, std::ptrdiff_t /*n*/) const {
        return matrix(i, j);
    }
    void exchange(std::ptrdiff_t k, T position, std::ptrdiff_t /*n*/) const {
        const auto p = static_cast<std::ptrdiff_t>(position);
        const std::int32_t upper = index(k);
        index(k) = std::int32_t{index(p)};
        index(p) = upper;
    }
};

// The same for a matrix in each lane. There rows do change places: lanes have no addresses of their
// own.
template <class V, class N>
struct ExchangedRows {
    PackMatrix<V, N> matrix;
    PackRun<V> index;

    void beginInOrder(std::ptrdiff_t n) const {
        for (std::ptrdiff_t i = 0; i < n; ++i) index(i) = V(static_cast<LaneType<V>>(i));
    }
    V& operator()(std::ptrdiff_t k, std::ptrdiff_t j) const { return matrix(k, j); }

    // Element (i, j) where i is the row's number in the source.
    V ofSource(std::ptrdiff_t i, std::ptrdiff_t j, std::ptrdiff_t n) const {
        const V row(static_cast<LaneType<V>>(i));
        V element = matrix(0, j);
        for (std::ptrdiff_t k = 1; k < n; ++k) assignWhere(index(k) == row, element, matrix(k, j));
        return element;
    }

    void exchange(std::ptrdiff_t k, const V& position, std::ptrdiff_t n) const {
        for (std::ptrdiff_t p = k + 1; p < n; ++p) {
            const Mask<V> isHere = position == V(static_cast<LaneType<V>>(p));
            if (!any(isHere)) continue;
            const auto exchangeWhere = [&](V& upper, V& lower) {
                const V kept = upper;
                assignWhere(isHere, upper, lower);
                assignWhere(isHere, lower, kept);
            };
            exchangeWhere(index(k), index(p));
            for (std::ptrdiff_t j = 0; j < n; ++j) exchangeWhere(matrix(k, j), matrix(p, j));
        }
    }
};

template <class V>
struct Pivot {
    V position;
    V size; // its absolute value
};

// The largest element of column k, the first of equal ones. Where NaN stands, it depends: fixed sizes
// and the general routine in 32f never choose it, the general routine in 64f always does, and then
// whatever follows it. In step 0 of the fixed sizes NaN and then its successor overwrite the size.
template <bool hasFixedSize, class V, class Rows, class N>
Pivot<V> findPivot(const Rows& rows, std::ptrdiff_t k, N n) {
    using T = LaneType<V>;
    constexpr bool choosesNan = !hasFixedSize && sizeof(T) == 8;
    Pivot<V> pivot = {V(static_cast<T>(k)), abs(V(rows(k, k)))};
    for (std::ptrdiff_t p = k + 1; p < n; ++p) {
        const V candidate = abs(V(rows(p, k)));
        const Mask<V> isBetter = choosesNan ? !(candidate <= pivot.size) : candidate > pivot.size;
        assignWhere(isBetter, pivot.position, V(static_cast<T>(p)));
        if (hasFixedSize && k == 0)
            pivot.size = select(pivot.size > candidate, pivot.size, candidate);
        else
            assignWhere(isBetter, pivot.size, candidate);
    }
    return pivot;
}

template <bool hasFixedSize, class V>
Mask<V> isTooSmall(const V& pivotSize) {
    if (hasFixedSize) return !(epsilon<V>() <= pivotSize);
    if (sizeof(LaneType<V>) == 8) return !(pivotSize > epsilon<V>());
    return pivotSize <= epsilon<V>();
}

// Fixed sizes look at the last element of what was the last row of the source, wherever it stands
// now: where it was a pivot row before, a last pivot of 0 passes.
template <bool hasFixedSize, class V, class Rows, class N>
Mask<V> isLastTooSmall(const Rows& rows, N n) {
    if constexpr (hasFixedSize)
        return !(epsilon<V>() <= abs(V(rows.ofSource(n - 1, n - 1, n))));
    else
        return abs(V(rows(n - 1, n - 1))) <= epsilon<V>();
}

// Factorises in place and calls accept(k) as soon as pivot k has passed its test. Returns
// qorStatusSingular at the first that fails, of a matrix in any lane.
template <class V, class Rows, class N, class Accept>
qorStatus eliminate(const Rows& rows, N n, const Accept& accept) {
    constexpr bool hasFixedSize = isFixed<N>;
    rows.beginInOrder(n);
    for (std::ptrdiff_t k = 0; k < n - 1; ++k) {
        const Pivot<V> pivot = findPivot<hasFixedSize, V>(rows, k, n);
        if (hasFixedSize) rows.exchange(k, pivot.position, n);
        if (any(isTooSmall<hasFixedSize>(pivot.size))) return qorStatusSingular;
        if (!hasFixedSize) rows.exchange(k, pivot.position, n);
        accept(k);
        const V reciprocal = V(1) / V(rows(k, k));
        for (std::ptrdiff_t i = k + 1; i < n; ++i) rows(i, k) = V(rows(i, k)) * reciprocal;
        for (std::ptrdiff_t i = k + 1; i < n; ++i) {
            for (std::ptrdiff_t j = k + 1; j < n; ++j) {
                rows(i, j) = V(rows(i, j)) - V(rows(i, k)) * V(rows(k, j));
            }
        }
    }
    if (any(isLastTooSmall<hasFixedSize, V>(rows, n))) return qorStatusSingular;
    accept(n - 1);
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
    if constexpr (isFixed<N>) {
        T elements[areaOf<N>];
        const PackMatrix<T, N> work = {elements, n};
        copyTo(work);
        const IndexedRows<T, PackMatrix<T, N>> rows = {work, index};
        return eliminate<T>(rows, n, [&](std::ptrdiff_t k) {
            const std::int32_t row = index(k);
            for (std::ptrdiff_t j = 0; j < n; ++j) dst(row, j) = work(row, j);
        });
    } else {
        copyTo(dst);
        return eliminate<T>(IndexedRows<T, Dst>{dst, index}, n, [](std::ptrdiff_t) {});
    }
}

// Objects first .. first + live - 1. Lanes write nothing if one of them fails.
template <class V, class Src, class Dst, class N>
[[gnu::flatten]] qorStatus factoriseLuBlock(const Src src, const Plain<std::int32_t> pivots,
                                            const Dst dst, std::ptrdiff_t first, int live, N n) {
    if constexpr (laneCount<V> == 1) {
        return factoriseOneLu(src.object(first, n), pivots.object(first), dst.object(first, n), n);
    } else {
        V elements[areaOf<N>];
        V order[largestSize<N>];
        const ExchangedRows<V, N> rows = {{elements, n}, {order}};
        loadLanes(src, first, live, n, n, rows.matrix);
        if (eliminate<V>(rows, n, [](std::ptrdiff_t) {})) return qorStatusSingular;
        if constexpr (isFixed<N>) {
            V unmovedElements[areaOf<N>];
            const PackMatrix<V, N> unmoved = {unmovedElements, n};
            for (std::ptrdiff_t i = 0; i < n; ++i) {
                for (std::ptrdiff_t j = 0; j < n; ++j) unmoved(i, j) = rows.ofSource(i, j, n);
            }
            storeLanes(dst, first, live, n, n, unmoved);
        } else {
            const auto rowOf = [&](int lane, std::ptrdiff_t k) {
                return static_cast<std::ptrdiff_t>(laneOf(order[k], lane));
            };
            storeLanesInOrder(dst, first, live, n, rowOf, rows.matrix);
        }
        storeLanes(pivots, first, live, n, rows.index);
        return qorStatusOk;
    }
}

// Exchanges of rows keep whole matrices at work: larger ones need all registers for one pack.
template <class T, class N>
using LuLanes = LanesOf<T, (isFixed<N> && areaOf<N> > 16) ? 1 : 2>;

template <class Src, class Dst>
qorStatus factoriseLu(const Src& src, const Plain<std::int32_t>& pivots, const Dst& dst, Size size,
                      Count count = Count(1)) {
    using T = typename Dst::Element;
    const std::ptrdiff_t n = size.value;
    const Sharing sharing = sharingOf(n, Sharing::places);
    const auto guard = [&] { return guardOf(sharing, src, dst, {n, n}, count.value); };
    return withStaticSize(n, [&](auto fixed) {
        return onAllObjects<LuLanes<T, decltype(fixed)>, Src::holdsArray>(
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
