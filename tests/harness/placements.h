// How tests lay out operands, unless they have a reason of their own.
#pragma once

#include "harness/call.h"
#include "harness/inputs.h"

namespace harness {

inline const Placement packed = {.name = "packed"};
inline const Placement elementsApart = {
    .name = "elements apart", .elementGap = 1, .rowGap = 1, .objectGap = 1, .shift = 1};
inline const Placement sideBySide = {.name = "objects side by side",
                                     .order = Placement::byPosition};
inline const Placement scattered = {
    .name = "scattered", .elementGap = 1, .objectGap = 3, .scattered = true, .shift = 7};

// The placements that every family takes, and some more.
inline std::vector<Placement> usualPlacementsAnd(std::vector<Placement> more) {
    std::vector<Placement> placements = {
        packed,
        elementsApart,
        sideBySide,
        scattered,
        {.name = "packed behind a guard page", .atFront = true},
        {.name = "rows apart", .rowGap = 3, .shift = 5},
        {.name = "objects apart", .objectGap = 2},
        {.name = "misaligned", .misalignment = 1},
        {.name = "by columns", .order = Placement::byColumns, .shift = 2},
        {.name = "objects side by side, scattered, misaligned",
         .order = Placement::byPosition,
         .rowGap = 1,
         .scattered = true,
         .shift = 3,
         .misalignment = 2},
        {.name = "interleaved elements", .sharing = Placement::interleavedElements},
        {.name = "interleaved elements, objects side by side",
         .order = Placement::byPosition,
         .sharing = Placement::interleavedElements},
        {.name = "interleaved objects", .shift = 1, .sharing = Placement::interleavedObjects},
    };
    placements.insert(placements.end(), more.begin(), more.end());
    return placements;
}

inline Placement anyPlacement(bool contiguousRows, Random& random) {
    const auto sometimes = [&](int most) { return std::max(0, integer(random, -most, most)); };
    const int order = contiguousRows ? Placement::byRows : integer(random, 0, 3);
    Placement placement = {.name = contiguousRows ? "rows without gaps" : "anywhere",
                           .order = static_cast<Placement::Order>(order),
                           .scattered = integer(random, 0, 1) == 0,
                           .shift = sometimes(9),
                           .misalignment = sometimes(24),
                           .atFront = integer(random, 0, 1) == 0};
    if (!contiguousRows && integer(random, 0, 5) == 0) { // gaps would part the elements
        placement.sharing = Placement::interleavedElements;
        return placement;
    }
    const bool hasObjectsOutermost = order == Placement::byRows || order == Placement::byColumns;
    if (hasObjectsOutermost && integer(random, 0, 3) == 0) {
        placement.sharing = Placement::interleavedObjects;
    } else if (!contiguousRows) {
        placement.resultOrder = static_cast<Placement::Order>(integer(random, 0, 3));
    }
    placement.elementGap = contiguousRows ? 0 : sometimes(2);
    placement.rowGap = sometimes(3);
    placement.objectGap = sometimes(5);
    placement.gapsOnlyIn = integer(random, -2, 2);
    return placement;
}

// Offsets beyond 2³¹ bytes.
inline std::vector<Placement> farPlacements(int elementSize) {
    const int far = (1 << 30) / elementSize;
    return {
        {.name = "objects far apart", .objectGap = far, .shift = far},
        {.name = "rows far apart", .order = Placement::byPosition, .rowGap = far},
        {.name = "elements far apart", .order = Placement::byPositionInColumns, .elementGap = far}};
}

} // namespace harness
