#include "common/image.h"

#include <png.h>

#include <cerrno>
#include <cstdio>
#include <stdexcept>
#include <system_error>

void write_png(const std::string& file, const Image& image) {
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    png.width = static_cast<png_uint_32>(image.width);
    png.height = static_cast<png_uint_32>(image.height);
    png.format = PNG_FORMAT_RGB;
    // Through a FILE of our own: by name, libpng would remove whatever it couldn't write to.
    std::FILE* out = std::fopen(file.c_str(), "wb");
    if (out == nullptr) fail_to_write(file);
    const bool written = png_image_write_to_stdio(&png, out, 0, image.rgb.data(), 0, nullptr) != 0;
    if (std::fclose(out) != 0 || !written) fail_to_write(file);
}

void fail_to_write(const std::string& file) {
    throw std::runtime_error(file +
                             ": cannot be written: " + std::generic_category().message(errno));
}
