// Sums and differences of matrices, element by element and bit by bit, wherever the operands lie.
#include "harness/placements.h"
#include "harness/thread_count.h"

#include "qorm/types.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

using namespace harness;

template <class T>
T randomValue(Random& random) {
    using Limits = std::numeric_limits<T>;
    static constexpr T special[] = {T(0),
                                    -T(0),
                                    Limits::infinity(),
                                    -Limits::infinity(),
                                    Limits::quiet_NaN(),
                                    Limits::denorm_min(),
                                    -Limits::min(),
                                    Limits::max(),
                                    Limits::lowest(),
                                    T(1),
                                    -T(1),
                                    Limits::epsilon()};
    const std::uint64_t bits = random();
    if (bits % 8 == 0) return special[(bits >> 8) % std::size(special)];
    return static_cast<T>(static_cast<std::int64_t>(bits)) / static_cast<T>(1 << (bits % 30));
}

template <class T>
void fill(const Operand& source, Random& random) {
    source.forEachElement(
        [&](int n, int i, int j) { source.set(n, i, j, randomValue<T>(random)); });
}

// The definition, in the order of objects, rows and columns, which shows where elements overlap.
template <class T>
void expectSums(const Call& call, bool isDifference) {
    const Operand& a = call.operand("Src1");
    const Operand& b = call.operand("Src2");
    const Operand& sum = call.operand("Dst");
    sum.forEachElement([&](int n, int i, int j) {
        const T x = a.expected<T>(n, i, j);
        const T y = b.expected<T>(n, i, j);
        sum.expect<T>(n, i, j, isDifference ? x - y : x + y);
    });
}

template <class T>
std::string faultOf(Call& call, const Function& function, const Library& library,
                    std::uint64_t seed) {
    Random random(seed);
    fill<T>(call.operand("Src1"), random);
    fill<T>(call.operand("Src2"), random);
    expectSums<T>(call, function.operation == "Sub");
    const std::int32_t status = call.run(library);
    return status == qorStatusOk ? call.difference() : "status " + std::to_string(status);
}

// Calls the function in every variant of the library, each on data of its own.
void test(const Function& function, const Sizes& sizes, const Placement& placement,
          std::string_view inPlaceOf = {}) {
    static std::uint64_t seed = 0;
    for (const Library& library : libraries()) {
        ++seed;
        Call call(function, sizes, placement, seed, inPlaceOf);
        const std::string fault = function.elementSize == 4
                                      ? faultOf<float>(call, function, library, seed)
                                      : faultOf<double>(call, function, library, seed);
        EXPECT_EQ(fault, "") << call.describe() << (inPlaceOf.empty() ? "" : ", in place");
    }
}

const std::vector<Placement> placements = usualPlacementsAnd({
    {.name = "only the second operand's elements apart", .elementGap = 2, .gapsOnlyIn = 1},
    {.name = "only the destination's rows apart", .rowGap = 2, .gapsOnlyIn = 2},
    {.name = "overlapping", .overlapping = true},
});

struct Size {
    int width;
    int height;
};
constexpr Size sizes[] = {{1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}, {6, 6}, {7, 7},
                          {8, 8}, {1, 5}, {3, 4}, {4, 3}, {2, 5}, {67, 1}};

class Sums : public testing::TestWithParam<Function> {};

TEST_P(Sums, ofAllSizesInAllPlacements) {
    const ThreadCount setting(1); // overlapping objects show the order in which they are done
    const Function& function = GetParam();
    const std::vector<int> counts =
        function.array ? std::vector{1, 2, 17, 64, 100} : std::vector{1};
    for (const Placement& placement : placements) {
        for (const Size& size : sizes) {
            for (const int count : counts) {
                test(function, {{"width", size.width}, {"height", size.height}, {"count", count}},
                     placement);
            }
        }
    }
}

// A destination may lie on a source that is read as stored and is an array if the destination is.
TEST_P(Sums, inPlace) {
    const Function& function = GetParam();
    for (const Parameter& source : function.parameters) {
        const bool fits = source.kind == Parameter::source && !source.transposed &&
                          source.array == function.array;
        if (!fits) continue;
        for (const Placement& placement : placements) {
            if (placement.overlapping || placement.gapsOnlyIn >= 0) continue;
            for (const Size& size : {Size{3, 3}, Size{4, 4}, Size{2, 3}, Size{7, 7}}) {
                test(function,
                     {{"width", size.width},
                      {"height", size.height},
                      {"count", function.array ? 50 : 1}},
                     placement, source.name);
            }
        }
    }
}

// The destination begins on a source, or some elements or objects from there.
TEST_P(Sums, overSources) {
    const Function& function = GetParam();
    for (const Parameter& source : function.parameters) {
        if (source.kind != Parameter::source) continue;
        for (Placement placement :
             {Placement{.name = "over a source"}, Placement{.name = "rows apart", .rowGap = 1},
              Placement{.name = "side by side", .order = Placement::byPosition}}) {
            placement.destinationOn = source.name;
            for (const Placement::Step& step : {Placement::Step{},
                                                {.elements = 1},
                                                {.elements = -1},
                                                {.objects = 1},
                                                {.objects = -1}}) {
                placement.behindBy = step;
                for (const int n : {3, 4, 8}) {
                    test(function,
                         {{"width", n}, {"height", n}, {"count", function.array ? 35 : 1}},
                         placement);
                }
            }
        }
    }
}

// Calls large enough for every layout's fan-out: any number of threads gives the same bits.
TEST_P(Sums, onThreads) {
    const Function& function = GetParam();
    if (!function.array) return;
    for (const int threads : {2, 3, 7}) {
        const ThreadCount setting(threads);
        for (const Placement& placement : {packed, sideBySide}) {
            test(function, {{"width", 7}, {"height", 3}, {"count", 881}}, placement);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, Sums, testing::ValuesIn(functionsOf("Add Sub", "mm")),
                         [](const auto& tested) { return tested.param.name; });

} // namespace
