// When a call spreads over threads, and how.
//
// The split is fixed by the thread setting and trusts to get all its threads. So under a limit of
// the real threads a call that spreads leaves the shares of the missing ones undone, which shows
// from outside whether it did, and where the shares end.
#include "harness/call.h"

#include "qorcore.h"
#include "qorm/types.h"

#include <climits>
#include <gtest/gtest.h>
#include <omp.h>

namespace {

using namespace harness;

using Measure = std::int64_t(std::int64_t w, std::int64_t h, std::int64_t c);

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
constexpr Thresholds vectors = {1701, 1701, 1701, 1701, 1701};

const Row rows[] = {
    {"Add Sub", "mam tam mat tat mma tma mta tta",
     [](std::int64_t w, std::int64_t h, std::int64_t c) { return w * h * (2 * c + 1); }, sums,
     sums},
    {"Add Sub", "mama tama mata tata",
     [](std::int64_t w, std::int64_t h, std::int64_t c) { return 3 * w * h * c; }, sums, sums},
    {"EigenValuesSym",
     "ma",
     [](std::int64_t n, std::int64_t, std::int64_t c) { return n * (n + 1) * c; },
     {20001, 20001, 20001, 40001, 20001},
     {20001, 20001, 20001, 20001, 20001}},
    {"EigenValuesVectorsSym", "ma",
     [](std::int64_t n, std::int64_t, std::int64_t c) { return n * (2 * n + 1) * c; }, vectors,
     vectors},
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
    return function.parameters.back().name == "widthHeight";
}

Sizes sizesOf(const Function& function, int width, int height, int count) {
    if (isSquare(function)) return {{"widthHeight", width}, {"count", count}};
    return {{"width", width}, {"height", height}, {"count", count}};
}

// Matrices of a few shapes, and wide ones of a power of two, whose multiples some thresholds are.
std::vector<std::pair<int, int>> shapesFor(const Function& function) {
    std::vector<std::pair<int, int>> shapes;
    if (isSquare(function)) {
        for (int size = 1; size <= 6; ++size) shapes.emplace_back(size, size);
        return shapes;
    }
    for (int height = 1; height <= 5; ++height) {
        for (int width = 1; width <= 200; ++width) shapes.emplace_back(width, height);
    }
    for (int width = 256; width <= 4096; width *= 2) shapes.emplace_back(width, 1);
    return shapes;
}

// Sizes whose measure is the largest below `threshold`, or the smallest that reaches it.
Sizes sizesNear(const Function& function, int threshold, bool reaches) {
    Measure* const measure = rowOf(function).measure;
    Sizes best;
    std::int64_t leastDistance = INT_MAX;
    for (const auto& [width, height] : shapesFor(function)) {
        int below = 0; // the largest count whose measure is below the threshold
        for (int step = 1 << 16; step > 0; step /= 2) {
            if (measure(width, height, below + step) < threshold) below += step;
        }
        const int count = below + (reaches ? 1 : 0);
        const std::int64_t distance = std::abs(measure(width, height, count) - threshold);
        if (count <= 3 || distance >= leastDistance) continue;
        leastDistance = distance;
        best = sizesOf(function, width, height, count);
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

// Large enough for every function to spread.
constexpr int largeSize = 76;
Sizes largeSizes(const Function& function, int count) {
    return sizesOf(function, largeSize, largeSize, count);
}

TEST_P(FanOut, givesTheFirstThreadsTheRemainder) {
    qorSetThreadCount(3);
    for (const auto& [granted, done] : {std::pair(1, 3), std::pair(2, 5), std::pair(3, 7)}) {
        Call call(GetParam(), largeSizes(GetParam(), 7), packed, 3);
        expectDone(call, granted, done, true);
    }
}

TEST_P(FanOut, needsTwoThreadsAndAnObjectForEach) {
    for (const int threads : {INT_MIN, -1, 0, 1, 8, INT_MAX}) {
        qorSetThreadCount(threads);
        Call call(GetParam(), largeSizes(GetParam(), 7), packed, 4);
        expectDone(call, 1, 7, false);
    }
    qorSetThreadCount(7);
    Call call(GetParam(), largeSizes(GetParam(), 7), packed, 5);
    expectDone(call, 1, 1, true);
}

// A thread's share of the pointer layout begins at a larger shift, which has to fit 32 bits.
TEST_P(FanOut, doesNotOverflowShifts) {
    const Function& function = GetParam();
    if (function.layout != Layout::P) return;
    qorSetThreadCount(3);
    const Placement placement = {.name = "largest shift", .shift = INT_MAX / function.elementSize};
    Call call(function, largeSizes(function, 7), placement, 6);
    expectDone(call, 1, 7, false);
}

// A status of one thread is that of the call, and the other threads' objects are done.
TEST_P(FanOut, returnsTheStatusOfAnyThread) {
    const Function& function = GetParam();
    if (!function.operation.starts_with("Eigen")) return;
    qorSetThreadCount(3);
    for (const auto& [granted, expected] :
         {std::pair(1, qorStatusOk), std::pair(2, qorStatusSingular)}) {
        Call call(function, largeSizes(function, 7), packed, 7);
        fillWithDiagonals(call);
        call.operand("Src").setNumber(4, 0, 0, 0);
        EXPECT_EQ(runGranted(granted, call, libraries().front()), expected) << call.describe();
        EXPECT_FALSE(call.result().isUntouched(2)) << call.describe();
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
// Only a call that stays on the thread leaves its mark in the caller's scratch.
TEST_P(FanOut, countsANegativeMeasureOfEigenAsSmall) {
    const Function& function = GetParam();
    if (!function.operation.starts_with("Eigen") || function.layout == Layout::P) return;
    const int mostPositive = INT_MAX / (function.operation == "EigenValuesSym" ? 6 : 10);
    qorSetThreadCount(2);
    for (const int count : {mostPositive, mostPositive + 1}) {
        Call call(function, sizesOf(function, 2, 2, 64), packed, 9);
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
    Call call(function, largeSizes(function, 8), packed, 10);
    fillWithDiagonals(call);
#pragma omp parallel num_threads(2)
#pragma omp single
    call.run(libraries().front());
    qorSetThreadCount(before);
    for (int n = 0; n < 8; ++n) EXPECT_EQ(call.result().isUntouched(n), n >= 2) << n;
}

} // namespace
