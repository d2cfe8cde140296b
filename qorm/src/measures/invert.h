// Inverses: closed forms at sizes 3 to 6, the cofactors by elimination at others.
#pragma once

#include "frame/entry.h"
#include "measures/blocks.h"
#include "measures/cofactors.h"
#include "measures/row_minors.h"

// name, the kind of source and destination, type, layout
#define QORM_INVERT(name, kind, type, layout) \
    QORM_FUNCTION_##kind##_##layout(name, \
                                    (qorm::measures::formOfInvert<qorm::Kind::kind>( \
                                        sizeof(QORM_TYPE_##type), qorm::Layout::layout)), \
                                    QORM_ON_OBJECTS(qorm::measures::inverses<qorm::Kind::kind>), \
                                    QORM_INVERT_ARGUMENTS, QORM_TYPE_##type, kind)

#define QORM_INVERT_ARGUMENTS(PART, access, T, kind) \
    PART##_##kind##_##access(const T, Src, src), PART##_rowsBuffer(T), \
        PART##_##kind##_##access(T, Dst, dst), PART##_widthHeight_##kind

namespace qorm::measures {

// The 1x1 inverses, where the single form takes NaN for singular and the array form lets it pass.
template <Kind kind, class Src, class Dst>
qorStatus reciprocals(const Src& src, const Dst& dst, std::ptrdiff_t count) {
    using T = typename Dst::Element;
    for (std::ptrdiff_t object = 0; object < count; ++object) {
        const T x = src.object(object, 1)(0, 0);
        const T eps = epsilon<T>();
        const bool isSingular = isArray(kind) ? eps >= std::fabs(x) : !(std::fabs(x) > eps);
        if (isSingular) return qorStatusSingular;
        dst.object(object, 1)(0, 0) = T(1) / x;
    }
    return qorStatusOk;
}

using InvertMeasure = std::uint32_t(std::uint32_t n, std::uint32_t count);

inline std::uint32_t measureOfInvert(std::uint32_t n, std::uint32_t c) {
    return 2 * n * c;
}

template <Kind kind>
struct FormOfInvert : Form<InvertMeasure> {
    template <class Src, class T, class Dst>
    std::optional<qorStatus> answer(const Src& src, const Scratch<T>& /*scratch*/, const Dst& dst,
                                    Size n, Count count = Count(1)) const {
        if (n.value != 1) return std::nullopt;
        return reciprocals<kind>(src, dst, count.value);
    }
};

template <Kind kind>
constexpr FormOfInvert<kind> formOfInvert(std::size_t elementSize, Layout layout) {
    const bool staysLonger = elementSize == 4 && layout == Layout::L;
    return {{.checks = {Check::null, Check::count, Check::size, Check::stride, Check::shift},
             .measure = measureOfInvert,
             .contiguousThreshold = staysLonger ? 40001 : 20001,
             .generalThreshold = 20001}};
}

// The determinant of a single matrix fails if it is NaN, that of an array passes.
template <Kind kind, class V>
bool isAnySingular(const V& determinant) {
    const V size = abs(determinant);
    return any(isArray(kind) ? epsilon<V>() > size : !(epsilon<V>() <= size));
}

// Objects first .. first + live - 1. Nothing is written if one of them is singular.
template <Kind kind, class V, class Src, class Dst, class N>
[[gnu::flatten]] qorStatus invertBlock(const Src src, const Dst dst, std::ptrdiff_t first, int live,
                                       N n) {
    constexpr std::ptrdiff_t capacity = largestSize<N> * largestSize<N>;
    V inverseBlock[capacity];
    const PackMatrix<V, N> inverse = {inverseBlock, n};
    const auto store = [&] {
        storeLanes(dst, first, live, n, n, inverse);
        return qorStatusOk;
    };
    if constexpr (hasClosedForm<N> && Src::layout == Layout::P) {
        if (live == laneCount<V> && src.hasObjectsSideBySide()) {
            const V determinant =
                invertByMinors<n, V>(lanesInPlace<V>(src.object(first, n)), inverse);
            return isAnySingular<kind>(determinant) ? qorStatusSingular : store();
        }
    }
    V sourceBlock[capacity];
    const PackMatrix<V, N> a = {sourceBlock, n};
    loadLanes(src, first, live, n, n, a);
    if constexpr (hasClosedForm<N>) {
        if (isAnySingular<kind>(invertByMinors<n, V>(a, inverse))) return qorStatusSingular;
    } else {
        V work[capacity];
        V shared[capacity];
        const PackMatrix<V, N> sharedSteps = {shared, n};
        if (any(invertByCofactors<V>(a, inverse, PackMatrix<V, N>{work, n}, &sharedSteps, n))) {
            return qorStatusSingular;
        }
    }
    return store();
}

// Objects of any size, in the caller's scratch.
template <class Src, class T, class Dst>
qorStatus invertInScratch(const Src& src, const Scratch<T>& scratch, const Dst& dst,
                          std::ptrdiff_t n, std::ptrdiff_t count) {
    using Work = StridedMatrix<T, true>;
    const Work work = {scratch.base, n * std::ptrdiff_t{sizeof(T)}, sizeof(T)};
    const Work* const noRoom = nullptr;
    for (std::ptrdiff_t object = 0; object < count; ++object) {
        if (invertByCofactors<T>(src.object(object, n), dst.object(object, n), work, noRoom, n)) {
            return qorStatusSingular;
        }
    }
    return qorStatusOk;
}

template <Kind kind, class Src, class T, class Dst>
qorStatus inverses(const Src& src, const Scratch<T>& scratch, const Dst& dst, Size size,
                   Count countOf = Count(1)) {
    const std::ptrdiff_t n = size.value;
    const std::ptrdiff_t count = countOf.value;
    if (n > mostLaneSize) return invertInScratch(src, scratch, dst, n, count);
    return withSmallSize(n, [&](auto fixed) {
        if constexpr (isArray(kind)) {
            const auto guard =
                readAheadOf(Sharing::any, src, {n, n}, dst, {n, n}, count, laneCount<Pack<T>>);
            return inLanes<Pack<T>>(guard, count, [&]<class V>(std::ptrdiff_t first, int live) {
                return invertBlock<kind, V>(src, dst, first, live, fixed);
            });
        } else {
            return invertBlock<kind, T>(src, dst, 0, 1, fixed);
        }
    });
}

} // namespace qorm::measures
