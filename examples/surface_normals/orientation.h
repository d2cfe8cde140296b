/** @file orientation.h  Consistent signs for the normals of a surface. */
#pragma once

#include "neighbourhoods.h"

#include <cstddef>
#include <vector>

/// Turns normals outward, following the surface from neighbour to neighbour. Returns the number of
/// connected components.
std::size_t orient(const std::vector<Vec3>& points, const Neighbours& near,
                   std::vector<Vec3>& normals);
