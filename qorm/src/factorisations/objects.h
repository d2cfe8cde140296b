// What the factorisations and their solvers share: how all objects of a call are done.
#pragma once

#include "frame/known_sizes.h"
#include "frame/loaded.h"
#include "frame/overlap.h"

namespace qorm::factorisations {

// Two registers where there is room: what waits for a root or a division in one overlaps with the
// other. The layouts in which loads and stores take the time have one, and so has a size of 8 in
// contiguous rows, which is long enough.
template <class Operand, class N, int registers = 2>
using LanesOf =
    Pack<std::remove_const_t<typename Operand::Element>,
         mayFillRegisters<Operand> && !(isFastest<Operand> && largestSize<N> == 8) ? registers : 1>;

// The most lanes that a block of these elements may have.
template <class T>
inline constexpr int mostLanes = laneCount<Pack<T, 2>>;

// work.operator()<V>(first, live) on all objects: arrays in lanes where guard() allows it, a single
// object, which needs no guard, by itself.
template <class V, bool isArray, class MakeGuard, class Work>
qorStatus onAllObjects(const MakeGuard& guard, std::ptrdiff_t count, const Work& work) {
    if constexpr (isArray)
        return inLanes<V>(guard(), count, work);
    else
        return work.template operator()<LaneType<V>>(0, 1);
}

// The arithmetic of a block, compiled into those of a constant size that whole registers are loaded
// for, and once for all others.
template <auto kernel, class... Arguments>
[[gnu::noinline, gnu::flatten]] auto runApart(Arguments&... arguments) {
    return kernel(arguments...);
}
template <auto kernel, class Operand, class... Arguments>
[[gnu::always_inline]] inline auto runFor(const Operand&, Arguments&... arguments) {
    constexpr bool knowsSize = (isFixed<std::remove_const_t<Arguments>> || ...);
    if constexpr (mayFillRegisters<Operand> && knowsSize)
        return kernel(arguments...);
    else
        return runApart<kernel>(arguments...);
}

// These paths load all of an object before they store any of it.
constexpr Sharing sharingOf(std::ptrdiff_t n, Sharing otherwise) {
    return isUnrolled(n) ? Sharing::any : otherwise;
}

// The guard of a factorisation: source and destination are matrices of the same size.
template <class Src, class Dst>
auto guardOf(Sharing sharing, const Src& src, const Dst& dst, Extent extent, std::ptrdiff_t count) {
    constexpr int lanes = mostLanes<typename Dst::Element>;
    auto guard = readAheadOf(sharing, src, extent, dst, extent, count, lanes);
    if (std::max(extent.rows, extent.columns) > mostLaneSize) guard.allowNever();
    return guard;
}

} // namespace qorm::factorisations
