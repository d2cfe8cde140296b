// Identity matrices, which may be rectangular.
#pragma once

#include "frame/entry.h"
#include "movement/moves.h"

// name, type, layout
#define QORM_IDENTITY(name, type, layout) \
    QORM_ENTRY( \
        name, (qorm::movement::formOfIdentity(sizeof(QORM_TYPE_##type), qorm::Layout::layout)), \
        qorm::movement::LoadingIdentity(), QORM_IDENTITY_ARGUMENTS, QORM_TYPE_##type, layout)

#define QORM_IDENTITY_ARGUMENTS(PART, T, layout) \
    PART##_ma_##layout(T, Dst, dst), PART##_width_height_ma

namespace qorm::movement {

constexpr ChecksOnly formOfIdentity(std::size_t elementSize, Layout layout) {
    if (layout == Layout::P && elementSize == 4) {
        return {{Check::null, Check::size, Check::shift, Check::count, Check::strideOfMany}};
    }
    return {{Check::null, Check::size, Check::count, Check::innerStride, Check::shift,
             Check::strideOfMany}};
}

// Row by row, first zeros, then the one.
template <class Matrix>
void loadIdentity(const Matrix& matrix, const Extent& extent) {
    for (std::ptrdiff_t i = 0; i < extent.rows; ++i) {
        for (std::ptrdiff_t j = 0; j < extent.columns; ++j) matrix(i, j) = 0;
        if (i < extent.columns) matrix(i, i) = 1;
    }
}

// Objects side by side: all of a position are one run.
template <class Dst>
bool loadIdentityByPositions(const Dst& dst, const Extent& extent, std::ptrdiff_t count) {
    const auto matrix = dst.object(0, extent.columns);
    if (!positionsAreIndependent(matrix, count, matrix, extent.columns, extent.rows, count,
                                 pairsWorthComparing(extent, count))) {
        return false;
    }
    for (std::ptrdiff_t i = 0; i < extent.rows; ++i) {
        for (std::ptrdiff_t j = 0; j < extent.columns; ++j) {
            const Run<typename Dst::Element> position = {matrix(i, j).address()};
            for (std::ptrdiff_t n = 0; n < count; ++n) position(n) = i == j ? 1 : 0;
        }
    }
    return true;
}

// Gap-free objects repeat the first one, in runs that stay in the nearest cache.
template <class T>
void repeatFirst(T* objects, std::ptrdiff_t elements, std::ptrdiff_t count) {
    const std::ptrdiff_t mostObjects = 2048 / elements + 1;
    for (std::ptrdiff_t done = 1; done < count;) {
        const std::ptrdiff_t next = std::min({done, mostObjects, count - done});
        moveRun<T>(objects, objects + done * elements, next * elements);
        done += next;
    }
}

struct LoadingIdentity {
    template <class Dst>
    qorStatus operator()(const Dst& dst, Size width, Size height, Count countOf) const {
        const Extent extent = {height.value, width.value};
        const std::ptrdiff_t count = countOf.value;
        if constexpr (Dst::hasContiguousRows) {
            if (count > 1 && hasDistinctElements(dst, extent.rows, extent.columns, 1) &&
                loadEqualObjects(dst, extent, count)) {
                return qorStatusOk;
            }
        } else if (count > 1 && dst.hasObjectsSideBySide() &&
                   loadIdentityByPositions(dst, extent, count)) {
            return qorStatusOk;
        }
        for (std::ptrdiff_t n = 0; n < count; ++n) {
            loadIdentity(dst.object(n, extent.columns), extent);
        }
        return qorStatusOk;
    }

private:
    // Contiguous rows are copies of one identity, unless it is large.
    template <class Dst>
    static bool loadEqualObjects(const Dst& dst, const Extent& extent, std::ptrdiff_t count) {
        using T = typename Dst::Element;
        constexpr std::ptrdiff_t mostElements = mostLaneSize * mostLaneSize;
        const std::ptrdiff_t elements = extent.rows * extent.columns;
        if (dst.hasAdjacentRows(extent.columns) && dst.hasAdjacentObjects(elements)) {
            const auto first = dst.object(0, extent.columns);
            loadIdentity(first, extent);
            repeatFirst(first.base, elements, count);
            return true;
        }
        if (elements > mostElements) return false;
        T identity[mostElements];
        const std::ptrdiff_t stride1 = extent.columns * std::ptrdiff_t{sizeof(T)};
        loadIdentity(StridedMatrix<T, true>{identity, stride1, sizeof(T)}, extent);
        const Strided<const T, Kind::m, true> src(identity, 0, static_cast<std::int32_t>(stride1),
                                                  sizeof(T));
        moveObjects<Reading::asStored>(src, dst, extent, count);
        return true;
    }
};

} // namespace qorm::movement
