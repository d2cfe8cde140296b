// Determinants: closed forms at sizes 3 to 6, elimination with partial pivoting at others.
#pragma once

#include "frame/entry.h"
#include "measures/blocks.h"
#include "measures/column_minors.h"
#include "measures/elimination.h"

// name, the source's kind, type, layout
#define QORM_DET(name, kind, type, layout) \
    QORM_FUNCTION_##kind##_##layout( \
        name, qorm::measures::formOfDet(sizeof(QORM_TYPE_##type), qorm::Layout::layout), \
        QORM_ON_OBJECTS(qorm::measures::determinants<qorm::Kind::kind>), QORM_DET_ARGUMENTS, \
        QORM_TYPE_##type, kind)

#define QORM_DET_ARGUMENTS(PART, access, T, kind) \
    PART##_##kind##_##access(const T, Src, src), PART##_widthHeight_m, PART##_rowsBuffer(T), \
        PART##_value(T) PART##_count_##kind

namespace qorm::measures {

using DetMeasure = std::uint32_t(std::uint32_t n, std::uint32_t count);

inline std::uint32_t measureOfDet(std::uint32_t n, std::uint32_t c) {
    return n * c;
}

constexpr Form<DetMeasure> formOfDet(std::size_t elementSize, Layout layout) {
    const bool staysLonger = elementSize == 4 && layout == Layout::L;
    return {.checks = {Check::null, Check::count, Check::size, Check::stride, Check::shift},
            .measure = measureOfDet,
            .contiguousThreshold = staysLonger ? 40001 : 20001,
            .generalThreshold = 20001};
}

// By elimination in `work`, which holds the matrix. A pivot that fails its test makes the
// determinant +0 in the single form; the array form gives it a sign of 0 and goes on to the test of
// the last pivot. That fails at exactly the threshold, and NaN passes it.
template <Kind kind, class V, class Matrix>
V determinantByElimination(const Matrix& work, std::ptrdiff_t n) {
    Pivots<V> pivots;
    for (std::ptrdiff_t k = 0; k + 1 < n; ++k) eliminate(work, k, k, n, n, pivots);
    const V last = select(pivots.failed, pivots.lastWhereFailed, V(work(n - 1, n - 1)));
    const V sign = select(pivots.failed, V(0), pivots.sign);
    const V determinant = pivots.product * (last * sign);
    Mask<V> isZero = abs(last) <= epsilon<V>();
    if constexpr (!isArray(kind)) isZero = isZero | pivots.failed;
    return select(isZero, V(0), determinant);
}

// Of objects first .. first + live - 1.
template <Kind kind, class V, class Src, class T, class N>
[[gnu::flatten]] qorStatus determinantsOfBlock(const Src src, const Plain<T> dst,
                                               std::ptrdiff_t first, int live, N n) {
    const auto store = [&](V determinant) {
        storeLanes(dst, first, live, Fixed<1>(), PackRun<V>{&determinant});
        return qorStatusOk;
    };
    if constexpr (hasClosedForm<N> && Src::layout == Layout::P) {
        if (live == laneCount<V> && src.hasObjectsSideBySide()) {
            return store(determinantByMinors<n, V>(lanesInPlace<V>(src.object(first, n))));
        }
    }
    V block[largestSize<N> * largestSize<N>];
    const PackMatrix<V, N> a = {block, n};
    loadLanes(src, first, live, n, n, a);
    if constexpr (hasClosedForm<N>)
        return store(determinantByMinors<n, V>(a));
    else
        return store(determinantByElimination<kind, V>(a, n));
}

// Of a matrix of any size, in the caller's scratch.
template <Kind kind, class Src, class T>
void determinantInScratch(const Src& src, const Scratch<T>& scratch, const Plain<T>& dst,
                          std::ptrdiff_t object, std::ptrdiff_t n) {
    const auto a = src.object(object, n);
    const StridedMatrix<T, true> work = {scratch.base, n * std::ptrdiff_t{sizeof(T)}, sizeof(T)};
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        for (std::ptrdiff_t j = 0; j < n; ++j) work(i, j) = T(a(i, j));
    }
    dst.object(object)(0) = determinantByElimination<kind, T>(work, n);
}

template <Kind kind, class Src, class T>
qorStatus determinants(const Src& src, Size size, const Scratch<T>& scratch, const Plain<T>& dst,
                       Count countOf = Count(1)) {
    const std::ptrdiff_t n = size.value;
    const std::ptrdiff_t count = countOf.value;
    if (n > mostLaneSize) {
        for (std::ptrdiff_t object = 0; object < count; ++object) {
            determinantInScratch<kind>(src, scratch, dst, object, n);
        }
        return qorStatusOk;
    }
    return withSmallSize(n, [&](auto fixed) {
        if constexpr (isArray(kind)) {
            ReadAhead guard(spansOf(src, n, n), spansOf(dst), count);
            return inLanes<Pack<T>>(guard, count, [&]<class V>(std::ptrdiff_t first, int live) {
                return determinantsOfBlock<kind, V>(src, dst, first, live, fixed);
            });
        } else {
            return determinantsOfBlock<kind, T>(src, dst, 0, 1, fixed);
        }
    });
}

} // namespace qorm::measures
