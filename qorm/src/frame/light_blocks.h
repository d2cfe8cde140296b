// Blocks of objects whose arithmetic is light: what a block has to find out of its operands is found
// out once for many.
#pragma once

#include "frame/loaded.h"
#include "frame/overlap.h"

namespace qorm {

// Whether `count` objects of a source surely lie where none of the destination's does. Lists are not
// looked through.
template <class Reads, class Writes>
bool areSurelyApart(const Reads& reads, const Writes& writes, std::ptrdiff_t count) {
    if constexpr (std::is_same_v<Reads, RegularSpans> && std::is_same_v<Writes, RegularSpans>)
        return areApart(reads, writes, count);
    else
        return false;
}

// inLanes() for work that cannot fail. Where operands are apart, all whole blocks are one call of
// work.template operator()<V>(first, live, blocks); others are single ones.
template <class V, class Guard, class Work>
qorStatus inManyLanes(bool apart, const Guard& guard, std::ptrdiff_t count, const Work& work) {
    constexpr std::ptrdiff_t lanes = laneCount<V>;
    const std::ptrdiff_t blocks = apart ? count / lanes : 0;
    if (blocks > 0) work.template operator()<V>(0, static_cast<int>(lanes), blocks);
    const std::ptrdiff_t done = blocks * lanes;
    for (std::ptrdiff_t first = done; first < count; first += lanes) {
        const int live = static_cast<int>(std::min(lanes, count - first));
        if (live > 1 && (apart || guard.allows(first, live))) {
            work.template operator()<V>(first, live, 1);
        } else {
            for (int k = 0; k < live; ++k) {
                work.template operator()<LaneType<V>>(first + k, 1, 1);
            }
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
