#include "harness/function.h"

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <regex>
#include <stdexcept>

namespace harness {
namespace {

struct Family {
    std::string_view operations; // "Det", or "Mul_mv" with operands of these kinds
    std::vector<Parameter> parameters;
    bool isProduct = false; // sizes are those of operands as stored, and the destination has none
};

const std::vector<Family>& families() {
    using enum Parameter::Kind;
    static const std::string one = "1";
    static const std::string n = "widthHeight";
    static const std::string w = "width";
    static const std::string h = "height";
    static const std::string len = "len";
    static const std::vector<Family> table = {
        {"Add_mm Sub_mm",
         {{source, "Src1", h, w},
          {source, "Src2", h, w},
          {result, "Dst", h, w},
          {size, w},
          {size, h}}},
        {"EigenValuesSym",
         {{source, "Src", n, n},
          {scratch, "Buffer", n, n},
          {results, "DstValues", one, n},
          {size, n}}},
        {"EigenValuesVectorsSym",
         {{source, "Src", n, n},
          {scratch, "Buffer", n, n},
          {result, "DstVectors", n, n},
          {results, "DstValues", one, n},
          {size, n}}},
        {"Add_vv Sub_vv",
         {{source, "Src1", one, len},
          {source, "Src2", one, len},
          {result, "Dst", one, len},
          {size, len}}},
        {"Add_vc Sub_vc Sub_cv Mul_vc",
         {{source, "Src", one, len},
          {value, "val", one, one},
          {result, "Dst", one, len},
          {size, len}}},
        {"Mul_mc",
         {{source, "Src", h, w},
          {value, "val", one, one},
          {result, "Dst", h, w},
          {size, w},
          {size, h}}},
        {"Saxpy",
         {{source, "Src1", one, len},
          {value, "val", one, one},
          {source, "Src2", one, len},
          {result, "Dst", one, len},
          {size, len}}},
        {"LComb",
         {{source, "Src1", one, len},
          {value, "val1", one, one},
          {source, "Src2", one, len},
          {value, "val2", one, one},
          {result, "Dst", one, len},
          {size, len}}},
        {"DotProduct",
         {{source, "Src1", one, len},
          {source, "Src2", one, len},
          {results, "Dst", one, one},
          {size, len}}},
        {"L2Norm", {{source, "Src", one, len}, {results, "Dst", one, one}, {size, len}}},
        {"CrossProduct",
         {{source, "Src1", one, "3"}, {source, "Src2", one, "3"}, {result, "Dst", one, "3"}}},
        {"Mul_mv",
         {{source, "Src1", "src1Height", "src1Width"},
          {size, "src1Width"},
          {size, "src1Height"},
          {source, "Src2", one, "src2Len"},
          {size, "src2Len"},
          {result, "Dst", one, "src1Height"}},
         true},
        {"Gaxpy",
         {{source, "Src1", "src1Height", "src1Width"},
          {size, "src1Width"},
          {size, "src1Height"},
          {source, "Src2", one, "src2Len"},
          {size, "src2Len"},
          {source, "Src3", one, "src3Len"},
          {size, "src3Len"},
          {result, "Dst", one, "src3Len"}},
         true},
        {"Mul_mm",
         {{source, "Src1", "src1Height", "src1Width"},
          {size, "src1Width"},
          {size, "src1Height"},
          {source, "Src2", "src2Height", "src2Width"},
          {size, "src2Width"},
          {size, "src2Height"},
          {result, "Dst", "src1Height", "src2Width"}},
         true},
        {"Copy_v", {{source, "Src", one, len}, {result, "Dst", one, len}, {size, len}}},
        {"Copy_m", {{source, "Src", h, w}, {result, "Dst", h, w}, {size, w}, {size, h}}},
        {"Extract_v", {{source, "Src", one, len}, {results, "Dst", one, len}, {size, len}}},
        {"Extract_m", {{source, "Src", h, w}, {results, "Dst", h, w}, {size, w}, {size, h}}},
        {"LoadIdentity", {{result, "Dst", h, w}, {size, w}, {size, h}}},
        {"Transpose", {{source, "Src", h, w}, {size, w}, {size, h}, {result, "Dst", w, h}}},
        {"Trace", {{source, "Src", n, n}, {size, n}, {results, "Dst", one, one}}},
        {"FrobNorm", {{source, "Src", h, w}, {size, w}, {size, h}, {results, "Dst", one, one}}},
        {"Det",
         {{source, "Src", n, n},
          {size, n},
          {numberedScratch, "Buffer", n, n},
          {results, "Dst", one, one}}},
        {"Invert",
         {{source, "Src", n, n},
          {numberedScratch, "Buffer", n, n},
          {result, "Dst", n, n},
          {size, n}}},
        {"LUDecomp",
         {{source, "Src", n, n}, {indices, "DstIndex", one, n}, {result, "Dst", n, n}, {size, n}}},
        {"LUBackSubst",
         {{source, "Src1", n, n},
          {indices, "SrcIndex", one, n},
          {source, "Src2", one, n},
          {result, "Dst", one, n},
          {size, n}}},
        {"CholeskyDecomp", {{source, "Src", n, n}, {result, "Dst", n, n}, {size, n}}},
        {"CholeskyBackSubst",
         {{source, "Src1", n, n}, {source, "Src2", one, n}, {result, "Dst", one, n}, {size, n}}},
        {"QRDecomp",
         {{source, "Src", h, w},
          {scratch, "Buffer", one, h},
          {result, "Dst", h, w},
          {size, w},
          {size, h}}},
        {"QRBackSubst",
         {{source, "Src1", h, w},
          {scratch, "Buffer", one, h},
          {source, "Src2", one, h},
          {result, "Dst", one, w},
          {size, w},
          {size, h}}},
    };
    return table;
}

// "tama" gives "ta", "ma". Constants are no operands in memory.
std::vector<std::string> lettersOf(const std::string& shape) {
    static const std::regex letter("[mtv]a?");
    const auto begin = std::sregex_iterator(shape.begin(), shape.end(), letter);
    std::vector<std::string> letters;
    for (auto match = begin; match != std::sregex_iterator(); ++match) {
        letters.push_back(match->str());
    }
    return letters;
}

// Sources take the letters of the shape in their order, a further one takes the last letter again; a
// destination is an array if any of them is, indices are one if their matrix, the first source, is. Shared sizes are those of the result,
// so a transposed source is stored with them swapped. In products it is the result whose rows or
// columns are named after the other size of its source.
std::vector<Parameter> parametersOf(const Function& function) {
    const auto family =
        std::find_if(families().begin(), families().end(), [&](const Family& candidate) {
            return contains(candidate.operations, function.operation) ||
                   contains(candidate.operations, function.operation + '_' + function.operands);
        });
    if (family == families().end()) throw std::invalid_argument("no family of " + function.name);

    std::vector<Parameter> parameters = family->parameters;
    const std::vector<std::string> letters = lettersOf(function.shape);
    std::size_t next = 0;
    for (Parameter& parameter : parameters) {
        if (parameter.kind == Parameter::source) {
            const std::string& letter = letters.at(std::min(next++, letters.size() - 1));
            parameter.array = letter.ends_with('a');
            parameter.transposed = letter.starts_with('t');
            if (!parameter.transposed) continue;
            if (!family->isProduct)
                std::swap(parameter.rows, parameter.columns);
            else if (next == 1 && parameters.back().isVector())
                parameters.back().columns = parameter.columns;
            else if (next == 1)
                parameters.back().rows = parameter.columns;
            else
                parameters.back().columns = parameter.rows;
        } else if (parameter.isWritten()) {
            parameter.array = function.array;
        } else if (parameter.kind == Parameter::indices) {
            parameter.array = parameters.front().array;
        }
    }
    return parameters;
}

std::vector<Argument> argumentsOf(const Function& function) {
    std::vector<Argument> arguments;
    for (std::size_t k = 0; k < function.parameters.size(); ++k) {
        const Parameter& parameter = function.parameters[k];
        const auto add = [&](Argument::Meaning meaning, const std::string& name) {
            arguments.push_back({meaning, name, k});
        };
        if (parameter.kind == Parameter::size) {
            add(Argument::size, parameter.name);
            continue;
        }
        if (parameter.kind == Parameter::value) {
            add(Argument::value, parameter.name);
            continue;
        }
        if (parameter.isPlain()) {
            add(Argument::pointer, "p" + parameter.name);
            continue;
        }
        const Layout layout = function.layoutOf(parameter);
        std::string prefix = parameter.name;
        prefix[0] = static_cast<char>(std::tolower(prefix[0]));
        add(Argument::pointer, (layout == Layout::S ? "p" : "pp") + parameter.name);
        if (layout != Layout::S) add(Argument::shift, prefix + "Shift");
        if (layout != Layout::L && parameter.array) add(Argument::stride0, prefix + "Stride0");
        if (layout == Layout::P) continue;
        if (!parameter.isVector()) add(Argument::stride1, prefix + "Stride1");
        add(Argument::stride2, prefix + "Stride2");
    }
    if (function.array) arguments.push_back({Argument::count, "count", 0});
    return arguments;
}

} // namespace

Layout Function::layoutOf(const Parameter& parameter) const {
    const Layout own = parameter.kind == Parameter::result ? resultLayout : layout;
    return own == Layout::L && !parameter.array ? Layout::S : own;
}

bool Function::hasSize(std::string_view size) const {
    return std::any_of(arguments.begin(), arguments.end(), [&](const Argument& argument) {
        return argument.meaning == Argument::size && argument.name == size;
    });
}

bool Function::isOneOf(std::string_view operations, std::string_view shapes) const {
    return contains(operations, operation) && contains(shapes, shape);
}

bool Function::isDirect() const {
    return contains("Copy Extract LoadIdentity", operation);
}

bool isCallable(const Function& function, const Sizes& sizes) {
    if (!contains("qormMul_mm_32f_P qormMul_tt_64f_P", function.name)) return true;
    int bits = 0;
    for (const char* size : {"src1Width", "src1Height", "src2Width", "src2Height"}) {
        bits |= sizes.at(size);
    }
    return bits != 3;
}

Function functionOf(const std::string& name) {
    static const std::regex grammar("qorm([A-Za-z0-9]+)_([mtvca]+)_(32f|64f)(_[SPL]?[SPL])?");
    std::smatch match;
    if (!std::regex_match(name, match, grammar)) throw std::invalid_argument("no name: " + name);

    Function function;
    function.name = name;
    function.operation = match[1];
    function.shape = match[2];
    function.elementSize = match[3] == "32f" ? 4 : 8;
    const std::string suffix = match[4].matched ? match[4].str() : "_S";
    const auto layoutNamed = [](char letter) {
        return letter == 'P' ? Layout::P : letter == 'L' ? Layout::L : Layout::S;
    };
    function.layout = layoutNamed(suffix[1]);
    function.resultLayout = layoutNamed(suffix.back());
    function.array = function.shape.find('a') != std::string::npos;
    for (const char letter : function.shape) {
        if (letter != 'a') function.operands += letter == 't' ? 'm' : letter;
    }
    function.parameters = parametersOf(function);
    function.arguments = argumentsOf(function);
    return function;
}

int extentOf(const std::string& name, const Sizes& sizes) {
    const bool isNumber = std::isdigit(static_cast<unsigned char>(name.front())) != 0;
    return isNumber ? std::stoi(name) : sizes.at(name);
}

Sizes productSizes(const Function& function, int rows, int inner, int columns, int count) {
    Sizes sizes = {{"count", count}};
    const auto set = [&](const std::string& name, int readRows, int readColumns) {
        for (const Parameter& parameter : function.parameters) {
            if (parameter.name != name) continue;
            if (parameter.isVector()) {
                sizes[parameter.columns] = readRows;
                continue;
            }
            sizes[parameter.transposed ? parameter.columns : parameter.rows] = readRows;
            sizes[parameter.transposed ? parameter.rows : parameter.columns] = readColumns;
        }
    };
    set("Src1", rows, inner);
    set("Src2", inner, columns);
    set("Src3", rows, columns);
    return sizes;
}

std::vector<Function> coresOf(const Function& function, bool contiguous) {
    if (function.isDirect()) return {};
    const bool hasOneCore = function.isOneOf("FrobNorm", "m");
    Function core = function;
    core.name = "own" + function.name;
    const auto leaveOut = [&](const auto& what) { std::erase_if(core.arguments, what); };
    if (function.layout != Layout::P && !hasOneCore) {
        if (contiguous)
            leaveOut([](const Argument& a) { return a.meaning == Argument::stride2; });
        else
            core.name += function.layout == Layout::S ? "_S2" : "S2";
    }
    if (function.operation == "Gaxpy") {
        leaveOut([](const Argument& a) { return a.name.ends_with("Len"); });
        std::stable_partition(core.arguments.begin(), core.arguments.end(), [](const Argument& a) {
            return a.meaning != Argument::size && a.meaning != Argument::count;
        });
    }
    if (!function.isOneOf("LUDecomp", "m")) return {core};
    // All sizes without a path of their own share another.
    Function common = core;
    if (function.layout == Layout::S && contiguous) common.name += "_S";
    common.name += "_com";
    return {core, common};
}

Function driverOf(Function function) {
    function.name = "ownOMP_" + function.name;
    return function;
}

std::ostream& operator<<(std::ostream& out, const Function& function) {
    return out << function.name;
}

std::ostream& operator<<(std::ostream& out, const Sizes& sizes) {
    const char* separator = "";
    for (const auto& [name, value] : sizes) {
        out << separator << name << '=' << value;
        separator = " ";
    }
    return out;
}

const std::vector<Function>& allFunctions() {
    static const std::vector<Function> functions = [] {
        static const std::regex entry(R"(^[A-Z_]+\((qorm\w+),)");
        std::vector<Function> found;
        for (const auto& file : std::filesystem::recursive_directory_iterator(QORM_SOURCES)) {
            if (file.path().extension() != ".def") continue;
            std::ifstream list(file.path());
            std::smatch match;
            for (std::string line; std::getline(list, line);) {
                if (std::regex_search(line, match, entry)) found.push_back(functionOf(match[1]));
            }
        }
        std::sort(found.begin(), found.end(),
                  [](const Function& a, const Function& b) { return a.name < b.name; });
        return found;
    }();
    return functions;
}

std::vector<Function> functionsOf(std::string_view operations, std::string_view operands) {
    std::vector<Function> functions;
    std::copy_if(allFunctions().begin(), allFunctions().end(), std::back_inserter(functions),
                 [&](const Function& f) {
                     return contains(operations, f.operation) &&
                            (operands.empty() || contains(operands, f.operands));
                 });
    return functions;
}

bool contains(std::string_view words, std::string_view word) {
    const std::string padded = ' ' + std::string(words) + ' ';
    return padded.find(' ' + std::string(word) + ' ') != std::string::npos;
}

} // namespace harness
