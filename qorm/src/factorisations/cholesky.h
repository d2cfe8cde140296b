// Cholesky factorisation, A = L·Lᵀ, with the reciprocals of L's diagonal in its place.
#pragma once

#include "factorisations/objects.h"
#include "frame/entry.h"

// name, the kind of source and destination, type, layout
#define QORM_CHOLESKY(name, kind, type, layout) \
    QORM_FUNCTION_##kind##_##layout( \
        name, \
        qorm::factorisations::formOfCholesky(sizeof(QORM_TYPE_##type), qorm::Layout::layout), \
        QORM_ON_OBJECTS(qorm::factorisations::factoriseCholesky), QORM_CHOLESKY_ARGUMENTS, \
        QORM_TYPE_##type, kind)

#define QORM_CHOLESKY_ARGUMENTS(PART, access, T, kind) \
    PART##_##kind##_##access(const T, Src, src), PART##_##kind##_##access(T, Dst, dst), \
        PART##_widthHeight_##kind

namespace qorm::factorisations {

using CholeskyMeasure = std::uint32_t(std::uint32_t n, std::uint32_t count);

inline std::uint32_t measureOfCholesky(std::uint32_t n, std::uint32_t c) {
    return n * n * c;
}

constexpr Form<CholeskyMeasure> formOfCholesky(std::size_t elementSize, Layout layout) {
    const bool is32f = elementSize == 4;
    const bool staysLonger = is32f && layout == Layout::S;
    const bool leavesSooner = !is32f && layout == Layout::L;
    return {.checks = {Check::null, Check::count, Check::size, Check::stride, Check::shift},
            .measure = measureOfCholesky,
            .contiguousThreshold = staysLonger    ? 7501
                                   : leavesSooner ? 721
                                                  : 2001,
            .generalThreshold = staysLonger ? 7501 : 2001};
}

// Pivots have to be larger. Pointer layout has a threshold at size 3, in both types that of 32f;
// arrays of 64f by general strides have one from size 6 up and below size 3.
template <class Src>
auto pivotThreshold(const Src& src, std::ptrdiff_t n) {
    using T = std::remove_const_t<typename Src::Element>;
    const bool isGeneral64fArray = Src::layout == Layout::S && !src.isList() && Src::holdsArray &&
                                   !Src::hasContiguousRows && sizeof(T) == 8;
    if (Src::layout == Layout::P && n == 3) return T(epsilon<float>());
    if (isGeneral64fArray && (n < 3 || n > 5)) return epsilon<T>();
    return T(0);
}

// 1/√s. In 32f without a division: an estimate of 12 bits and one step of Newton's method.
template <class V>
V reciprocalSqrt(const V& s) {
    if constexpr (sizeof(LaneType<V>) == 4) {
        const V estimate = reciprocalSqrtEstimate(s);
        return (s * estimate * estimate - V(3)) * estimate * V(-0.5F);
    } else {
        return V(1) / sqrt(s);
    }
}

// Row by row. Returns the number of rows that are complete: n, or that of the first row whose pivot
// fails, in any lane, of which all but the diagonal element is.
template <class V, class A, class D, class N>
std::ptrdiff_t factoriseCholeskyRows(const A& a, const D& d, N n, LaneType<V> threshold) {
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        for (std::ptrdiff_t j = 0; j < i; ++j) {
            V s = V(a(i, j));
            for (std::ptrdiff_t k = 0; k < j; ++k) s = s - V(d(i, k)) * V(d(j, k));
            d(i, j) = s * V(d(j, j));
        }
        V s = V(a(i, i));
        for (std::ptrdiff_t k = 0; k < i; ++k) s = s - V(d(i, k)) * V(d(i, k));
        if (any(!(s > V(threshold)))) return i;
        d(i, i) = reciprocalSqrt(s);
    }
    return n;
}

template <class Src, class Dst, class N>
qorStatus factoriseOneCholesky(const Src& src, const Dst& dst, N n,
                               typename decltype(src(0, 0))::Value threshold) {
    using T = typename decltype(src(0, 0))::Value;
    std::ptrdiff_t rows = 0;
    if constexpr (hasOwnPath<N>) {
        T elements[areaOf<N>];
        const PackMatrix<T, N> work = {elements, n};
        for (std::ptrdiff_t i = 0; i < n; ++i) {
            for (std::ptrdiff_t j = 0; j <= i; ++j) work(i, j) = src(i, j);
        }
        rows = factoriseCholeskyRows<T>(work, work, n, threshold);
        for (std::ptrdiff_t i = 0; i < n && i <= rows; ++i) {
            for (std::ptrdiff_t j = 0; j <= i && (j < i || i < rows); ++j) dst(i, j) = work(i, j);
        }
    } else {
        rows = factoriseCholeskyRows<T>(src, dst, n, threshold);
    }
    return rows < n ? qorStatusNotPositiveDefinite : qorStatusOk;
}

// Objects first .. first + live - 1. Lanes write nothing if one of them fails.
template <class V, class Src, class Dst, class N>
[[gnu::flatten]] qorStatus factoriseCholeskyBlock(const Src src, const Dst dst,
                                                  std::ptrdiff_t first, int live, N n,
                                                  LaneType<V> threshold) {
    if constexpr (laneCount<V> == 1) {
        return factoriseOneCholesky(src.object(first, n), dst.object(first, n), sizeOfOne(n),
                                    threshold);
    } else {
        V elements[areaOf<N>];
        const PackMatrix<V, N> work = {elements, n};
        loadLanes<Part::lowerTriangle>(src, first, live, n, n, work);
        const auto rows = runFor<factoriseCholeskyRows<V, PackMatrix<V, N>, PackMatrix<V, N>, N>>(
            src, work, work, n, threshold);
        if (rows < n) return qorStatusNotPositiveDefinite;
        storeLanes<Part::lowerTriangle>(dst, first, live, n, n, work);
        return qorStatusOk;
    }
}

template <class Src, class Dst>
qorStatus factoriseCholesky(const Src& src, const Dst& dst, Size size, Count count = Count(1)) {
    using T = typename Dst::Element;
    const std::ptrdiff_t n = size.value;
    const T threshold = pivotThreshold(src, n);
    const auto guard = [&] {
        return guardOf(sharingOf(n, Sharing::places), src, dst, {n, n}, count.value);
    };
    return withKnownSize<Src>(n, [&](auto fixed) {
        return onAllObjects<LanesOf<Src, decltype(fixed)>, Src::holdsArray>(
            guard, count.value, [&]<class V>(std::ptrdiff_t first, int live) {
                return factoriseCholeskyBlock<V>(src, dst, first, live, fixed, threshold);
            });
    });
}

} // namespace qorm::factorisations
