// How tests lay out operands, unless they have a reason of their own.
#pragma once

#include "harness/call.h"

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

} // namespace harness
