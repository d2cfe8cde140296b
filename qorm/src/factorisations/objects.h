// What the factorisations and their solvers share: how all objects of a call are done.
#pragma once

#include "frame/lane_blocks.h"
#include "frame/overlap.h"
#include "frame/static_size.h"

namespace qorm::factorisations {

// Two registers where there is room: what waits for a root or a division in one overlaps with the
// other. A guard allows for two.
template <class T, int registers = 2>
using LanesOf = Pack<T, registers>;

// Room for the elements of a square of N, or of a column.
template <class N>
inline constexpr std::ptrdiff_t areaOf = largestSize<N>* largestSize<N>;

// work.operator()<V>(first, live) on all objects: arrays in lanes where guard() allows it, a single
// object, which needs no guard, by itself.
template <class V, bool isArray, class MakeGuard, class Work>
qorStatus onAllObjects(const MakeGuard& guard, std::ptrdiff_t count, const Work& work) {
    if constexpr (isArray)
        return inLanes<V>(guard(), count, work);
    else
        return work.template operator()<LaneType<V>>(0, 1);
}

// Sizes that have a path of their own.
constexpr bool isUnrolled(std::ptrdiff_t n) {
    return n >= 3 && n <= 6;
}

// These paths load all of an object before they store any of it.
constexpr Sharing sharingOf(std::ptrdiff_t n, Sharing otherwise) {
    return isUnrolled(n) ? Sharing::any : otherwise;
}

// The guard of a factorisation: source and destination are matrices of the same size.
template <class Src, class Dst>
auto guardOf(Sharing sharing, const Src& src, const Dst& dst, Extent extent, std::ptrdiff_t count) {
    constexpr int lanes = laneCount<LanesOf<typename Dst::Element>>;
    auto guard = readAheadOf(sharing, src, extent, dst, extent, count, lanes);
    if (std::max(extent.rows, extent.columns) > mostLaneSize) guard.allowNever();
    return guard;
}

} // namespace qorm::factorisations
