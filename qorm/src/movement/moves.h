// All moves that compute nothing: dst(i,j) = src(i,j) or src(j,i), between any two layouts. Elements
// go by themselves, in the order of the contract, unless it cannot show.
#pragma once

#include "frame/light_blocks.h"
#include "movement/in_order.h"
#include "movement/runs.h"

namespace qorm::movement {

// Between objects that lie side by side: all objects of a position are one run.
template <Reading reading, class Src, class Dst>
bool movePositions(const Src& src, const Dst& dst, const Extent& result, std::ptrdiff_t count) {
    const auto from = objectAsRead<reading>(src, 0, result);
    const auto to = dst.object(0, result.columns);
    const std::ptrdiff_t mostPairs = pairsWorthComparing(result, count);
    if (!positionsAreIndependent(to, count, to, result.columns, result.rows, count, mostPairs) ||
        !positionsAreApart(from, result.rows, result.columns, count, to, result.rows,
                           result.columns, count, mostPairs)) {
        return false;
    }
    for (std::ptrdiff_t i = 0; i < result.rows; ++i) {
        for (std::ptrdiff_t j = 0; j < result.columns; ++j) {
            moveRun(from(i, j).address(), to(i, j).address(), count);
        }
    }
    return true;
}

// work(rows, columns) of the result, with constants for vectors of 3 to 6 elements, such squares and
// those of 8.
template <class Src, class Dst, class Work>
void withKnownExtent(const Extent& result, const Work& work) {
    if constexpr (holdsVectors<Src> || holdsVectors<Dst>) {
        withStaticSize(result.columns, [&](auto columns) { work(Fixed<1>(), columns); });
    } else {
        const bool isEight = result.columns == 8 && result.rows == 8;
        if (isEight) return work(Fixed<8>(), Fixed<8>());
        withStaticSquare(result.columns, result.rows,
                         [&](auto columns, auto rows) { work(rows, columns); });
    }
}

// A block of packs with its indices exchanged.
template <class V, class Rows, class Columns>
[[gnu::always_inline]] inline void transposeBlock(const V* block, Rows rows, Columns columns,
                                                  V* transposed) {
    for (std::ptrdiff_t i = 0; i < rows; ++i) {
        for (std::ptrdiff_t j = 0; j < columns; ++j) {
            transposed[i * columns + j] = block[j * rows + i];
        }
    }
}

template <Reading reading, class V, class Src, class Dst, class Rows, class Columns>
[[gnu::always_inline]] inline void moveBlock(const Src& src, const Dst& dst, std::ptrdiff_t first,
                                             int live, Rows rows, Columns columns) {
    constexpr std::ptrdiff_t most = largestSize<Rows> * largestSize<Columns>;
    V elements[most];
    const PackMatrix<V, Columns> result = {elements, columns};
    if constexpr (reading == Reading::asStored) {
        loadLanes(src, first, live, rows, columns, result);
    } else {
        V stored[most];
        loadLanes(src, first, live, columns, rows, PackMatrix<V, Rows>{stored, rows});
        transposeBlock(stored, rows, columns, elements);
    }
    storeLanes(dst, first, live, rows, columns, result);
}

template <Reading reading, class V, class Src, class Dst, class Rows, class Columns>
void moveBlocks(const Src src, const Dst dst, std::ptrdiff_t first, int live, std::ptrdiff_t blocks,
                Rows rows, Columns columns) {
    const auto move = [&](std::ptrdiff_t object, int liveLanes) __attribute__((always_inline)) {
        if constexpr (laneCount<V> == 1) {
            const Extent result = {rows, columns};
            moveObjectInOrder(objectAsRead<reading>(src, object, result),
                              dst.object(object, columns), result, false);
        } else {
            moveBlock<reading, V>(src, dst, object, liveLanes, rows, columns);
        }
    };
    forEachBlock<V>(first, live, blocks, move);
}

// Between objects side by side and contiguous rows: blocks of objects are transposed in registers.
template <Reading reading, class Src, class Dst>
bool moveInBlocks(const Src& src, const Dst& dst, const Extent& result, std::ptrdiff_t count,
                  Order order) {
    if (std::max(result.rows, result.columns) > mostLaneSize) return false;
    const Extent stored =
        reading == Reading::transposed ? Extent{result.columns, result.rows} : result;
    using V = Pack<typename Dst::Element>;
    constexpr int lanes = laneCount<V>;
    // A block of few objects takes longer than they do one by one.
    if (2 * count < lanes || !hasDistinctElements(dst, result.rows, result.columns, lanes))
        return false;
    const auto guard = readAheadOf(Sharing::none, src, stored, dst, result, count, lanes);
    const bool apart = areApart(spansOf(src, stored.rows, stored.columns),
                                spansOf(dst, result.rows, result.columns), count);
    if (!apart && order == Order::positions) return false;
    withKnownExtent<Src, Dst>(result, [&](auto rows, auto columns) {
        inManyLanes<V>(apart, guard, count,
                       [&]<class X>(std::ptrdiff_t first, int live, std::ptrdiff_t blocks) {
                           moveBlocks<reading, X>(src, dst, first, live, blocks, rows, columns);
                       });
    });
    return true;
}

template <class Operand>
inline constexpr bool isByPositions = Operand::layout == Layout::P;

// `result` is the extent of the destination's objects.
template <Reading reading, class Src, class Dst>
void moveObjects(const Src& src, const Dst& dst, const Extent& result, std::ptrdiff_t count,
                 Order order = Order::resultRows) {
    if constexpr (isByPositions<Src> && isByPositions<Dst> && Dst::holdsArray) {
        constexpr std::ptrdiff_t leastForRuns = 8;
        if (count >= leastForRuns && src.hasObjectsSideBySide() && dst.hasObjectsSideBySide() &&
            movePositions<reading>(src, dst, result, count)) {
            return;
        }
    } else if constexpr (Src::hasContiguousRows && Dst::hasContiguousRows) {
        if (hasDistinctElements(dst, result.rows, result.columns, 1)) {
            const Extent stored =
                reading == Reading::transposed ? Extent{result.columns, result.rows} : result;
            if (areApart(spansOf(src, stored.rows, stored.columns),
                         spansOf(dst, result.rows, result.columns), count)) {
                return moveRegularRuns<reading>(src, dst, result, count);
            }
            return moveObjectRuns<reading>(src, dst, result, count);
        }
    } else if constexpr (Src::hasContiguousRows || Dst::hasContiguousRows) {
        if (count > 1 && (src.hasObjectsSideBySide() || dst.hasObjectsSideBySide()) &&
            moveInBlocks<reading>(src, dst, result, count, order)) {
            return;
        }
    }
    moveInOrder<reading>(src, dst, result, count, order);
}

} // namespace qorm::movement
