// Copies of arrays between any two of the three layouts.
#pragma once

#include "frame/entry.h"
#include "movement/moves.h"

// name, the kind of the objects, type, layouts of source and destination
#define QORM_COPY(name, kind, type, from, to) \
    QORM_ENTRY(name, \
               (qorm::movement::formOfCopy(qorm::Kind::kind, sizeof(QORM_TYPE_##type), \
                                           qorm::Layout::from, qorm::Layout::to)), \
               qorm::movement::Copying<qorm::Kind::kind>(), QORM_COPY_ARGUMENTS, QORM_TYPE_##type, \
               kind, from, to)

#define QORM_COPY_ARGUMENTS(PART, T, kind, from, to) \
    PART##_##kind##_##from(const T, Src, src), PART##_##kind##_##to(T, Dst, dst), \
        PART##_sizes_##kind

#define PARAM_sizes_ma PARAM_width_height_ma
#define PARAM_sizes_va PARAM_len_va
#define GROUP_sizes_ma GROUP_width_height_ma
#define GROUP_sizes_va GROUP_len_va

namespace qorm::movement {

// Vectors of 32f test their shifts first on the way from adjacent elements to scattered ones.
constexpr ChecksOnly formOfCopy(Kind kind, std::size_t elementSize, Layout from, Layout to) {
    if (isVector(kind) && elementSize == 4 && from != Layout::P && to == Layout::P) {
        return {{Check::null, Check::size, Check::count, Check::shift, Check::innerStride,
                 Check::strideOfMany}};
    }
    return {{Check::null, Check::size, Check::count, Check::innerStride, Check::shift,
             Check::strideOfMany}};
}

template <Kind kind>
struct Copying {
    template <class Src, class Dst>
    qorStatus operator()(const Src& src, const Dst& dst, Size width, Size height,
                         Count count) const {
        moveObjects<Reading::asStored>(asObjects(src), asObjects(dst), {height.value, width.value},
                                       count.value);
        return qorStatusOk;
    }
    template <class Src, class Dst>
    qorStatus operator()(const Src& src, const Dst& dst, Size len, Count count) const {
        return (*this)(src, dst, len, Size(1), count);
    }
};

} // namespace qorm::movement
