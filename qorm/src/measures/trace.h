// Traces, Σₖ a(k,k).
#pragma once

#include "frame/entry.h"
#include "frame/light_blocks.h"
#include "frame/summation.h"
#include "measures/blocks.h"

// name, the source's kind, type, layout
#define QORM_TRACE(name, kind, type, layout) \
    QORM_FUNCTION_##kind##_##layout( \
        name, qorm::measures::formOfTrace(sizeof(QORM_TYPE_##type), qorm::Layout::layout), \
        qorm::measures::traces, QORM_TRACE_ARGUMENTS, QORM_TYPE_##type, kind)

#define QORM_TRACE_ARGUMENTS(PART, access, T, kind) \
    PART##_##kind##_##access(const T, Src, src), PART##_widthHeight_m, \
        PART##_value(T) PART##_count_##kind

namespace qorm::measures {

using TraceMeasure = std::uint32_t(std::uint32_t n, std::uint32_t count);

inline std::uint32_t measureOfTrace(std::uint32_t n, std::uint32_t c) {
    return n * c;
}

constexpr Form<TraceMeasure> formOfTrace(std::size_t elementSize, Layout layout) {
    const bool staysLonger = elementSize == 4 && layout == Layout::L;
    return {.checks = {Check::null, Check::count, Check::size, Check::stride, Check::shift},
            .measure = measureOfTrace,
            .contiguousThreshold = staysLonger ? 40001 : 20001,
            .generalThreshold = 20001};
}

// Of diagonal elements d(0), d(1), ... By strides, sizes 5 and 6 begin with what stands behind d(3).
template <bool byPositions, class V, class Diagonal, class N>
[[gnu::always_inline]] inline V sumOfDiagonal(const Diagonal& d, N n) {
    if constexpr (!hasOwnPath<N>) {
        return sumOfChain<false, V>(d, n);
    } else if constexpr (byPositions || n < 5) {
        return sumOfChain<true, V>(d, n);
    } else {
        const auto lastFirst = [&](std::ptrdiff_t k) { return d((k + 4) % n); };
        return sumOfChain<true, V>(lastFirst, n);
    }
}

template <class V, class Src, class T, class N>
void tracesOfBlocks(const Src src, const Plain<T> dst, std::ptrdiff_t first, std::ptrdiff_t blocks,
                    N n) {
    for (std::ptrdiff_t block = 0; block < blocks; ++block) {
        const std::ptrdiff_t object = first + block * laneCount<V>;
        const auto a = lanesInPlace<V>(src.object(object, n));
        V trace = sumOfDiagonal<Src::layout == Layout::P, V>(
            [&](std::ptrdiff_t k) { return a(k, k); }, n);
        storeLanes(dst, object, laneCount<V>, Fixed<1>(), PackRun<V>{&trace});
    }
}

template <class Src, class T>
qorStatus traces(const Src& src, Size size, const Plain<T>& dst, Count countOf = Count(1)) {
    const std::ptrdiff_t count = countOf.value;
    return withStaticSize(std::ptrdiff_t{size.value}, [&](auto n) {
        std::ptrdiff_t done = 0;
        if constexpr (Src::layout == Layout::P && Src::holdsArray) {
            constexpr std::ptrdiff_t lanes = laneCount<Pack<T>>;
            // To find where the objects lie is to go through all of the table.
            if (count >= std::max<std::ptrdiff_t>(lanes, n) && src.hasObjectsSideBySide() &&
                areApart(spansOf(src, n, n), spansOf(dst), count)) {
                tracesOfBlocks<Pack<T>>(src, dst, 0, count / lanes, n);
                done = count / lanes * lanes;
            }
        }
        tracesOfBlocks<T>(src, dst, done, count - done, n);
        return qorStatusOk;
    });
}

} // namespace qorm::measures
