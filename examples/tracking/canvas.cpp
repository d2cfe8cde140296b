#include "canvas.h"

#include <algorithm>
#include <cmath>

Canvas::Canvas(int width, int height)
    : image_{width, height, {}},
      stencil_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0.0),
      clip_(area()) {
    image_.rgb.assign(3 * stencil_.size(), 0xFF);
}

Rectangle Canvas::area() const {
    return {0.0, 0.0, static_cast<double>(image_.width), static_cast<double>(image_.height)};
}

/// Calls work(centre, covered) for the pixels inside both the area and the clip.
template <class Work>
void Canvas::for_pixels(const Rectangle& area, const Work& work) {
    const auto within = [](double value, double low, double high) {
        return static_cast<int>(std::lround(std::clamp(value, low, high)));
    };
    const int right = within(area.right, clip_.left, clip_.right);
    const int bottom = within(area.bottom, clip_.top, clip_.bottom);
    for (int y = within(area.top, clip_.top, clip_.bottom); y < bottom; ++y) {
        const auto row = static_cast<std::size_t>(y) * static_cast<std::size_t>(image_.width);
        for (int x = within(area.left, clip_.left, clip_.right); x < right; ++x) {
            work(Point{x + 0.5, y + 0.5}, stencil_[row + static_cast<std::size_t>(x)]);
        }
    }
}

void Canvas::curve(std::span<const Point> points, double width) {
    for (std::size_t i = 0; i < points.size(); ++i)
        line(points[i == 0 ? 0 : i - 1], points[i], width);
}

void Canvas::line(Point a, Point b, double width) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double square = dx * dx + dy * dy;
    if (!std::isfinite(square)) return; // nowhere to be seen
    const double reach = 0.5 * width + 0.5;
    const Rectangle area{std::min(a.x, b.x) - reach, std::min(a.y, b.y) - reach,
                         std::max(a.x, b.x) + reach, std::max(a.y, b.y) + reach};
    for_pixels(area, [&](Point p, double& covered) {
        const double along = (p.x - a.x) * dx + (p.y - a.y) * dy;
        const double t = square > 0.0 ? std::clamp(along / square, 0.0, 1.0) : 0.0;
        const double distance = std::hypot(p.x - a.x - t * dx, p.y - a.y - t * dy);
        covered = std::max(covered, std::min(reach - distance, 1.0));
    });
}

void Canvas::fill(const Rectangle& area) {
    for_pixels(area, [](Point, double& covered) { covered = 1.0; });
}

void Canvas::ink(unsigned color, double opacity) {
    for (std::size_t i = 0; i != stencil_.size(); ++i) {
        const double share = opacity * stencil_[i];
        if (share == 0.0) continue;
        for (std::size_t channel = 0; channel != 3; ++channel) {
            const double ink = (color >> (16 - 8 * channel)) & 0xFFU;
            std::uint8_t& value = image_.rgb[3 * i + channel];
            value = static_cast<std::uint8_t>(std::lround(value + share * (ink - value)));
        }
        stencil_[i] = 0.0;
    }
}
