#include "lettering.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

constexpr double scale = 2.0; // pixels a unit of the alphabet
constexpr double pen = 1.6;   // its width in pixels

/// The strokes of each character, a colon before each: runs of points, a digit for x and one for y.
/// The base line is at y = 2. Points pull a curve towards them, to a corner where one stands twice.
constexpr std::string_view alphabet =
    " a:454606024243:4642 b:0902:050646420203 c:454606024243 d:454606024243:4942 e:0444444606024243"
    " f:491912:0636 g:454606024243:46400001 h:0902:04064642 i:0602:0808 j:262000:2828"
    " k:0902:0336:1432 l:0902 m:0602:04063632:34366662 n:0602:04064642 o:260602424626"
    " p:0600:050646420203 q:454606024243:4640 r:0602:040636 s:4546060444420203 t:181232:0636"
    " u:06024244:4642 v:06222246 w:0612123636525266 x:0642:4602 y:0622:4610 z:064646020242"
    " 0:280802424828 1:07282822 2:07084845020242 3:0708484515:1545420203 4:323838040444"
    " 5:48080805051646420203 6:4748080242450504 7:08484812 8:250508484525:250502424525"
    " 9:0302424808054546 .:0202 -:0535 ";

using Stroke = std::vector<Point>;

/// The strokes of a character in units, y upward from the base line.
std::vector<Stroke> strokes_of(char character) {
    std::vector<Stroke> strokes;
    const std::size_t found = alphabet.find(std::string{' ', character, ':'});
    if (found == std::string_view::npos) return strokes;
    for (std::size_t i = found + 2; alphabet[i] != ' ';) {
        if (alphabet[i] == ':') {
            strokes.emplace_back();
            ++i;
        } else {
            strokes.back().push_back({alphabet[i] - '0' + 0.0, alphabet[i + 1] - '2' + 0.0});
            i += 2;
        }
    }
    return strokes;
}

/// The width of a character and the gap behind it, in units.
double advance_of(const std::vector<Stroke>& strokes) {
    double width = strokes.empty() ? 1.8 : 0.0;
    for (const Stroke& stroke : strokes) {
        for (const Point& point : stroke) width = std::max(width, point.x);
    }
    return width + 2.2;
}

/// Cuts the corners (Chaikin), which leads to a smooth curve that keeps its ends.
Stroke smoothed(const Stroke& points) {
    const auto between = [](Point a, Point b, double t) {
        return Point{a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)};
    };
    Stroke result = {points.front()};
    for (std::size_t i = 1; i != points.size(); ++i) {
        result.push_back(between(points[i - 1], points[i], 0.25));
        result.push_back(between(points[i - 1], points[i], 0.75));
    }
    result.push_back(points.back());
    return result;
}

} // namespace

void write(Canvas& canvas, std::string_view text, Point start) {
    for (const char character : text) {
        const std::vector<Stroke> strokes = strokes_of(character);
        for (Stroke stroke : strokes) {
            for (Point& p : stroke) p = {start.x + scale * p.x, start.y - scale * p.y};
            canvas.curve(smoothed(smoothed(stroke)), pen);
        }
        start.x += scale * advance_of(strokes);
    }
}

double width_of(std::string_view text) {
    double width = 0.0;
    for (const char character : text) width += scale * advance_of(strokes_of(character));
    return width;
}
