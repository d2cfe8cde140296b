// What the factorisations and their solvers share: how all objects of a call are done.
#pragma once

#include "frame/loaded.h"
#include "frame/overlap.h"

namespace qorm::factorisations {

// Two registers where there is room: what waits for a root or a division in one overlaps with the
// other. A guard allows for two.
template <class T, int registers = 2>
using LanesOf = Pack<T, registers>;

// work.operator()<V>(first, live) on all objects: arrays in lanes where guard() allows it, a single
// object, which needs no guard, by itself.
template <class V, bool isArray, class MakeGuard, class Work>
qorStatus onAllObjects(const MakeGuard& guard, std::ptrdiff_t count, const Work& work) {
    if constexpr (isArray)
        return inLanes<V>(guard(), count, work);
    else
        return work.template operator()<LaneType<V>>(0, 1);
}

// The arithmetic of a block, compiled into blocks of contiguous rows by strides, which are the
// fastest, and once for all other layouts.
template <auto kernel, class... Arguments>
[[gnu::noinline, gnu::flatten]] auto runApart(Arguments&... arguments) {
    return kernel(arguments...);
}
template <auto kernel, class Operand, class... Arguments>
[[gnu::always_inline]] inline auto runFor(const Operand&, Arguments&... arguments) {
    if constexpr (Operand::layout == Layout::S && Operand::hasContiguousRows)
        return kernel(arguments...);
    else
        return runApart<kernel>(arguments...);
}

// These paths load all of an object before they store any of it.
constexpr Sharing sharingOf(std::ptrdiff_t n, Sharing otherwise) {
    return isUnrolled(n) ? Sharing::any : otherwise;
}

// Sizes that only lanes know are not known to one object.
template <class N>
constexpr auto sizeOfOne(N n) {
    if constexpr (hasOwnPath<N>)
        return n;
    else
        return std::ptrdiff_t{n};
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
