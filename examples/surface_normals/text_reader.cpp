#include "text_reader.h"

#include <algorithm>
#include <cctype>
#include <charconv>

bool TextReader::next_line() {
    if (rest_.empty()) return false;
    const std::size_t end = std::min(rest_.find('\n'), rest_.size());
    line_ = rest_.substr(0, end);
    rest_.remove_prefix(std::min(end + 1, rest_.size()));
    ++line_number_;
    return true;
}

std::string_view TextReader::word() {
    constexpr std::string_view blanks = " \t\r\v\f";
    line_.remove_prefix(std::min(line_.find_first_not_of(blanks), line_.size()));
    const std::string_view found = line_.substr(0, line_.find_first_of(blanks));
    line_.remove_prefix(found.size());
    return found;
}

double TextReader::number() {
    const std::string_view text = word();
    if (text.empty()) fail("a number is missing");
    const char* first = text.data() + (text.starts_with('+') ? 1 : 0);
    const char* last = text.data() + text.size();
    double value = 0.0;
    const auto [end, error] = std::from_chars(first, last, value);
    if (error != std::errc() || end != last) fail_at(text, "is not a number");
    return value;
}

void TextReader::fail(const std::string& fault) const {
    throw InputError(file_ + ":" + std::to_string(line_number_) + ": " + fault);
}

void TextReader::fail_at(std::string_view word, const std::string& fault) const {
    std::string text(word.substr(0, 40));
    for (char& c : text) {
        if (std::iscntrl(static_cast<unsigned char>(c)) != 0) c = '?';
    }
    fail(text.insert(0, 1, '\'') + "' " + fault);
}
