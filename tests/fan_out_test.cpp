// When a call spreads over threads, and how.
//
// The split is fixed by the thread setting and trusts to get all its threads. So under a limit of
// the real threads a call that spreads leaves the shares of the missing ones undone, which shows
// from outside whether it did, and where the shares end.
#include "harness/placements.h"
#include "harness/thread_count.h"

#include "qorm/types.h"

#include <algorithm>
#include <climits>
#include <gtest/gtest.h>
#include <omp.h>

namespace {

using namespace harness;

// Smallest measures that spread: of contiguous and general strides, but for pointers.
struct Thresholds {
    int standard, standardGeneral, pointers, list, listGeneral;
};

// Of single shapes, or of all others of a family.
struct Row {
    std::string_view names;
    Thresholds of32f;
    Thresholds of64f;
};

constexpr int never = INT_MAX;
constexpr Thresholds all(int threshold) {
    return {threshold, threshold, threshold, threshold, threshold};
}
constexpr Thresholds sums = {36864, 18432, 9216, 18432, 18432};
constexpr Thresholds products = {36865, 18433, 9217, 18433, 18433};
constexpr Thresholds rectangles = {2801, 2801, 1801, 1801, 1801};

const Row rows[] = {
    {"Sub_vva CrossProduct_vva",
     {20001, 20001, 20001, 40001, 40001},
     {20001, 20001, never, 20001, 20001}},
    {"Add_vac Add_vav Add_vava Sub_vac Sub_cva Sub_vav Sub_vava CrossProduct",
     {20001, 20001, 20001, 40001, 40001},
     all(20001)},
    {"Add Sub", sums, sums},
    {"Saxpy", all(40001), all(40001)},
    {"LComb", {20001, 20001, 20001, 40001, 20001}, all(20001)},
    {"Mul_mac Mul_tac", {35001, 35001, 17001, 35001, 15001}, {35001, 35001, 17001, 35001, 35001}},
    {"Mul", products, products},
    {"Gaxpy", all(5001), all(5001)},
    {"DotProduct", {40001, 20001, 20001, 40001, 20001}, {40001, 20001, 40001, 40001, 20001}},
    {"L2Norm", all(20001), all(20001)},
    {"Copy Extract LoadIdentity", all(never), all(never)},
    {"Det Invert EigenValuesSym Trace FrobNorm Transpose",
     {20001, 20001, 20001, 40001, 20001},
     all(20001)},
    {"EigenValuesVectorsSym LUBackSubst", all(1701), all(1701)},
    {"LUDecomp", {never, never, never, 40001, 20001}, all(never)},
    {"CholeskyDecomp", {7501, 7501, 2001, 2001, 2001}, {2001, 2001, 2001, 721, 2001}},
    {"CholeskyBackSubst_mva", {1201, 1201, 721, 721, 721}, all(721)},
    {"CholeskyBackSubst_mava", {2051, 1701, 1701, 1701, 1701}, {1701, 1701, 2051, 1701, 1701}},
    {"QRDecomp QRBackSubst", rectangles, rectangles},
};

const Row& rowOf(const Function& function) {
    for (const Row& row : rows) {
        if (contains(row.names, function.operation) ||
            contains(row.names, function.operation + '_' + function.shape)) {
            return row;
        }
    }
    throw std::out_of_range("no thresholds of " + function.name);
}

int thresholdOf(const Function& function, bool contiguous) {
    const Row& row = rowOf(function);
    const Thresholds& of = function.elementSize == 4 ? row.of32f : row.of64f;
    if (function.layout == Layout::P) return of.pointers;
    if (function.layout == Layout::L) return contiguous ? of.list : of.listGeneral;
    return contiguous ? of.standard : of.standardGeneral;
}

bool fansOut(const Function& function) {
    return thresholdOf(function, true) != never;
}
bool isDriver(const Function& function) {
    return function.name.starts_with("ownOMP_");
}

// Of the result, where sources have sizes of their own; upright for factors with as many rows.
Sizes sizesOf(const Function& function, int width, int height, int count) {
    if (function.hasSize("src1Width")) {
        return productSizes(function, height, function.operands == "mm" ? 4 : width, width, count);
    }
    if (function.hasSize("widthHeight")) return {{"widthHeight", width}, {"count", count}};
    if (function.operation.starts_with("QR") && width > height) std::swap(width, height);
    return {{"len", width * height}, {"width", width}, {"height", height}, {"count", count}};
}

// Matrices of a few shapes, and wide ones of a power of two, whose multiples some thresholds are.
std::vector<std::pair<int, int>> shapesFor(const Function& function) {
    std::vector<std::pair<int, int>> shapes;
    if (function.hasSize("widthHeight")) {
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

// The measure of a function's calls with the given sizes, by their count: the elements of all
// operands, but for some families.
auto measureOf(const Function& function, const Sizes& sizes) {
    std::int64_t single = 0;
    std::int64_t perObject = 0;
    for (const Parameter& parameter : function.parameters) {
        const bool isCounted = parameter.kind == Parameter::source ||
                               parameter.kind == Parameter::result ||
                               (parameter.kind == Parameter::results &&
                                !contains("DotProduct L2Norm FrobNorm", function.operation));
        if (!isCounted) continue;
        (parameter.array ? perObject : single) +=
            std::int64_t{extentOf(parameter.rows, sizes)} * extentOf(parameter.columns, sizes);
    }
    const auto n = [&] { return sizes.at("widthHeight"); };
    if (contains("Det Trace", function.operation)) perObject = n();
    if (function.operation == "Invert") perObject = 2 * n();
    if (contains("LUDecomp CholeskyDecomp", function.operation)) perObject = n() * n();
    if (function.operation == "Gaxpy") single = 0;
    if (function.isOneOf("Add Sub", "vac")) single = sizes.at("len");
    if (function.isOneOf("Sub", "cva")) {
        single = 1;
        perObject = 2;
    }
    if (function.operation == "CrossProduct") {
        single /= 3;
        perObject /= 3;
    }
    return [=](int count) { return single + perObject * count; };
}

// The largest count whose measure is below `threshold`.
int countBelow(std::int64_t threshold, const Function& function, const Sizes& sizes) {
    const auto measure = measureOf(function, sizes);
    int below = 0;
    for (int step = 1 << 30; step > 0; step /= 2) {
        if (measure(below + step) < threshold) below += step;
    }
    return below;
}

// Sizes of at least `least` whose measure is the largest below `threshold`, or the smallest that
// reaches it.
Sizes sizesNear(const Function& function, int least, int threshold, bool reaches) {
    Sizes best;
    std::int64_t leastDistance = INT_MAX;
    for (const auto& [width, height] : shapesFor(function)) {
        if (std::min(width, height) < least) continue;
        Sizes sizes = sizesOf(function, width, height, 1);
        sizes["count"] = countBelow(threshold, function, sizes) + (reaches ? 1 : 0);
        const auto distance = std::abs(measureOf(function, sizes)(sizes["count"]) - threshold);
        if (sizes["count"] <= 3 || distance >= leastDistance) continue;
        leastDistance = distance;
        best = sizes;
    }
    return best;
}

// The row of a column's one element: on the diagonal, or further down from object to object.
int rowOfColumn(int n, int j, int height, bool turned) {
    return turned ? (j + n) % height : j;
}

// Matrices of one element a row and column, with their rows in order of these columns.
void fill(const Call& call, bool turned = false) {
    for (const Operand& operand : call.operands()) {
        operand.forEachElement([&](int n, int i, int j) {
            const auto kind = operand.parameter.kind;
            if (kind == Parameter::source || kind == Parameter::value) {
                const int row = rowOfColumn(n, j, operand.readRows(), turned);
                operand.setNumber(n, i, j, i == row ? 2 : 0);
            } else if (operand.parameter.name == "SrcIndex") {
                operand.set<std::int32_t>(n, 0, j, rowOfColumn(n, j, operand.columns, turned));
            }
        });
    }
}

// Runs the call while the runtime grants at most `granted` threads.
std::int32_t runGranted(int granted, Call& call) {
    std::int32_t status = 0;
#pragma omp teams num_teams(1) thread_limit(granted)
    status = call.run(libraries().front());
    return status;
}

// Runs the call and expects that the first `done` objects were computed, and only those. A call
// that spreads leaves the caller's scratch alone.
void expectDone(Call& call, int granted, int done, bool spreads) {
    fill(call);
    EXPECT_EQ(runGranted(granted, call), qorStatusOk) << call.describe();
    const Operand& result = call.result();
    int written = 0;
    while (written < result.objects && !result.isUntouched(written)) ++written;
    EXPECT_EQ(written, done) << call.describe() << ", granted " << granted;
    for (const Operand& operand : call.operands()) {
        for (int n = written; n < operand.objects; ++n) {
            ASSERT_TRUE(operand.isUntouched(n)) << call.describe() << ", object " << n;
        }
    }
    if (call.scratch() != nullptr && spreads) {
        EXPECT_TRUE(call.scratch()->isUntouched(0)) << call.describe();
    }
}

class FanOut : public testing::TestWithParam<Function> {
protected:
    const Function& function = GetParam();

private:
    const ThreadCount setting_{3};
};

TEST_P(FanOut, beginsAtTheThreshold) {
    if (isDriver(function)) return;
    const auto strided =
        std::count_if(function.arguments.begin(), function.arguments.end(),
                      [](const Argument& a) { return a.meaning == Argument::stride2; });
    // Contiguous but for the elements of one operand, or of none.
    for (int apart = 0; apart <= strided; ++apart) {
        const Placement placement = {
            .name = "one operand's elements apart", .elementGap = 1, .gapsOnlyIn = apart};
        const int threshold = thresholdOf(function, apart == strided);
        for (const int leastSize : {1, 3}) {
            const Sizes below = sizesNear(function, leastSize, threshold, false);
            const Sizes reaching = sizesNear(function, leastSize, threshold, true);
            Call stays(function, below, placement, 1);
            expectDone(stays, 1, below.at("count"), false);
            Call spreads(function, reaching, placement, 2);
            expectDone(spreads, 1, (reaching.at("count") + 2) / 3, true);
        }
    }
}

// Large enough for every function to spread, and one object more than a multiple of 3.
Sizes largeSizes(const Function& function) {
    if (contains("Det Trace Invert", function.operation)) return sizesOf(function, 6, 6, 6700);
    const bool countsObjects =
        function.isOneOf("Mul Gaxpy Sub", "mva tva cva") || function.operation == "CrossProduct";
    return countsObjects ? sizesOf(function, 3, 3, 20002) : sizesOf(function, 76, 76, 7);
}

TEST_P(FanOut, givesTheFirstThreadsTheRemainder) {
    const Sizes sizes = largeSizes(function);
    for (const int granted : {1, 2, 3}) {
        Call call(function, sizes, packed, 3);
        expectDone(call, granted, granted * (sizes.at("count") / 3) + 1, true);
    }
}

TEST_P(FanOut, needsTwoThreadsAndAnObjectForEach) {
    const Sizes sizes = largeSizes(function);
    const int count = sizes.at("count");
    for (const int threads : {INT_MIN, -1, 0, 1, count + 1, INT_MAX}) {
        const ThreadCount setting(threads);
        Call call(function, sizes, packed, 4);
        expectDone(call, 1, count, false);
    }
    const ThreadCount setting(count);
    Call call(function, sizes, packed, 5);
    expectDone(call, 1, 1, true);
}

// The inverse of one element is a reciprocal, done on the spot.
TEST_P(FanOut, neverBeginsForInversesOfOneElement) {
    if (function.operation != "Invert") return;
    Call call(function, sizesOf(function, 1, 1, 50000), packed, 6);
    expectDone(call, 1, 50000, false);
}

// Every thread gets the indices of its objects' matrices, or those of the one matrix. The size is
// one whose last pivot is tested in any row.
TEST_P(FanOut, givesIndicesWithTheirMatrices) {
    const bool decomposes = function.operation == "LUDecomp";
    if (!decomposes && function.operation != "LUBackSubst") return;
    Call call(function, sizesOf(function, 7, 7, 901), packed, 6);
    fill(call, true);
    withType(function, [&]<class T>(T) {
        const Operand& result = call.result();
        result.forEachElement([&](int n, int i, int j) {
            result.expect<T>(n, i, j, decomposes ? call.operand("Src").get<T>(n, i, j) : 1);
            if (decomposes) {
                call.operand("DstIndex").expect<std::int32_t>(n, 0, j, rowOfColumn(n, j, 7, true));
            }
        });
    });
    EXPECT_EQ(runGranted(3, call), qorStatusOk);
    EXPECT_EQ(call.difference(), "") << call.describe();
}

// A thread's share of the pointer layout begins at a larger shift, which has to fit 32 bits.
TEST_P(FanOut, doesNotOverflowShifts) {
    if (function.layout != Layout::P) return;
    const Sizes sizes = largeSizes(function);
    const Placement placement = {.name = "largest shift", .shift = INT_MAX / function.elementSize};
    Call call(function, sizes, placement, 6);
    expectDone(call, 1, sizes.at("count"), false);
}

// The answer to a matrix whose only fault is a column of zeros.
qorStatus answerToSingular(const Function& function) {
    if (function.operation == "CholeskyDecomp") return qorStatusNotPositiveDefinite;
    if (function.operation == "QRDecomp") return qorStatusDivideByZero;
    return contains("Invert LUDecomp EigenValuesSym EigenValuesVectorsSym", function.operation)
               ? qorStatusSingular
               : qorStatusOk;
}

// A status of one thread is that of the call, and the other threads' objects are done.
TEST_P(FanOut, returnsTheStatusOfAnyThread) {
    const qorStatus failure = answerToSingular(function);
    if (failure == qorStatusOk) return;
    const Sizes sizes = largeSizes(function);
    const int third = sizes.at("count") / 3;
    for (const auto& [granted, expected] :
         {std::pair(1, qorStatus{qorStatusOk}), std::pair(2, failure)}) {
        Call call(function, sizes, packed, 7);
        fill(call);
        call.operand("Src").setNumber(2 * third, 0, 0, 0);
        EXPECT_EQ(runGranted(granted, call), expected) << call.describe();
        EXPECT_FALSE(call.result().isUntouched(third)) << call.describe();
    }
}

// Measures are computed in 32 bits: one that wraps to a negative value counts as small. Here the
// rows, columns and objects of large matrices overlap in little memory.
TEST_P(FanOut, countsANegativeMeasureOfSumsAsSmall) {
    const bool withSingle = function.name == "qormAdd_mam_32f";
    if (!withSingle && function.name != "qormSub_mama_32f") return;
    const int size = withSingle ? 20725 : 18919; // size * size * (5 or 6) is just above 2^31
    const ThreadCount setting(2);
    Call call(function, sizesOf(function, size, size, 2),
              {.name = "overlapping", .overlapping = true}, 8);
    EXPECT_EQ(runGranted(1, call), qorStatusOk);
    const char* last = call.result().address(1, size - 1, size - 1);
    EXPECT_NE(std::memcmp(last, call.result().memory->imageOf(last), sizeof(float)), 0)
        << call.describe();
}

// The first object is singular and ends the call, whatever its count; a few more may be read ahead.
// Only a call that stays on the thread leaves its mark in the scratch that such large ones need.
TEST_P(FanOut, countsANegativeMeasureOfMatricesAsSmall) {
    const qorStatus failure = answerToSingular(function);
    if (failure == qorStatusOk || function.layout == Layout::P) return;
    const int mostPositive =
        countBelow(std::int64_t{1} << 31, function, sizesOf(function, 20, 20, 1));
    for (const int count : {mostPositive, mostPositive + 1}) {
        Call call(function, sizesOf(function, 20, 20, 64), packed, 9);
        if (call.scratch() == nullptr) return;
        fill(call);
        call.operand("Src").setNumber(0, 1, 1, 0);
        call.claim("count", count);
        EXPECT_EQ(runGranted(1, call), failure) << call.describe();
        EXPECT_EQ(call.scratch()->isUntouched(0), count == mostPositive) << call.describe();
    }
}

// Drivers that no entry function calls are exported all the same.
std::vector<Function> arrayFunctions() {
    std::vector<Function> functions = allFunctions();
    std::erase_if(functions,
                  [](const Function& function) { return !function.array || function.isDirect(); });
    for (Function& function : functions) {
        if (!fansOut(function)) function.name = "ownOMP_" + function.name;
    }
    return functions;
}
INSTANTIATE_TEST_SUITE_P(, FanOut, testing::ValuesIn(arrayFunctions()),
                         [](const auto& tested) { return tested.param.name; });

// Inside a parallel region that is not nested there is a team of one.
TEST(FanOutInside, aParallelRegionDoesOneShare) {
    const Function function = functionOf("qormSub_mama_64f");
    const ThreadCount setting(4);
    omp_set_max_active_levels(1);
    Call call(function, largeSizes(function), packed, 10);
    fill(call);
#pragma omp parallel num_threads(2)
#pragma omp single
    call.run(libraries().front());
    for (int n = 0; n < 7; ++n) EXPECT_EQ(call.result().isUntouched(n), n >= 2) << n;
}

TEST(FanOutNever, ofEntriesThatDoNotCallTheirDrivers) {
    const ThreadCount setting(3);
    for (const Function& function : allFunctions()) {
        if (!function.array || fansOut(function)) continue;
        const Sizes sizes = largeSizes(function);
        Call call(function, sizes, packed, 12);
        expectDone(call, 1, sizes.at("count"), false);
    }
}

} // namespace
