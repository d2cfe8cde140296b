#include "point_cloud.h"

#include "text_reader.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>

namespace {

std::string content_of(const std::string& file) {
    std::error_code error;
    const auto size = std::filesystem::file_size(file, error);
    if (error) throw InputError(file + ": " + error.message());
    std::string content(size, '\0');
    std::ifstream in(file, std::ios::binary);
    if (!in.read(content.data(), static_cast<std::streamsize>(size))) {
        throw InputError(file + ": cannot be read");
    }
    return content;
}

Vec3 parse_point(TextReader& text) {
    Vec3 point;
    for (double* coordinate : {&point.x, &point.y, &point.z}) {
        *coordinate = as_coordinate(text.number(), text);
    }
    return point;
}

/// Vertices are the `v` lines; faces and everything else say nothing about points.
std::vector<Vec3> parse_obj(std::string_view content, const std::string& file) {
    std::vector<Vec3> points;
    for (TextReader text(content, file); text.next_line();) {
        if (text.word() == "v") points.push_back(parse_point(text));
    }
    return points;
}

/// A point a line in the first three columns; `#` begins a comment.
std::vector<Vec3> parse_xyz(std::string_view content, const std::string& file) {
    std::vector<Vec3> points;
    for (TextReader text(content, file); text.next_line();) {
        TextReader ahead = text;
        const std::string_view first = ahead.word();
        if (!first.empty() && !first.starts_with('#')) points.push_back(parse_point(text));
    }
    return points;
}

std::string lower_case_ending(const std::string& file) {
    std::string ending = std::filesystem::path(file).extension().string();
    std::transform(ending.begin(), ending.end(), ending.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return ending;
}

} // namespace

std::vector<Vec3> read_points(const std::string& file) {
    const std::string content = content_of(file);
    const std::string ending = lower_case_ending(file);
    const auto parse = ending == ".obj" ? parse_obj : ending == ".ply" ? parse_ply : parse_xyz;
    std::vector<Vec3> points = parse(content, file);
    if (points.empty()) throw InputError(file + ": holds no points");
    return points;
}
