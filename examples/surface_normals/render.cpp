#include "render.h"

#include "splatting.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <tuple>
#include <utility>

namespace {

constexpr int supersampling = 3; ///< samples along each side of a pixel
constexpr int shadow_size = 512; ///< samples along each side of the view from the light
constexpr int taps = 6;          ///< looks at the surroundings of a sample

/// Linear light.
struct Color {
    double r = 0.0;
    double g = 0.0;
    double b = 0.0;
};

Color operator+(const Color& a, const Color& b) {
    return {a.r + b.r, a.g + b.g, a.b + b.b};
}
Color operator*(double s, const Color& a) {
    return {s * a.r, s * a.g, s * a.b};
}
Color operator*(const Color& a, const Color& b) {
    return {a.r * b.r, a.g * b.g, a.b * b.b};
}
Color mix(const Color& a, const Color& b, double t) {
    return (1.0 - t) * a + t * b;
}

/// A colour given as hexadecimal sRGB.
Color srgb(unsigned hex) {
    const auto channel = [&](unsigned shift) {
        const double s = ((hex >> shift) & 0xFFU) / 255.0;
        return s <= 0.04045 ? s / 12.92 : std::pow((s + 0.055) / 1.055, 2.4);
    };
    return {channel(16), channel(8), channel(0)};
}

std::uint8_t to_srgb(double linear) {
    const double s = std::clamp(linear, 0.0, 1.0);
    const double encoded = s <= 0.0031308 ? 12.92 * s : 1.055 * std::pow(s, 1.0 / 2.4) - 0.055;
    return static_cast<std::uint8_t>(std::lround(255.0 * encoded));
}

/// Colours of evenly falling lightness ("magma" without its ends), from sand (0) to violet (1).
Color color_of(double t) {
    static const std::array<Color, 7> stops = {srgb(0xFDE2A3), srgb(0xFEBA80), srgb(0xFC8961),
                                               srgb(0xE75263), srgb(0xB73779), srgb(0x832681),
                                               srgb(0x51127C)};
    const double place = std::clamp(t, 0.0, 1.0) * (stops.size() - 1);
    const auto below = std::min(static_cast<std::size_t>(place), stops.size() - 2);
    return mix(stops[below], stops[below + 1], place - static_cast<double>(below));
}

/// Offsets scattered over the unit disc, turned by an angle that differs from sample to sample.
std::array<std::pair<double, double>, taps> scatter(int x, int y) {
    static const auto spiral = [] {
        constexpr double golden_angle = 2.399963;
        std::array<std::pair<double, double>, taps> offsets;
        for (std::size_t i = 0; i != offsets.size(); ++i) {
            const auto n = static_cast<double>(i);
            const double radius = std::sqrt((n + 0.5) / taps);
            offsets[i] = {radius * std::cos(golden_angle * n), radius * std::sin(golden_angle * n)};
        }
        return offsets;
    }();
    const double noise = 52.9829189 * std::fmod(0.06711056 * x + 0.00583715 * y, 1.0);
    const double c = std::cos(2.0 * std::numbers::pi * noise);
    const double s = std::sin(2.0 * std::numbers::pi * noise);
    auto turned = spiral;
    for (auto& [u, v] : turned) std::tie(u, v) = std::pair(c * u - s * v, s * u + c * v);
    return turned;
}

struct Scene {
    Camera camera;
    Canvas view;
    Camera light; ///< where the light sees what it reaches
    Canvas light_view;
    double floor;     ///< height of the lowest point
    double strongest; ///< the variation that takes the last colour

    /// Share of the light that reaches `point`, for shadows with edges as wide as `blur`.
    double lit(const Vec3& point, double blur, int x, int y) const {
        const Vec3 p = light.project(point);
        const double radius = blur * shadow_size;
        int reached = 0;
        for (const auto& [u, v] : scatter(x, y)) {
            if (light_view.depth(p.x + radius * u, p.y + radius * v) < p.z + 2.0) ++reached;
        }
        return static_cast<double>(reached) / taps;
    }

    /// Share of the sky that the surroundings leave open to a sample.
    double open(double depth, const Vec3& normal, int x, int y) const {
        const double radius = 0.07 * view.height;
        double hidden = 0.0;
        for (const auto& [u, v] : scatter(x, y)) {
            const float other = view.depth(x + radius * u, y + radius * v);
            if (other == Canvas::nowhere) continue;
            const Vec3 to{radius * u, -radius * v, other - depth};
            const double length = std::sqrt(dot(to, to)) + 1.0;
            const double nearness = radius * std::hypot(u, v) / length;
            hidden += nearness * std::max(0.0, dot(to, normal) / length - 0.1) / taps;
        }
        const double left = std::max(0.0, 1.0 - 2.0 * hidden);
        return left * std::sqrt(left);
    }

    Color surface(const Sample& sample, double depth, int x, int y) const {
        const Vec3 normal = normalized({sample.nx, sample.ny, sample.nz});
        const Vec3 to_light = camera.turn(light.towards);
        const Vec3 halfway = normalized(to_light + Vec3{0.0, 0.0, 1.0});
        // A little above the surface, which else would shadow itself.
        const Vec3 above = camera.position(x, y, depth) +
                           (0.02 * shadow_size / light.scale) * camera.turn_back(normal);
        const double upward = 0.5 + 0.5 * normal.y;
        const double key = std::max(0.0, dot(normal, to_light)) * lit(above, 0.015, x, y);
        const double sky = upward * open(depth, normal, x, y);
        const double gloss = key * std::pow(std::max(0.0, dot(normal, halfway)), 40.0);
        const double grazing = 1.0 - normal.z;
        const double rim = upward * grazing * grazing * grazing;

        const Color matt = 0.85 * key * Color{1.0, 0.96, 0.88} +
                           0.55 * sky * Color{0.92, 0.93, 1.0} + Color{0.05, 0.045, 0.04};
        return color_of(std::sqrt(sample.variation / sample.weight / strongest)) * matt +
               0.10 * gloss * Color{1.0, 1.0, 1.0} + 0.25 * rim * Color{0.35, 0.45, 0.6};
    }

    /// The floor and a backdrop in one, brightest in the middle, with the shadow on the floor.
    Color backdrop(int x, int y) const {
        static const Color middle = srgb(0x4A5666);
        static const Color corner = srgb(0x1B2028);
        const double u = (x - camera.middle_x) / view.width;
        const double v = (y - camera.middle_y) / view.height;
        const Vec3 eye = camera.position(x, y, 0.0);
        const Vec3 point = eye - ((eye.y - floor) / camera.towards.y) * camera.towards;
        const double light_left = 0.35 + 0.65 * lit(point, 0.06, x, y);
        return light_left * mix(corner, middle, std::exp(-3.0 * (u * u + v * v)));
    }

    Color pixel(int x, int y) const {
        Color sum;
        for (int sy = supersampling * y; sy != supersampling * (y + 1); ++sy) {
            for (int sx = supersampling * x; sx != supersampling * (x + 1); ++sx) {
                const std::size_t i = view.index(sx, sy);
                const float depth = view.depths[i];
                sum = sum + (depth == Canvas::nowhere ? backdrop(sx, sy)
                                                      : surface(view.samples[i], depth, sx, sy));
            }
        }
        return (1.0 / (supersampling * supersampling)) * sum;
    }
};

/// The scale of colours ends where a few sharp places are left, but never amid rounding errors.
double strongest_of(std::vector<double> variation) {
    const auto rank = static_cast<std::ptrdiff_t>(0.985 * static_cast<double>(variation.size()));
    std::nth_element(variation.begin(), variation.begin() + rank, variation.end());
    return std::max(variation[static_cast<std::size_t>(rank)], 1e-3);
}

} // namespace

Image render(const std::vector<Vec3>& points, const Surface& surface,
             const std::vector<double>& spacing, int width, int height) {
    const int view_width = supersampling * width;
    const int view_height = supersampling * height;
    const Camera camera(points, {0.35, 0.30, 1.0}, view_width, view_height, 0.86);
    const Camera light(points, {-0.5, 1.2, 0.55}, shadow_size, shadow_size, 0.96);
    const auto lowest = std::min_element(points.begin(), points.end(),
                                         [](const Vec3& a, const Vec3& b) { return a.y < b.y; });
    const Scene scene{camera,    splat(points, surface, spacing, camera, view_width, view_height),
                      light,     splat(points, surface, spacing, light, shadow_size, shadow_size),
                      lowest->y, strongest_of(surface.variation)};

    const auto row = 3 * static_cast<std::size_t>(width);
    Image image{width, height, std::vector<std::uint8_t>(row * static_cast<std::size_t>(height))};
#pragma omp parallel for schedule(dynamic, 8)
    for (int y = 0; y < height; ++y) {
        std::uint8_t* out = &image.rgb[row * static_cast<std::size_t>(y)];
        for (int x = 0; x < width; ++x) {
            const Color color = scene.pixel(x, y);
            for (const double channel : {color.r, color.g, color.b}) *out++ = to_srgb(channel);
        }
    }
    return image;
}
