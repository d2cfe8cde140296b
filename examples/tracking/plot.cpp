#include "plot.h"

#include "lettering.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <limits>
#include <string>

namespace {

constexpr unsigned background_color = 0xF6F7F9;
constexpr unsigned grid_color = 0xDFE3E8;
constexpr unsigned text_color = 0x3B4450;
constexpr unsigned measured_color = 0x93ADD2;
constexpr unsigned estimated_color = 0xE8590C;
constexpr unsigned truth_color = 0x1D2733;

struct Range {
    double low = std::numeric_limits<double>::infinity();
    double high = -std::numeric_limits<double>::infinity();

    double length() const { return high - low; }
    void include(double value) {
        low = std::min(low, value);
        high = std::max(high, value);
    }
    /// A range of another length with the same middle.
    Range around(double other) const {
        const double middle = 0.5 * (low + high);
        return {middle - 0.5 * other, middle + 0.5 * other};
    }
    /// The multiples of 1, 2 or 5 times a power of ten that are at least `gap` apart.
    std::vector<double> ticks(double gap) const {
        double step = std::pow(10.0, std::floor(std::log10(gap)));
        for (const double factor : {2.0, 2.5, 2.0}) {
            if (step < gap) step *= factor;
        }
        std::vector<double> result;
        for (double i = std::ceil(low / step); i * step <= high; ++i) result.push_back(i * step);
        return result;
    }
};

std::string number(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%.6g", value + 0.0); // no -0
    return text;
}

/// Tracks in a part of the picture, both axes in the same scale.
class Map {
public:
    Map(const Rectangle& area, const std::vector<Trace>& traces) : area_(area), traces_(traces) {
        for (const Trace& trace : traces) {
            for (const auto* points : {&trace.truth, &trace.measured}) {
                for (const Point& point : *points) x_.include(point.x), y_.include(point.y);
            }
        }
        const double width = area.right - area.left;
        const double height = area.bottom - area.top;
        pixel_ = 1.1 * std::max({x_.length() / width, y_.length() / height, 1e-6});
        x_ = x_.around(pixel_ * width);
        y_ = y_.around(pixel_ * height);
    }

    void draw(Canvas& canvas, const std::string& title, double thickness) const {
        draw_axes(canvas, title);
        canvas.clip(area_);
        for (const Trace& trace : traces_) {
            for (const Point& point : trace.measured) canvas.disc(at(point), 1.2 * thickness);
        }
        canvas.ink(measured_color);
        for (const Trace& trace : traces_) draw_curve(canvas, trace.estimated, 1.3 * thickness);
        canvas.ink(estimated_color);
        for (const Trace& trace : traces_) draw_curve(canvas, trace.truth, 0.8 * thickness);
        canvas.ink(truth_color);
        canvas.clip(canvas.area());
    }

private:
    Point at(const Point& p) const {
        return {area_.left + (p.x - x_.low) / pixel_, area_.bottom - (p.y - y_.low) / pixel_};
    }

    void draw_axes(Canvas& canvas, const std::string& title) const {
        canvas.fill(area_);
        canvas.ink(background_color);
        const std::vector<double> x_ticks = x_.ticks(90.0 * pixel_);
        const std::vector<double> y_ticks = y_.ticks(60.0 * pixel_);
        for (const double x : x_ticks) canvas.line(at({x, y_.low}), at({x, y_.high}), 1.0);
        for (const double y : y_ticks) canvas.line(at({x_.low, y}), at({x_.high, y}), 1.0);
        canvas.ink(grid_color);

        for (const double x : x_ticks) {
            const std::string text = number(x);
            write(canvas, text, {at({x, 0.0}).x - 0.5 * width_of(text), area_.bottom + 22.0});
        }
        for (const double y : y_ticks) {
            const std::string text = number(y);
            write(canvas, text, {area_.left - 10.0 - width_of(text), at({0.0, y}).y + 5.0});
        }
        const std::string unit = "kilometres east and north";
        write(canvas, unit, {area_.right - width_of(unit), area_.bottom + 46.0});
        write(canvas, title, {area_.left, area_.top - 14.0});
        canvas.ink(text_color);
    }

    void draw_curve(Canvas& canvas, std::vector<Point> positions, double width) const {
        for (Point& position : positions) position = at(position);
        canvas.curve(positions, width);
    }

    Rectangle area_;
    const std::vector<Trace>& traces_;
    Range x_;
    Range y_;
    double pixel_ = 1.0; ///< its side in km
};

void draw_legend(Canvas& canvas, Point end) {
    const auto entry = [&](const std::string& text, unsigned color, const auto& draw_sample) {
        end.x -= width_of(text);
        write(canvas, text, end);
        canvas.ink(text_color);
        draw_sample(Point{end.x - 40.0, end.y - 5.0}, Point{end.x - 12.0, end.y - 5.0});
        canvas.ink(color);
        end.x -= 64.0;
    };
    const auto bar = [&](Point a, Point b) { canvas.line(a, b, 3.0); };
    const auto dots = [&](Point a, Point b) {
        for (const double x : {a.x + 4.0, b.x - 6.0}) canvas.disc({x, a.y}, 4.0);
    };
    entry("truth", truth_color, bar);
    entry("estimates", estimated_color, bar);
    entry("measurements", measured_color, dots);
}

/// The end of a track.
Trace end_of(const Trace& trace) {
    const auto end = [](const std::vector<Point>& points) {
        constexpr std::ptrdiff_t steps = 40;
        return std::vector(points.end() - std::min(steps, std::ssize(points)), points.end());
    };
    return {end(trace.truth), end(trace.measured), end(trace.estimated)};
}

} // namespace

void note(std::span<Trace> traces, std::span<const Filter> filters, std::span<const Track> tracks) {
    const auto from_above = [](double x, double y) { return Point{1e-3 * x, 1e-3 * y}; };
    for (std::size_t n = 0; n != traces.size(); ++n) {
        const auto& z = tracks[n].measurement;
        const auto& x = filters[n].state;
        traces[n].truth.push_back(from_above(tracks[n].truth[0], tracks[n].truth[1]));
        traces[n].measured.push_back(from_above(z[0][0], z[1][0]));
        traces[n].estimated.push_back(from_above(x[0][0], x[1][0]));
    }
}

Image plot(const std::vector<Trace>& traces, std::size_t targets) {
    Canvas canvas(1500, 1000);
    const std::string title =
        std::to_string(traces.size()) + " of " + std::to_string(targets) + " targets from above";
    Map({90.0, 60.0, 980.0, 930.0}, traces).draw(canvas, title, 2.0);
    draw_legend(canvas, {980.0, 46.0});
    const std::vector<Trace> first = {end_of(traces.front())};
    Map({1090.0, 60.0, 1470.0, 430.0}, first).draw(canvas, "the end of one of them", 3.5);
    if (traces.size() > 1) {
        const std::vector<Trace> last = {end_of(traces.back())};
        Map({1090.0, 560.0, 1470.0, 930.0}, last).draw(canvas, "the end of another", 3.5);
    }
    return canvas.image();
}
