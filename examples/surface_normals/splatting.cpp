#include "splatting.h"

#include <algorithm>
#include <cmath>

Camera::Camera(const std::vector<Vec3>& points, const Vec3& from, int width, int height,
               double fill)
    : towards(normalized(from)), middle_x(0.5 * width), middle_y(0.5 * height) {
    right = normalized(cross({0.0, 1.0, 0.0}, towards));
    up = cross(towards, right);
    Vec3 low = turn(points.front());
    Vec3 high = low;
    for (const Vec3& point : points) {
        const Vec3 p = turn(point);
        low = {std::min(low.x, p.x), std::min(low.y, p.y), std::min(low.z, p.z)};
        high = {std::max(high.x, p.x), std::max(high.y, p.y), std::max(high.z, p.z)};
    }
    const Vec3 middle = 0.5 * (low + high);
    centre = turn_back(middle);
    const Vec3 size = high - low;
    const double fitting =
        fill * std::min({width / size.x, height / size.y, (width + height) / size.z});
    if (std::isfinite(fitting)) scale = fitting;
}

Vec3 Camera::project(const Vec3& point) const {
    const Vec3 v = scale * turn(point - centre);
    return {middle_x + v.x, middle_y - v.y, v.z};
}

Vec3 Camera::position(double x, double y, double depth) const {
    return centre + turn_back((1.0 / scale) * Vec3{x - middle_x, middle_y - y, depth});
}

namespace {

/// A disc as the camera sees it, in samples.
struct Disc {
    Vec3 centre;
    Vec3 normal;
    double radius;
    double variation;
};

/// Discs seen from the side keep this tilt, so that they cover something.
constexpr double least_tilt = 0.15;

Vec3 facing_camera(const Vec3& normal) {
    const bool from_behind = normal.z < -0.5; // else it looks just over the silhouette
    const Vec3 n = from_behind ? -1.0 * normal : normal;
    return normalized({n.x, n.y, std::max(std::abs(n.z), least_tilt)});
}

std::vector<Disc> discs_of(const std::vector<Vec3>& points, const Surface& surface,
                           const std::vector<double>& spacing, const Camera& camera) {
    std::vector<double> sorted = spacing;
    const auto median = sorted.begin() + static_cast<std::ptrdiff_t>(sorted.size() / 2);
    std::nth_element(sorted.begin(), median, sorted.end());
    // Stray points stay small, few points don't hide each other, and points in one place are seen.
    const double widest = std::min(4.0 * camera.scale * *median, 0.2 * camera.middle_y);
    const double least = *median > 0.0 ? 4.0 : 0.05 * camera.middle_y;
    std::vector<Disc> discs;
    discs.reserve(points.size());
    for (std::size_t i = 0; i != points.size(); ++i) {
        discs.push_back({camera.project(points[i]), facing_camera(camera.turn(surface.normals[i])),
                         std::max(std::min(camera.scale * spacing[i], widest), least),
                         surface.variation[i]});
    }
    return discs;
}

/// Calls visit(index, depth, square) for the samples in rows [top, bottom) that lie within `radius`
/// of the disc's centre; `square` is that of the distance by the radius.
template <class Visit>
void cover(const Canvas& canvas, const Disc& disc, double radius, int top, int bottom,
           Visit&& visit) {
    const Vec3& c = disc.centre;
    const int y0 = std::max(top, static_cast<int>(std::ceil(c.y - radius)));
    const int y1 = std::min(bottom - 1, static_cast<int>(std::floor(c.y + radius)));
    const int x0 = std::max(0, static_cast<int>(std::ceil(c.x - radius)));
    const int x1 = std::min(canvas.width - 1, static_cast<int>(std::floor(c.x + radius)));
    for (int y = y0; y <= y1; ++y) {
        for (int x = x0; x <= x1; ++x) {
            const double dx = x - c.x;
            const double dy = c.y - y;
            const double dz = -(disc.normal.x * dx + disc.normal.y * dy) / disc.normal.z;
            const double square = (dx * dx + dy * dy + dz * dz) / (radius * radius);
            if (square <= 1.0) visit(canvas.index(x, y), c.z + dz, square);
        }
    }
}

} // namespace

Canvas splat(const std::vector<Vec3>& points, const Surface& surface,
             const std::vector<double>& spacing, const Camera& camera, int width, int height) {
    const std::vector<Disc> discs = discs_of(points, surface, spacing, camera);
    Canvas canvas(width, height);
    constexpr int band = 64; // rows that one thread draws
#pragma omp parallel for schedule(dynamic)
    for (int top = 0; top < height; top += band) {
        const int bottom = std::min(top + band, height);
        // First how near the surface is, then the mean of the discs that are about as near.
        for (const Disc& disc : discs) {
            const auto approach = [&](std::size_t i, double depth, double /*square*/) {
                canvas.depths[i] = std::max(canvas.depths[i], static_cast<float>(depth));
            };
            cover(canvas, disc, disc.radius, top, bottom, approach);
        }
        for (const Disc& disc : discs) {
            const auto blend = [&](std::size_t i, double depth, double square) {
                const float nearest = canvas.depths[i];
                if (nearest == Canvas::nowhere || depth < nearest - disc.radius) return;
                const auto inward = static_cast<float>(1.0 - square);
                const float weight = inward * inward * inward;
                Sample& sample = canvas.samples[i];
                sample.weight += weight;
                sample.variation += weight * static_cast<float>(disc.variation);
                sample.nx += weight * static_cast<float>(disc.normal.x);
                sample.ny += weight * static_cast<float>(disc.normal.y);
                sample.nz += weight * static_cast<float>(disc.normal.z);
            };
            cover(canvas, disc, 1.8 * disc.radius, top, bottom, blend);
        }
    }
    return canvas;
}
