// Transposes, dst(j,i) = src(i,j).
#pragma once

#include "frame/entry.h"
#include "movement/moves.h"

// name, the kind of source and destination, type, layout
#define QORM_TRANSPOSE(name, kind, type, layout) \
    QORM_FUNCTION_##kind##_##layout( \
        name, qorm::movement::formOfTranspose(sizeof(QORM_TYPE_##type), qorm::Layout::layout), \
        QORM_ON_OBJECTS(qorm::movement::transpose), QORM_TRANSPOSE_ARGUMENTS, QORM_TYPE_##type, \
        kind)

#define QORM_TRANSPOSE_ARGUMENTS(PART, access, T, kind) \
    PART##_##kind##_##access(const T, Src, src), PART##_width_height_m, \
        PART##_##kind##_##access(T, Dst, dst) PART##_count_##kind

namespace qorm::movement {

using TransposeMeasure = std::uint32_t(std::uint32_t width, std::uint32_t height,
                                       std::uint32_t count);

inline std::uint32_t measureOfTranspose(std::uint32_t w, std::uint32_t h, std::uint32_t c) {
    return 2 * w * h * c;
}

constexpr Form<TransposeMeasure> formOfTranspose(std::size_t elementSize, Layout layout) {
    const bool staysLonger = elementSize == 4 && layout == Layout::L;
    return {.checks = {Check::null, Check::count, Check::size, Check::stride, Check::shift},
            .measure = measureOfTranspose,
            .contiguousThreshold = staysLonger ? 40001 : 20001,
            .generalThreshold = 20001};
}

// Sizes that have no path of their own go by rows of the source in pointer layout.
template <class Src, class Dst>
qorStatus transpose(const Src& src, Size width, Size height, const Dst& dst,
                    Count count = Count(1)) {
    const bool bySourceRows =
        isByPositions<Src> && !(width.value == height.value && isUnrolled(width.value));
    moveObjects<Reading::transposed>(src, dst, {width.value, height.value}, count.value,
                                     bySourceRows ? Order::sourceRows : Order::resultRows);
    return qorStatusOk;
}

} // namespace qorm::movement
