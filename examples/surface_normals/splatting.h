/** @file splatting.h  Points drawn as discs that merge into a smooth surface. */
#pragma once

#include "normals.h"

#include <cstddef>
#include <limits>
#include <vector>

/// A parallel projection into samples of a canvas: x to the right, y down, z towards the viewer.
struct Camera {
    Vec3 right, up, towards; ///< axes of the view
    Vec3 centre;             ///< what lies in the middle of the canvas
    double scale = 1.0;      ///< samples by unit of length
    double middle_x = 0.0;
    double middle_y = 0.0;

    /// A view from direction `towards` with all points on `width` x `height` samples; `fill` of the
    /// canvas is used.
    Camera(const std::vector<Vec3>& points, const Vec3& from, int width, int height, double fill);

    Vec3 turn(const Vec3& v) const { return {dot(right, v), dot(up, v), dot(towards, v)}; }
    Vec3 turn_back(const Vec3& v) const { return v.x * right + v.y * up + v.z * towards; }
    Vec3 project(const Vec3& point) const;
    Vec3 position(double x, double y, double depth) const;
};

/// Sums over the discs that meet in one place.
struct Sample {
    float weight = 0.0F;
    float variation = 0.0F;
    float nx = 0.0F, ny = 0.0F, nz = 0.0F; ///< normal, seen from the camera
};

struct Canvas {
    static constexpr float nowhere = -std::numeric_limits<float>::infinity();

    Canvas(int width_, int height_)
        : width(width_),
          height(height_),
          depths(index(0, height), nowhere),
          samples(depths.size()) {}

    std::size_t index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
               static_cast<std::size_t>(x);
    }
    /// The depth at a place that need not be on the canvas.
    float depth(double x, double y) const {
        const bool inside = x >= 0.0 && x < width && y >= 0.0 && y < height;
        return inside ? depths[index(static_cast<int>(x), static_cast<int>(y))] : nowhere;
    }

    int width;
    int height;
    std::vector<float> depths; ///< of the surface, or nowhere; apart, as shadows look at many
    std::vector<Sample> samples;
};

/// Draws each point as a disc across its normal, as wide as its neighbours are apart.
Canvas splat(const std::vector<Vec3>& points, const Surface& surface,
             const std::vector<double>& spacing, const Camera& camera, int width, int height);
