// What the built libraries export: the interface and the tiers behind it, and nothing else.
#include "harness/library.h"
#include "harness/process.h"

#include <gtest/gtest.h>
#include <set>
#include <sstream>

namespace {

using namespace harness;
using Names = std::set<std::string>;

Names exportsOf(const std::string& path) {
    Names names;
    forEachOutputLine(QORM_NM " -D --defined-only '" + path + "'", [&](const std::string& line) {
        std::istringstream fields(line);
        std::string address;
        std::string type;
        std::string name;
        fields >> address >> type >> name;
        if (!name.starts_with("__odr_asan")) names.insert(name); // a sanitizer's mark
    });
    return names;
}

Names without(Names names, const Names& others) {
    for (const std::string& name : others) names.erase(name);
    return names;
}

void expectExports(const std::string& path, const Names& expected) {
    const Names exports = exportsOf(path);
    EXPECT_EQ(without(exports, expected), Names()) << "exported by " << path;
    EXPECT_EQ(without(expected, exports), Names()) << "missing in " << path;
}

TEST(Symbols, ofEveryVariant) {
    Names expected = {"qormGetLibVersion"};
    for (const Function& function : allFunctions()) {
        const std::string core = "own" + function.name;
        expected.insert(function.name);
        if (function.isDirect()) continue;
        expected.insert(core);
        if (function.array) expected.insert("ownOMP_" + function.name);
        const bool hasOneCore = function.isOneOf("FrobNorm", "m");
        if (function.layout == Layout::S && !hasOneCore) expected.insert(core + "_S2");
        if (function.layout == Layout::L) expected.insert(core + "S2");
        // The cores of all sizes that have no path of their own.
        if (function.operation == "LUDecomp" && function.layout == Layout::S && !function.array) {
            expected.insert({core + "_S_com", core + "_S2_com", core + "_P_com"});
        }
    }
    for (const std::string& path : libraryPaths()) expectExports(path, expected);
}

TEST(Symbols, ofTheSettings) {
    expectExports(settingsLibraryPath(),
                  {"threads_omp_of_n_qor", "qorSetThreadCount", "qorGetThreadCount"});
}

} // namespace
