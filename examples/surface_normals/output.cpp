#include "output.h"

#include "common/image.h"

#include <charconv>
#include <fstream>

void write_ply(const std::string& file, const std::vector<Vec3>& points, const Surface& surface) {
    std::ofstream out(file, std::ios::binary);
    out << "ply\nformat ascii 1.0\nelement vertex " << points.size() << '\n';
    for (const char* name : {"x", "y", "z", "nx", "ny", "nz", "variation"}) {
        out << "property double " << name << '\n';
    }
    out << "end_header\n";
    for (std::size_t i = 0; i != points.size(); ++i) {
        const Vec3& p = points[i];
        const Vec3& n = surface.normals[i];
        char separator = ' ';
        for (const double* value : {&p.x, &p.y, &p.z, &n.x, &n.y, &n.z, &surface.variation[i]}) {
            if (value == &surface.variation[i]) separator = '\n';
            char text[32];
            const char* end = std::to_chars(text, text + sizeof text, *value).ptr;
            out.write(text, end - text).put(separator);
        }
    }
    out.close();
    if (!out) fail_to_write(file);
}
