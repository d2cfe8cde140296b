/** @file canvas.h  Lines, discs and areas with smooth edges. */
#pragma once

#include "common/image.h"

#include <span>
#include <vector>

/// In pixels, y downward.
struct Point {
    double x;
    double y;
};

struct Rectangle {
    double left;
    double top;
    double right;
    double bottom;
};

/// Shapes gather in a stencil, where they overlap without a trace, until ink() paints them.
class Canvas {
public:
    Canvas(int width, int height);

    void curve(std::span<const Point> points, double width);
    void line(Point a, Point b, double width);
    void disc(Point centre, double radius) { line(centre, centre, 2.0 * radius); }
    void fill(const Rectangle& area);

    /// Shapes are cut off outside this area from now on.
    void clip(const Rectangle& area) { clip_ = area; }

    /// Paints the shapes since the last time, in a colour given as hexadecimal sRGB.
    void ink(unsigned color, double opacity = 1.0);

    Rectangle area() const;
    const Image& image() const { return image_; }

private:
    template <class Work>
    void for_pixels(const Rectangle& area, const Work& work);

    Image image_;
    std::vector<double> stencil_; ///< how far each pixel is covered
    Rectangle clip_;
};
