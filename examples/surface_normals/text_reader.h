/** @file text_reader.h  Text in lines and words, with faults that name file and line. */
#pragma once

#include <cmath>
#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>

/// The input cannot be used; what() is one line that names the place.
struct InputError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

class TextReader {
public:
    TextReader(std::string_view text, std::string file) : rest_(text), file_(std::move(file)) {}

    /// Goes to the next line; false behind the last one.
    bool next_line();

    /// The next word of the line, empty at its end.
    std::string_view word();

    /// The next word of the line as a number; a fault if there is none.
    double number();

    /// What lies behind the present line.
    std::string_view rest() const { return rest_; }

    [[noreturn]] void fail(const std::string& fault) const;

    /// Fails over a word of the file, which may be of any length.
    [[noreturn]] void fail_at(std::string_view word, const std::string& fault) const;

private:
    std::string_view rest_;
    std::string_view line_;
    std::string file_;
    std::size_t line_number_ = 0;
};

/// Answers with `value` if it can serve as a coordinate: squares of differences must not overflow.
template <class Reader>
double as_coordinate(double value, const Reader& reader) {
    if (!std::isfinite(value)) reader.fail("a coordinate is not finite");
    if (std::abs(value) > 1e100) reader.fail("a coordinate lies beyond 1e100");
    return value;
}
