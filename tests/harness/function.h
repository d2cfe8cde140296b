// What a function's name tells: its operands, the layout, the list of its arguments. A new family
// needs one more row in the table of function.cpp.
#pragma once

#include <cstdint>
#include <iosfwd>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace harness {

enum class Layout { S, P, L };

// One parameter in the sense of the interface's description: an operand stands for several
// arguments. Rows and columns are the names of the sizes that give them, or 1. A vector is a row.
struct Parameter {
    enum Kind { source, value, result, results, indices, scratch, numberedScratch, size };

    // A `value` is a number passed as such, which a call keeps in memory like an operand. `results`
    // and `indices` are plain arrays, without gaps between elements, rows and objects; indices are
    // 32-bit integers, the rows of a matrix in the order of its pivots. Numbered scratch has a
    // 32-bit integer for each row behind its elements.
    Kind kind;
    std::string name;
    std::string rows = {};
    std::string columns = {};
    bool array = false;
    bool transposed = false;

    bool isWritten() const { return kind == result || kind == results; }
    bool isScratch() const { return kind == scratch || kind == numberedScratch; }
    bool isPlain() const {
        return kind == value || kind == results || kind == indices || isScratch();
    }
    bool isVector() const { return rows == "1"; }
};

struct Argument {
    enum Meaning { pointer, stride0, stride1, stride2, shift, value, size, count };

    Meaning meaning;
    std::string name;
    std::size_t parameter;
};

struct Function {
    std::string name;
    std::string operation; // "EigenValuesSym"
    std::string shape;     // "tama"
    std::string operands;  // "mm": the shape, be they arrays or transposed or not
    Layout layout;
    Layout resultLayout; // differs in copies from one layout to another
    int elementSize;
    bool array; // of objects, with a count
    std::vector<Parameter> parameters;
    std::vector<Argument> arguments;

    // An operand's own layout: a single one in list layout is passed as in the standard layout.
    Layout layoutOf(const Parameter& parameter) const;
    bool hasSize(std::string_view size) const;
    bool isOneOf(std::string_view operations, std::string_view shapes) const;
    // Whether its entry function does the work itself, without drivers and cores.
    bool isDirect() const;
};

// By name: "width", "height", "widthHeight", "src1Width", "count".
using Sizes = std::map<std::string, int>;

// Rows or columns of a parameter: a size, or a number.
int extentOf(const std::string& name, const Sizes& sizes);

// Sizes of a product's operands, as its shape reads them: rows x inner by inner x columns, or by a
// vector.
Sizes productSizes(const Function& function, int rows, int inner, int columns, int count);

// Two functions take some smaller matrices for 3x3 ones, which need tables of these.
bool isCallable(const Function& function, const Sizes& sizes);

// work(float()) or work(double())
template <class Work>
auto withType(const Function& function, const Work& work) {
    if (function.elementSize == 4) return work(float());
    return work(double());
}

Function functionOf(const std::string& name);
std::ostream& operator<<(std::ostream& out, const Function& function);
std::ostream& operator<<(std::ostream& out, const Sizes& sizes);

// The cores that do a call's work if rows are contiguous or not; none where the entry function does
// it. They go without the strides of what is contiguous; those of Gaxpy take the matrix's sizes
// behind all operands, and no other.
std::vector<Function> coresOf(const Function& function, bool contiguous);
// The driver that shares an array's objects among threads.
Function driverOf(Function function);

// The functions that the library's own lists name, or those of them that belong to `operations` and
// have one of the kinds of operands, or any.
const std::vector<Function>& allFunctions();
std::vector<Function> functionsOf(std::string_view operations, std::string_view operands = {});

// Whether one of the words, separated by blanks, is `word`.
bool contains(std::string_view words, std::string_view word);

} // namespace harness
