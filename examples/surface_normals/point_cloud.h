/** @file point_cloud.h  Reading points from OBJ, PLY and XYZ files. */
#pragma once

#include "vec3.h"

#include <string>
#include <string_view>
#include <vector>

/// The points of a file, told apart by its ending: .obj, .ply, anything else is XYZ. Throws
/// InputError if it cannot be read, is faulty, or holds no points.
std::vector<Vec3> read_points(const std::string& file);

/// The vertices of a PLY file, in ascii or binary of either byte order.
std::vector<Vec3> parse_ply(std::string_view content, const std::string& file);
