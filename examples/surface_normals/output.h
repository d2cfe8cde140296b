/** @file output.h  The points with their normals as a file. */
#pragma once

#include "normals.h"

#include <string>
#include <vector>

/// An ascii PLY file of x y z nx ny nz variation; the numbers read back exactly. Throws
/// std::runtime_error if it can't be written.
void write_ply(const std::string& file, const std::vector<Vec3>& points, const Surface& surface);
