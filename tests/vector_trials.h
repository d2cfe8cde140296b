// Trials of the vector operations and the products of a matrix with vectors: one call in every
// variant of the library, compared with the model.
#pragma once

#include "harness/inputs.h"
#include "harness/placements.h"
#include "harness/thread_count.h"
#include "vectors_oracle.h"

#include "qorm/types.h"

#include <functional>
#include <gtest/gtest.h>
#include <sstream>

namespace harness {

class VectorTrials : public testing::TestWithParam<Function> {
protected:
    struct Trial {
        Sizes sizes;
        const Placement& placement;
        std::string_view inPlaceOf = {};
        bool negativeZeros = false; // are all products
        bool withoutNan = false;    // where its bits, which are anybody's, would be read as numbers
        std::function<void(Call&)> rearrange = [](Call&) {};
    };

    const Function& function = GetParam();

    std::vector<int> countsOf(std::vector<int> counts) const {
        return function.array ? counts : std::vector{1};
    }

    // One fault of a test is enough.
    void test(const Trial& trial) {
        using vectors_oracle::Stores;
        for (const Library& library : libraries()) {
            if (HasFailure()) return;
            ++seed;
            std::string fault = faultOf(trial, library, Stores::eachStep);
            const bool mayStoreOnce = function.isOneOf("Mul", "mav tav mva tva mava tava") &&
                                      function.layout != Layout::L;
            if (mayStoreOnce && !fault.empty() && faultOf(trial, library, Stores::theSum).empty())
                fault.clear();
            EXPECT_EQ(fault, "");
        }
    }

    // Everything at boundaries of 16 bytes, then all but one address or stride.
    void testBoundaries(const Sizes& sizes) {
        const Placement roomy = {
            .name = "at boundaries", .rowGap = 8, .objectGap = 32, .misalignment = 32};
        int conditions = 0;
        for (int broken = -1; broken < std::max(conditions, 1); ++broken) {
            const auto place = [&](Call& call) {
                conditions = 0;
                for (Operand& operand : call.operands()) {
                    const auto atBoundary = [&](std::int32_t bytes) {
                        const std::int32_t boundary = (bytes + 15) / 16 * 16;
                        return boundary + (conditions++ == broken ? 8 : 0);
                    };
                    if (operand.parameter.kind == Parameter::value) continue;
                    operand.base = operand.memory->begin() + atBoundary(16);
                    if (operand.parameter.isPlain()) continue;
                    const std::int32_t row = operand.columns * operand.elementSize;
                    const bool isVector = operand.parameter.isVector();
                    operand.stride1 = isVector ? row : atBoundary(row);
                    if (operand.parameter.array)
                        operand.stride0 = atBoundary(operand.rows * operand.stride1);
                }
            };
            test({.sizes = sizes, .placement = roomy, .rearrange = place});
        }
    }

    // One operand at every address, the others at any.
    void testAddresses(const Sizes& sizes) {
        for (const Parameter& moved : function.parameters) {
            if (moved.kind == Parameter::size || moved.kind == Parameter::value) continue;
            for (int byte = 0; byte < 16; ++byte) {
                const Placement anywhere = {
                    .name = "anywhere", .shift = 1, .misalignment = byte + 16};
                const auto place = [&](Call& call) {
                    Random random(seed);
                    for (Operand& operand : call.operands()) {
                        if (operand.table || operand.parameter.name == moved.name) continue;
                        operand.base -= (random() >> 32) % 16;
                    }
                };
                test({.sizes = sizes, .placement = anywhere, .rearrange = place});
            }
        }
    }

private:
    template <class T>
    void fill(const Call& call, bool negativeZeros) const {
        Random numbers(seed);
        bool isFirst = true;
        for (const Operand& operand : call.operands()) {
            const auto kind = operand.parameter.kind;
            if (kind != Parameter::source && kind != Parameter::value) continue;
            operand.forEachElement([&](int n, int i, int j) {
                const T value = !negativeZeros ? mixedValue<T>(numbers, seed) : isFirst ? -T(0) : 1;
                operand.set(n, i, j, value);
            });
            isFirst = false;
        }
    }

    template <class T>
    static bool isNanAmong(const Operand& results) {
        bool isAmong = false;
        results.forEachElement(
            [&](int n, int i, int j) { isAmong |= std::isnan(results.expected<T>(n, i, j)); });
        return isAmong;
    }

    std::string faultOf(const Trial& trial, const Library& library, vectors_oracle::Stores stores) {
        Call call(function, trial.sizes, trial.placement, seed, trial.inPlaceOf);
        trial.rearrange(call);
        return withType(function, [&]<class T>(T) -> std::string {
            fill<T>(call, trial.negativeZeros);
            vectors_oracle::expectResults<T>(call, function, stores);
            if (trial.withoutNan && isNanAmong<T>(call.result())) return {};
            const std::int32_t status = call.run(library);
            const std::string fault =
                status == qorStatusOk ? call.difference() : "status " + std::to_string(status);
            return fault.empty() ? fault : fault + "\nin " + whereabouts(call, trial);
        });
    }

    static std::string whereabouts(const Call& call, const Trial& trial) {
        std::ostringstream text;
        text << call.describe();
        if (!trial.inPlaceOf.empty()) text << ", in place of " << trial.inPlaceOf;
        for (const Operand& operand : call.operands()) {
            if (operand.parameter.kind == Parameter::value) continue;
            text << "; " << operand.parameter.name << " at "
                 << reinterpret_cast<std::uintptr_t>(operand.address(0, 0, 0)) % 64
                 << " mod 64, strides " << operand.stride0 << ", " << operand.stride1 << ", "
                 << operand.stride2;
        }
        return text.str();
    }

    const ThreadCount setting_{1}; // overlapping objects show the order in which they are done
    static inline std::uint64_t seed = 0;
};

// A result worked out by hand.
struct VectorCase {
    const char* description;
    const char* functions; // operations, or names without their prefix
    Size size;
    std::vector<std::vector<double>> sources; // and constants, in their order
    std::vector<double> result;
    int address = 0; // of all operands, mod 16
    int gap = 0;     // between elements
    std::string_view inPlaceOf = {};

    bool isOf(const Function& function) const {
        return contains(functions, function.operation) ||
               contains(functions, std::string_view(function.name).substr(4));
    }
};

template <class T>
void expectCase(const Function& function, const Sizes& sizes, const VectorCase& known) {
    const Placement placement = {
        .name = "of the case", .elementGap = known.gap, .misalignment = 16 + known.address};
    Call call(function, sizes, placement, 1, known.inPlaceOf);
    auto source = known.sources.begin();
    for (const Operand& operand : call.operands()) {
        const auto kind = operand.parameter.kind;
        if (kind != Parameter::source && kind != Parameter::value) continue;
        auto element = source++->begin();
        operand.forEachElement(
            [&](int n, int i, int j) { operand.setNumber(n, i, j, *element++); });
    }
    vectors_oracle::expectResults<T>(call, function);
    EXPECT_EQ(call.run(libraries().back()), qorStatusOk);
    call.result().forEachElement([&](int n, int i, int j) {
        const T want = static_cast<T>(known.result.begin()[j]);
        for (const T got : {call.result().get<T>(n, i, j), call.result().expected<T>(n, i, j)}) {
            EXPECT_TRUE(got == want && std::signbit(got) == std::signbit(want))
                << "element " << j << " got " << got << " want " << want;
        }
    });
}

// Cases of both types, in terms of the smallest B for which B + 1 rounds to B.
inline void expectCases(const std::vector<Function>& functions,
                        std::vector<VectorCase> (*casesOf)(double B),
                        Sizes (*sizesOf)(const Function&, Size, int)) {
    const std::vector<VectorCase> of32f = casesOf(0x1p24);
    const std::vector<VectorCase> of64f = casesOf(0x1p53);
    for (std::size_t k = 0; k < of32f.size(); ++k) {
        int tested = 0;
        for (const Function& function : functions) {
            if (!of32f[k].isOf(function)) continue;
            SCOPED_TRACE(of32f[k].description + (" of " + function.name));
            const Sizes sizes = sizesOf(function, of32f[k].size, 1);
            withType(function, [&]<class T>(T) {
                expectCase<T>(function, sizes, sizeof(T) == 4 ? of32f[k] : of64f[k]);
            });
            ++tested;
        }
        EXPECT_GT(tested, 0) << of32f[k].description;
    }
}

} // namespace harness
