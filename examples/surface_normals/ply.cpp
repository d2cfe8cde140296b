#include "point_cloud.h"
#include "text_reader.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <optional>

namespace {

template <class T>
double decode(const char* bytes) {
    T value;
    std::memcpy(&value, bytes, sizeof value);
    return static_cast<double>(value);
}

struct Scalar {
    std::string_view name;
    std::string_view sized_name;
    std::size_t size;
    double (*decode)(const char* bytes);

    bool is_float() const { return name == "float" || name == "double"; }
};

constexpr std::array<Scalar, 8> scalars = {{
    {"char", "int8", 1, decode<std::int8_t>},
    {"uchar", "uint8", 1, decode<std::uint8_t>},
    {"short", "int16", 2, decode<std::int16_t>},
    {"ushort", "uint16", 2, decode<std::uint16_t>},
    {"int", "int32", 4, decode<std::int32_t>},
    {"uint", "uint32", 4, decode<std::uint32_t>},
    {"float", "float32", 4, decode<float>},
    {"double", "float64", 8, decode<double>},
}};

struct Property {
    std::string name;
    Scalar type;
    std::optional<Scalar> list_count; ///< type of the length, if the property is a list
};

struct Element {
    std::string name;
    std::uint64_t count;
    std::vector<Property> properties;
};

enum class Encoding : std::uint8_t { Ascii, LittleEndian, BigEndian };

struct Header {
    std::optional<Encoding> encoding;
    std::vector<Element> elements;
};

Scalar parse_type(TextReader& text) {
    const std::string_view name = text.word();
    for (const Scalar& type : scalars) {
        if (name == type.name || name == type.sized_name) return type;
    }
    text.fail_at(name, "is no PLY type");
}

Encoding parse_encoding(TextReader& text) {
    const std::string_view name = text.word();
    if (name == "ascii") return Encoding::Ascii;
    if (name == "binary_little_endian") return Encoding::LittleEndian;
    if (name == "binary_big_endian") return Encoding::BigEndian;
    text.fail_at(name, "is no PLY format");
}

Element parse_element(TextReader& text) {
    Element element{std::string(text.word()), 0, {}};
    const std::string_view count = text.word();
    const char* last = count.data() + count.size();
    const auto [end, error] = std::from_chars(count.data(), last, element.count);
    if (error != std::errc() || end != last) text.fail("an element without a valid count");
    return element;
}

Property parse_property(TextReader& text) {
    Property property{};
    TextReader ahead = text;
    if (ahead.word() == "list") {
        text.word();
        property.list_count = parse_type(text);
        if (property.list_count->is_float()) text.fail("a list counted by a float");
    }
    property.type = parse_type(text);
    property.name = text.word();
    return property;
}

Header parse_header(TextReader& text) {
    Header header;
    if (!text.next_line() || text.word() != "ply") text.fail("this is no PLY file");
    while (text.next_line()) {
        const std::string_view keyword = text.word();
        if (keyword == "format") {
            header.encoding = parse_encoding(text);
        } else if (keyword == "element") {
            header.elements.push_back(parse_element(text));
        } else if (keyword == "property") {
            if (header.elements.empty()) text.fail("a property before the first element");
            header.elements.back().properties.push_back(parse_property(text));
        } else if (keyword == "end_header") {
            if (!header.encoding) text.fail("the header names no format");
            return header;
        } else if (keyword != "comment" && keyword != "obj_info" && !keyword.empty()) {
            text.fail_at(keyword, "has no place in the header");
        }
    }
    text.fail("the header has no end");
}

/// Values behind an ascii header: words, whatever their lines.
class AsciiBody {
public:
    explicit AsciiBody(const TextReader& text) : text_(text) {}

    double next(const Scalar& /*type*/) {
        for (TextReader ahead = text_; ahead.word().empty(); ahead = text_) {
            if (!text_.next_line()) text_.fail("the file ends early");
        }
        return text_.number();
    }

    /// Words have a blank between them, so each takes two bytes but the last of the file.
    bool has_room_for(const Element& element) const {
        return element.count <= (text_.rest().size() + 1) / (2 * element.properties.size());
    }

    [[noreturn]] void fail(const std::string& fault) const { text_.fail(fault); }

private:
    TextReader text_;
};

class BinaryBody {
public:
    BinaryBody(std::string_view content, std::size_t begin, bool little_endian, std::string file)
        : content_(content),
          at_(begin),
          swapped_(little_endian != (std::endian::native == std::endian::little)),
          file_(std::move(file)) {}

    double next(const Scalar& type) {
        if (content_.size() - at_ < type.size) fail("the file ends early");
        std::array<char, 8> bytes{};
        content_.copy(bytes.data(), type.size, at_);
        if (swapped_) std::reverse(bytes.data(), bytes.data() + type.size);
        at_ += type.size;
        return type.decode(bytes.data());
    }

    bool has_room_for(const Element& element) const {
        std::size_t least = 0;
        for (const Property& property : element.properties) {
            least += property.list_count.value_or(property.type).size;
        }
        return element.count <= (content_.size() - at_) / least;
    }

    [[noreturn]] void fail(const std::string& fault) const {
        throw InputError(file_ + ": byte " + std::to_string(at_) + ": " + fault);
    }

private:
    std::string_view content_;
    std::size_t at_;
    bool swapped_;
    std::string file_;
};

/// Where x, y and z stand among the properties of a vertex.
template <class Body>
std::array<std::size_t, 3> coordinate_places(const Element& vertex, const Body& body) {
    std::array<std::size_t, 3> places{};
    for (std::size_t axis = 0; axis != 3; ++axis) {
        const std::string name(1, "xyz"[axis]);
        std::size_t& i = places[axis];
        const auto& all = vertex.properties;
        while (i != all.size() && all[i].name != name) ++i;
        if (i == all.size() || !all[i].type.is_float() || all[i].list_count) {
            body.fail("vertices have no '" + name + "' of float or double");
        }
    }
    return places;
}

/// One element's scalars, by property; lists are skipped.
template <class Body>
void read_element(Body& body, const Element& element, std::vector<double>& values) {
    for (std::size_t i = 0; i != element.properties.size(); ++i) {
        const Property& property = element.properties[i];
        values[i] = body.next(property.list_count.value_or(property.type));
        if (!property.list_count) continue;
        if (!(values[i] >= 0.0)) body.fail("a list of negative length");
        for (double left = values[i]; left >= 1.0; --left) body.next(property.type);
    }
}

/// Steps over all before the vertices and reads those.
template <class Body>
std::vector<Vec3> read_vertices(Body body, const Header& header) {
    std::vector<Vec3> points;
    for (const Element& element : header.elements) {
        const bool is_vertex = element.name == "vertex";
        std::array<std::size_t, 3> place{};
        if (is_vertex) place = coordinate_places(element, body);
        if (element.properties.empty()) continue;
        if (!body.has_room_for(element)) {
            body.fail("the file is too short for the " + std::to_string(element.count) +
                      " elements that its header tells of");
        }
        std::vector<double> values(element.properties.size());
        for (std::uint64_t n = 0; n != element.count; ++n) {
            read_element(body, element, values);
            if (!is_vertex) continue;
            const auto at = [&](std::size_t i) { return as_coordinate(values[place[i]], body); };
            points.push_back({at(0), at(1), at(2)});
        }
        if (is_vertex) break;
    }
    return points;
}

} // namespace

std::vector<Vec3> parse_ply(std::string_view content, const std::string& file) {
    TextReader text(content, file);
    const Header header = parse_header(text);
    if (header.encoding == Encoding::Ascii) return read_vertices(AsciiBody(text), header);
    const bool little_endian = header.encoding == Encoding::LittleEndian;
    const std::size_t begin = content.size() - text.rest().size();
    return read_vertices(BinaryBody(content, begin, little_endian, file), header);
}
