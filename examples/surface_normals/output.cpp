#include "output.h"

#include <png.h>

#include <cerrno>
#include <charconv>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <stdexcept>

namespace {

[[noreturn]] void fail(const std::string& file) {
    throw std::runtime_error(file + ": cannot be written: " + std::strerror(errno));
}

} // namespace

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
    if (!out) fail(file);
}

void write_png(const std::string& file, const Image& image) {
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    png.width = static_cast<png_uint_32>(image.width);
    png.height = static_cast<png_uint_32>(image.height);
    png.format = PNG_FORMAT_RGB;
    // Through a FILE of our own: by name, libpng would remove whatever it couldn't write to.
    std::FILE* out = std::fopen(file.c_str(), "wb");
    if (out == nullptr) fail(file);
    const bool written = png_image_write_to_stdio(&png, out, 0, image.rgb.data(), 0, nullptr) != 0;
    if (std::fclose(out) != 0 || !written) fail(file);
}
