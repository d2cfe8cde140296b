/** @file image.h  Pictures and how they are written. Throws std::runtime_error if that fails. */
#pragma once

#include <cstdint>
#include <string>
#include <vector>

struct Image {
    int width;
    int height;
    std::vector<std::uint8_t> rgb;
};

void write_png(const std::string& file, const Image& image);

/// Throws over a file that couldn't be written; errno tells why.
[[noreturn]] void fail_to_write(const std::string& file);
