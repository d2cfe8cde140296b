/** @file render.h  A picture of a surface given by points and normals. */
#pragma once

#include "normals.h"

#include "common/image.h"

#include <vector>

/// Draws the surface as it stands on a floor, y up, seen from the front (positive z) and lit from
/// above, coloured by surface variation from sand (flat) to violet (sharp).
Image render(const std::vector<Vec3>& points, const Surface& surface,
             const std::vector<double>& spacing, int width, int height);
