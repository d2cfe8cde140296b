/** @file output.h  The files that the program writes. Throws std::runtime_error if it can't. */
#pragma once

#include "normals.h"
#include "render.h"

#include <string>
#include <vector>

/// An ascii PLY file of x y z nx ny nz variation; the numbers read back exactly.
void write_ply(const std::string& file, const std::vector<Vec3>& points, const Surface& surface);

void write_png(const std::string& file, const Image& image);
