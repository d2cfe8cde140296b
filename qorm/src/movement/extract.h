// Operands of any layout into plain arrays without gaps.
#pragma once

#include "frame/entry.h"
#include "movement/moves.h"

// name, the source's kind, type, layout
#define QORM_EXTRACT(name, kind, type, layout) \
    QORM_ENTRY(name, \
               (qorm::movement::formOfExtract(qorm::Kind::kind, sizeof(QORM_TYPE_##type), \
                                              qorm::Layout::layout)), \
               qorm::movement::Extracting<qorm::Kind::kind>(), QORM_EXTRACT_ARGUMENTS, \
               QORM_TYPE_##type, kind, layout)

#define QORM_EXTRACT_ARGUMENTS(PART, T, kind, layout) \
    PART##_##kind##_##layout(const T, Src, src), PART##_extracted_##kind(T)

#define PARAM_extracted_v(T) T *pDst, PARAM_len_v
#define PARAM_extracted_va(T) T *pDst, PARAM_len_va
#define PARAM_extracted_m(T) T *pDst, PARAM_width_height_m
#define PARAM_extracted_ma(T) T *pDst, PARAM_width_height_ma
#define PARAM_extracted_t PARAM_extracted_m
#define PARAM_extracted_ta PARAM_extracted_ma
#define GROUP_extracted_v(T) qorm::Packed<T>(pDst, 1, len), GROUP_len_v
#define GROUP_extracted_va(T) qorm::Packed<T>(pDst, 1, len), GROUP_len_va
#define GROUP_extracted_m(T) qorm::Packed<T>(pDst, height, width), GROUP_width_height_m
#define GROUP_extracted_ma(T) qorm::Packed<T>(pDst, height, width), GROUP_width_height_ma
#define GROUP_extracted_t GROUP_extracted_m
#define GROUP_extracted_ta GROUP_extracted_ma

namespace qorm::movement {

// Single objects by pointers test their size first, but for vectors of 32f.
constexpr ChecksOnly formOfExtract(Kind kind, std::size_t elementSize, Layout layout) {
    const bool is32fVector = kind == Kind::v && elementSize == 4;
    if (layout == Layout::P && !isArray(kind) && !is32fVector) {
        return {{Check::size, Check::null, Check::shift}};
    }
    return {{Check::null, Check::size, Check::count, Check::shift, Check::stride}};
}

template <Kind kind>
struct Extracting {
    template <class Src, class T>
    qorStatus operator()(const Src& src, const Packed<T>& dst, Size width, Size height,
                         Count count = Count(1)) const {
        constexpr auto reading = isTransposed(kind) ? Reading::transposed : Reading::asStored;
        constexpr auto order =
            isByPositions<Src> && isArray(kind) ? Order::positions : Order::resultRows;
        moveObjects<reading>(asObjects(src), dst, {height.value, width.value}, count.value, order);
        return qorStatusOk;
    }
    template <class Src, class T>
    qorStatus operator()(const Src& src, const Packed<T>& dst, Size len,
                         Count count = Count(1)) const {
        return (*this)(src, dst, len, Size(1), count);
    }
};

} // namespace qorm::movement
