// When a call spreads over threads, and how.
//
// The split is fixed by the thread setting and trusts to get all its threads. So under a limit of
// the real threads a call that spreads leaves the shares of the missing ones undone, which shows
// from outside whether it did, and where the shares end.
#include "harness/call.h"

#include "qorcore.h"
#include "qorm/types.h"

#include <algorithm>
#include <array>
#include <climits>
#include <gtest/gtest.h>
#include <omp.h>

namespace {

using namespace harness;

// Of the sizes in their argument order, as many as there are, and of the count.
using Int = std::int64_t;
using Measure = Int(Int w1, Int h1, Int w2, Int h2, Int c);

// Smallest measures that spread: standard layout (contiguous, general), _P, _L (contiguous, general).
struct Thresholds {
    int standard, standardGeneral, pointers, list, listGeneral;
};

struct Row {
    std::string_view operations;
    std::string_view shapes;
    Measure* measure;
    Thresholds of32f;
    Thresholds of64f;
};

constexpr Thresholds sums = {36864, 18432, 9216, 18432, 18432};
constexpr Thresholds products = {36865, 18433, 9217, 18433, 18433};
constexpr Thresholds squares = {20001, 20001, 20001, 20001, 20001};
constexpr Thresholds listsOf32fLater = {20001, 20001, 20001, 40001, 20001};
constexpr Thresholds vectors = {1701, 1701, 1701, 1701, 1701};

const Row rows[] = {
    {"Add Sub", "mam tam mat tat mma tma mta tta",
     [](Int w, Int h, Int, Int, Int c) { return w * h * (2 * c + 1); }, sums, sums},
    {"Add Sub", "mama tama mata tata", [](Int w, Int h, Int, Int, Int c) { return 3 * w * h * c; },
     sums, sums},
    {"Mul", "mam",
     [](Int w1, Int h1, Int w2, Int h2, Int c) { return w2 * h2 + (w2 + w1) * h1 * c; }, products,
     products},
    {"Mul", "tam",
     [](Int w1, Int h1, Int w2, Int h2, Int c) { return w2 * h2 + (w2 + h1) * w1 * c; }, products,
     products},
    {"Mul", "mat",
     [](Int w1, Int h1, Int w2, Int h2, Int c) { return w2 * h2 + (h2 + w1) * h1 * c; }, products,
     products},
    {"Mul", "tat",
     [](Int w1, Int h1, Int w2, Int h2, Int c) { return w2 * h2 + (h2 + h1) * w1 * c; }, products,
     products},
    {"Mul", "mma",
     [](Int w1, Int h1, Int w2, Int h2, Int c) { return w1 * h1 + (h1 + h2) * w2 * c; }, products,
     products},
    {"Mul", "tma",
     [](Int w1, Int h1, Int w2, Int h2, Int c) { return w1 * h1 + (w1 + h2) * w2 * c; }, products,
     products},
    {"Mul", "mta",
     [](Int w1, Int h1, Int w2, Int h2, Int c) { return w1 * h1 + (h1 + w2) * h2 * c; }, products,
     products},
    {"Mul", "tta",
     [](Int w1, Int h1, Int w2, Int h2, Int c) { return w1 * h1 + (w1 + w2) * h2 * c; }, products,
     products},
    {"Mul", "mama",
     [](Int w1, Int h1, Int w2, Int h2, Int c) { return (h1 * (w1 + w2) + w2 * h2) * c; }, products,
     products},
    {"Mul", "tama",
     [](Int w1, Int h1, Int w2, Int h2, Int c) { return (w1 * (h1 + w2) + w2 * h2) * c; }, products,
     products},
    {"Mul", "mata",
     [](Int w1, Int h1, Int w2, Int h2, Int c) { return (w1 * h1 + w2 * h2 + h1 * h2) * c; },
     products, products},
    {"Mul", "tata",
     [](Int w1, Int h1, Int w2, Int h2, Int c) { return (w1 * h1 + w2 * h2 + w1 * h2) * c; },
     products, products},
    {"Det", "ma", [](Int n, Int, Int, Int, Int c) { return n * c; }, listsOf32fLater, squares},
    {"Invert", "ma", [](Int n, Int, Int, Int, Int c) { return 2 * n * c; }, listsOf32fLater,
     squares},
    {"EigenValuesSym", "ma", [](Int n, Int, Int, Int, Int c) { return n * (n + 1) * c; },
     listsOf32fLater, squares},
    {"EigenValuesVectorsSym", "ma", [](Int n, Int, Int, Int, Int c) { return n * (2 * n + 1) * c; },
     vectors, vectors},
};

const Row& rowOf(const Function& function) {
    for (const Row& row : rows) {
        if (function.isOneOf(row.operations, row.shapes)) return row;
    }
    throw std::out_of_range("no thresholds of " + function.name);
}

int thresholdOf(const Function& function, bool contiguous) {
    const Row& row = rowOf(function);
    const Thresholds& of = function.elementSize == 4 ? row.of32f : row.of64f;
    switch (function.layout) {
    case Layout::S:
        return contiguous ? of.standard : of.standardGeneral;
    case Layout::P:
        return of.pointers;
    default:
        return contiguous ? of.list : of.listGeneral;
    }
}

bool isSquare(const Function& function) {
    return std::any_of(function.parameters.begin(), function.parameters.end(),
                       [](const Parameter& parameter) { return parameter.name == "widthHeight"; });
}

// Of the result, where sources have sizes of their own.
Sizes sizesOf(const Function& function, int width, int height, int count) {
    if (function.operation == "Mul") return productSizes(function, height, 4, width, count);
    if (isSquare(function)) return {{"widthHeight", width}, {"count", count}};
    return {{"width", width}, {"height", height}, {"count", count}};
}

// Matrices of a few shapes, and wide ones of a power of two, whose multiples some thresholds are.
std::vector<std::pair<int, int>> shapesFor(const Function& function) {
    std::vector<std::pair<int, int>> shapes;
    if (isSquare(function)) {
        const int smallest = function.operation == "Invert" ? 2 : 1; // inverts 1 in the entry
        for (int size = smallest; size <= 6; ++size) shapes.emplace_back(size, size);
        return shapes;
    }
    for (int height = 1; height <= 5; ++height) {
        for (int width = 1; width <= 200; ++width) shapes.emplace_back(width, height);
    }
    for (int width = 256; width <= 4096; width *= 2) shapes.emplace_back(width, 1);
    return shapes;
}

// The measure of a function's calls with the given sizes, by their count.
auto measureOf(const Function& function, const Sizes& sizes) {
    std::array<Int, 4> of{};
    auto next = of.begin();
    for (const Argument& argument : function.arguments) {
        if (argument.meaning == Argument::size) *next++ = sizes.at(argument.name);
    }
    return [of, measure = rowOf(function).measure](Int count) {
        return measure(of[0], of[1], of[2], of[3], count);
    };
}

// Sizes whose measure is the largest below `threshold`, or the smallest that reaches it.
Sizes sizesNear(const Function& function, int threshold, bool reaches) {
    Sizes best;
    Int leastDistance = INT_MAX;
    for (const auto& [width, height] : shapesFor(function)) {
        Sizes sizes = sizesOf(function, width, height, 1);
        const auto measure = measureOf(function, sizes);
        int below = 0; // the largest count whose measure is below the threshold
        for (int step = 1 << 16; step > 0; step /= 2) {
            if (measure(below + step) < threshold) below += step;
        }
        sizes["count"] = below + (reaches ? 1 : 0);
        const Int distance = std::abs(measure(sizes["count"]) - threshold);
        if (sizes["count"] <= 3 || distance >= leastDistance) continue;
        leastDistance = distance;
        best = sizes;
    }
    return best;
}

void fillWithDiagonals(Call& call) {
    for (const Operand& source : call.operands()) {
        if (source.parameter.kind != Parameter::source) continue;
        source.forEachElement(
            [&](int n, int i, int j) { source.setNumber(n, i, j, i == j ? 2 : 0); });
    }
}

// Runs the call while the runtime grants at most `granted` threads.
std::int32_t runGranted(int granted, Call& call, const Library& library) {
    std::int32_t status = 0;
#pragma omp teams num_teams(1) thread_limit(granted)
    status = call.run(library);
    return status;
}

// Runs the call and expects that the first `done` objects were computed, and only those. A call that
// spreads leaves the caller's scratch alone.
void expectDone(Call& call, int granted, int done, bool spreads) {
    fillWithDiagonals(call);
    EXPECT_EQ(runGranted(granted, call, libraries().front()), qorStatusOk) << call.describe();
    const Operand& result = call.result();
    int written = 0;
    while (written < result.objects && !result.isUntouched(written)) ++written;
    EXPECT_EQ(written, done) << call.describe() << ", granted " << granted;
    for (int n = written; n < result.objects; ++n) {
        ASSERT_TRUE(result.isUntouched(n)) << call.describe() << ", object " << n;
    }
    if (call.scratch() != nullptr && spreads) {
        EXPECT_TRUE(call.scratch()->isUntouched(0)) << call.describe();
    }
}

class FanOut : public testing::TestWithParam<Function> {
public:
    ~FanOut() override { qorSetThreadCount(before_); }

private:
    std::int32_t before_ = qorGetThreadCount();
};

const Placement packed = {.name = "packed"};

TEST_P(FanOut, beginsAtTheThreshold) {
    const Function& function = GetParam();
    const auto matrices = std::count_if(
        function.parameters.begin(), function.parameters.end(), [](const Parameter& parameter) {
            return parameter.kind == Parameter::source || parameter.kind == Parameter::result;
        });
    qorSetThreadCount(3);
    // Contiguous but for the elements of one operand, or of none.
    for (int apart = 0; apart <= matrices; ++apart) {
        const Placement placement = {
            .name = "one operand's elements apart", .elementGap = 1, .gapsOnlyIn = apart};
        const int threshold = thresholdOf(function, apart == matrices);
        const Sizes below = sizesNear(function, threshold, false);
        const Sizes reaching = sizesNear(function, threshold, true);
        Call stays(function, below, placement, 1);
        expectDone(stays, 1, below.at("count"), false);
        Call spreads(function, reaching, placement, 2);
        expectDone(spreads, 1, (reaching.at("count") + 2) / 3, true);
    }
}

// Large enough for every function to spread, and one object more than a multiple of 3.
Sizes largeSizes(const Function& function) {
    const bool countsElements = !function.isOneOf("Det Invert", "ma");
    return countsElements ? sizesOf(function, 76, 76, 7) : sizesOf(function, 6, 6, 6700);
}

TEST_P(FanOut, givesTheFirstThreadsTheRemainder) {
    const Sizes sizes = largeSizes(GetParam());
    qorSetThreadCount(3);
    for (const int granted : {1, 2, 3}) {
        Call call(GetParam(), sizes, packed, 3);
        expectDone(call, granted, granted * (sizes.at("count") / 3) + 1, true);
    }
}

TEST_P(FanOut, needsTwoThreadsAndAnObjectForEach) {
    const Sizes sizes = largeSizes(GetParam());
    const int count = sizes.at("count");
    for (const int threads : {INT_MIN, -1, 0, 1, count + 1, INT_MAX}) {
        qorSetThreadCount(threads);
        Call call(GetParam(), sizes, packed, 4);
        expectDone(call, 1, count, false);
    }
    qorSetThreadCount(count);
    Call call(GetParam(), sizes, packed, 5);
    expectDone(call, 1, 1, true);
}

// The inverse of one element is a reciprocal, done on the spot.
TEST_P(FanOut, neverBeginsForInversesOfOneElement) {
    if (GetParam().operation != "Invert") return;
    qorSetThreadCount(3);
    Call call(GetParam(), sizesOf(GetParam(), 1, 1, 50000), packed, 6);
    expectDone(call, 1, 50000, false);
}

// A thread's share of the pointer layout begins at a larger shift, which has to fit 32 bits.
TEST_P(FanOut, doesNotOverflowShifts) {
    const Function& function = GetParam();
    if (function.layout != Layout::P) return;
    const Sizes sizes = largeSizes(function);
    qorSetThreadCount(3);
    const Placement placement = {.name = "largest shift", .shift = INT_MAX / function.elementSize};
    Call call(function, sizes, placement, 6);
    expectDone(call, 1, sizes.at("count"), false);
}

// Whether there are matrices that it answers with a status.
bool canFail(const Function& function) {
    return function.isOneOf("Invert EigenValuesSym EigenValuesVectorsSym", "ma");
}

// A status of one thread is that of the call, and the other threads' objects are done.
TEST_P(FanOut, returnsTheStatusOfAnyThread) {
    const Function& function = GetParam();
    if (!canFail(function)) return;
    const Sizes sizes = largeSizes(function);
    const int third = sizes.at("count") / 3;
    qorSetThreadCount(3);
    for (const auto& [granted, expected] :
         {std::pair(1, qorStatusOk), std::pair(2, qorStatusSingular)}) {
        Call call(function, sizes, packed, 7);
        fillWithDiagonals(call);
        call.operand("Src").setNumber(2 * third, 0, 0, 0);
        EXPECT_EQ(runGranted(granted, call, libraries().front()), expected) << call.describe();
        EXPECT_FALSE(call.result().isUntouched(third)) << call.describe();
    }
}

// Measures are computed in 32 bits: one that wraps to a negative value counts as small. Here the
// rows, columns and objects of large matrices overlap in little memory.
TEST_P(FanOut, countsANegativeMeasureOfSumsAsSmall) {
    const Function& function = GetParam();
    const bool withSingle = function.name == "qormAdd_mam_32f";
    if (!withSingle && function.name != "qormSub_mama_32f") return;
    const int size = withSingle ? 20725 : 18919; // size * size * (5 or 6) is just above 2^31
    qorSetThreadCount(2);
    Call call(function, sizesOf(function, size, size, 2),
              {.name = "overlapping", .overlapping = true}, 8);
    EXPECT_EQ(runGranted(1, call, libraries().front()), qorStatusOk);
    const char* last = call.result().address(1, size - 1, size - 1);
    EXPECT_NE(std::memcmp(last, call.result().memory->imageOf(last), sizeof(float)), 0)
        << call.describe();
}

// The first object is singular and ends the call, whatever its count; a few more may be read ahead.
// Only a call that stays on the thread leaves its mark in the scratch that such large ones need.
TEST_P(FanOut, countsANegativeMeasureOfSquaresAsSmall) {
    const Function& function = GetParam();
    if (!canFail(function) || function.layout == Layout::P) return;
    const int mostPositive =
        INT_MAX / static_cast<int>(measureOf(function, sizesOf(function, 20, 20, 1))(1));
    qorSetThreadCount(2);
    for (const int count : {mostPositive, mostPositive + 1}) {
        Call call(function, sizesOf(function, 20, 20, 64), packed, 9);
        fillWithDiagonals(call);
        call.operand("Src").setNumber(0, 0, 0, 0);
        call.claim("count", count);
        EXPECT_EQ(runGranted(1, call, libraries().front()), qorStatusSingular) << call.describe();
        EXPECT_EQ(call.scratch()->isUntouched(0), count == mostPositive) << call.describe();
    }
}

std::vector<Function> arrayFunctions() {
    std::vector<Function> functions = allFunctions();
    std::erase_if(functions, [](const Function& function) { return !function.array; });
    return functions;
}
INSTANTIATE_TEST_SUITE_P(, FanOut, testing::ValuesIn(arrayFunctions()),
                         [](const auto& tested) { return tested.param.name; });

// Inside a parallel region that is not nested there is a team of one.
TEST(FanOutInside, aParallelRegionDoesOneShare) {
    const Function function = functionOf("qormSub_mama_64f");
    const std::int32_t before = qorGetThreadCount();
    qorSetThreadCount(4);
    omp_set_max_active_levels(1);
    Call call(function, largeSizes(function), packed, 10);
    fillWithDiagonals(call);
#pragma omp parallel num_threads(2)
#pragma omp single
    call.run(libraries().front());
    qorSetThreadCount(before);
    for (int n = 0; n < 7; ++n) EXPECT_EQ(call.result().isUntouched(n), n >= 2) << n;
}

} // namespace
