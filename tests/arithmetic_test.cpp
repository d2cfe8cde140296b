// The instructions of the built libraries. A product fused with a sum rounds once where twice is
// promised, and so does one in a wider register; estimates of reciprocals differ between processors.
// Compilers fuse on their own, some in spite of -ffp-contract=off.
#include "harness/library.h"
#include "harness/process.h"

#include <gtest/gtest.h>
#include <regex>

namespace {

// Mnemonics.
#if defined(__aarch64__)
const std::regex forbidden("fn?m(add|sub)|fml[as].*|fcmla|frecp.*|frsqrt.*");
const std::regex allowedInCholesky;
const std::regex sum("fadd");
#else
// Fused ones, those of the x87, estimates.
const std::regex forbidden("v?fn?m.*|f(i?(add|sub|mul|div)|sqrt).*|v?(rcp|rsqrt).*");
const std::regex allowedInCholesky("v?rsqrt[sp]s"); // the same in all builds
const std::regex sum("v?addps");
#endif

TEST(Arithmetic, roundsEveryOperation) {
    const std::regex instruction(R"(^\s*[0-9a-f]+:\t(\S+))");
    for (const std::string& path : harness::libraryPaths()) {
        std::string function;
        int sums = 0;
        harness::forEachOutputLine(
            QORM_OBJDUMP " -d --no-show-raw-insn '" + path + "'", [&](const std::string& line) {
                if (line.ends_with(">:")) function = line;
                std::smatch match;
                if (!std::regex_search(line, match, instruction)) return;
                const std::string mnemonic = match[1];
                const bool isAllowed = std::regex_match(mnemonic, allowedInCholesky) &&
                                       function.find("Cholesky") != std::string::npos;
                EXPECT_TRUE(isAllowed || !std::regex_match(mnemonic, forbidden))
                    << path << ' ' << function << ' ' << line;
                if (std::regex_match(mnemonic, sum)) ++sums;
            });
        EXPECT_GT(sums, 0) << "no instructions were read from " << path;
    }
}

} // namespace
