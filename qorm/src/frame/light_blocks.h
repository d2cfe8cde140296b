// Blocks of objects whose arithmetic is light: what a block has to find out of its operands is found
// out once for many.
#pragma once

#include "frame/loaded.h"
#include "frame/overlap.h"

namespace qorm {

// What it costs light arithmetic to go in lanes: nothing where objects are packed or lie side by side,
// so that whole registers are loaded or stored; in lists most, where blocks are tested for overlap.
template <class Operand>
int costOfLanes(const Operand& operand, std::ptrdiff_t rows, std::ptrdiff_t columns) {
    if (!Operand::holdsArray || operand.hasObjectsSideBySide() ||
        (operand.hasAdjacentRows(columns) && operand.hasAdjacentObjects(rows * columns)))
        return 0;
    return operand.isList() ? 2 : 1;
}

// The cost, over all operands, from which on an object after the other is done sooner.
inline constexpr int leastForScalars = 2;

// All objects in their order, by work.template operator()<T>(first, 1, count).
template <class T, class Work>
qorStatus inScalars(std::ptrdiff_t count, const Work& work) {
    work.template operator()<T>(0, 1, count);
    return qorStatusOk;
}

// inLanes() for work that cannot fail. Where operands are apart, all whole blocks are one call of
// work.template operator()<V>(first, live, blocks); others are single ones.
template <class V, class Guard, class Work>
qorStatus inManyLanes(bool apart, Guard guard, std::ptrdiff_t count, const Work& work) {
    constexpr std::ptrdiff_t lanes = laneCount<V>;
    const std::ptrdiff_t blocks = apart ? count / lanes : 0;
    if (blocks > 0) work.template operator()<V>(0, static_cast<int>(lanes), blocks);
    const std::ptrdiff_t done = blocks * lanes;
    for (std::ptrdiff_t first = done; first < count; first += lanes) {
        const int live = static_cast<int>(std::min(lanes, count - first));
        if (live > 1 && (apart || guard.allows(first, live))) {
            work.template operator()<V>(first, live, 1);
        } else {
            work.template operator()<LaneType<V>>(first, 1, live);
        }
    }
    return qorStatusOk;
}

// The vectors of a block, or a single one where X is a number, loaded in the code of the block.
template <class X, class Operand, class N>
[[gnu::always_inline]] inline LoadedVector<X, N> loadVectors(const Operand& operand,
                                                             std::ptrdiff_t first, int live, N n) {
    LoadedVector<X, N> vectors;
    const int liveLanes = laneCount<X> == 1 ? 1 : live;
    loadLanes(operand, first, liveLanes, Fixed<1>(), n, PackMatrix<X, N>{vectors.elements, n});
    return vectors;
}

// work(first, live) for each of so many blocks, with a constant number of live lanes in all but a
// single one.
template <class V, class Work>
[[gnu::always_inline]] inline void forEachBlock(std::ptrdiff_t first, int live,
                                                std::ptrdiff_t blocks, const Work& work) {
    constexpr int lanes = laneCount<V>;
    if (live < lanes) return work(first, live);
    for (std::ptrdiff_t block = 0; block < blocks; ++block) work(first + block * lanes, lanes);
}

} // namespace qorm
