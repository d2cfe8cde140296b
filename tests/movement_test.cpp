// Copies, extracts, identities and transposes: every bit of every element, in the documented order
// of moves. Trace and Frobenius norm: the order of their sums, and which norms of small matrices
// are zero.
#include "harness/placements.h"
#include "harness/thread_count.h"
#include "harness/trial.h"
#include "movement_oracle.h"

#include <bit>

namespace {

using namespace harness;
using harness::nan;
using movement_oracle::movesBits;

const std::vector<Function> family =
    functionsOf("Copy Extract LoadIdentity Transpose Trace FrobNorm");

using Making = void(const Function&, const Operand& source, int k, Random&);

// Noise, as it is, as a NaN or as a denormal number, and -0.
void anyBits(const Function& function, const Operand& source, int k, Random& random) {
    withType(function, [&]<class T>(T) {
        using Bits = movement_oracle::Bits<T>;
        constexpr auto exponent = std::bit_cast<Bits>(std::numeric_limits<T>::infinity());
        source.forEachElementOf(k, [&](int, int i, int j) {
            const auto noise = static_cast<Bits>(random());
            const Bits kinds[] = {noise, noise | exponent, noise & ~exponent, ~(~Bits(0) >> 1)};
            source.set(k, i, j, kinds[random() % std::size(kinds)]);
        });
    });
}

void anyNumbers(const Function& function, const Operand& source, int k, Random& random) {
    const std::uint64_t mix = random();
    withType(function, [&]<class T>(T) {
        source.forEachElementOf(
            k, [&](int, int i, int j) { source.set(k, i, j, mixedValue<T>(random, mix)); });
    });
}
// The sum of squares is the threshold of norms or the number before or behind it, unrounded.
void atThreshold(const Function& function, const Operand& source, int k, Random& random) {
    const bool is32f = function.elementSize == sizeof(float);
    const double eps = is32f ? 0x1p-23 : 0x1p-52;
    const double root = is32f ? 0x1p-12 : 0x1p-26; // two squares give 2^-23, one gives 2^-52
    const int elements = source.rows * source.columns;
    const int one = integer(random, 0, elements - 1);
    const int other = (one + integer(random, 1, 3)) % elements;
    const double near = root * oneOf({1 - eps / 2, 1.0, 1 + eps}, random);
    int place = 0;
    source.forEachElementOf(k, [&](int, int i, int j) {
        const double value = place == one ? near : place == other && is32f ? root : 0;
        source.setNumber(k, i, j, value);
        ++place;
    });
}

// Of matrices. Vectors have the length of a row.
std::vector<Size> sizesFor(const Function& function) {
    std::vector<Size> sizes = {1, 2, 3, 4, 5, 6, 7, 8, 16};
    if (function.operation == "Trace") return sizes;
    const std::vector<Size> rectangles = {{3, 5}, {5, 3},   {4, 3}, {3, 4},  {1, 3},
                                          {6, 1}, {1, 9},   {9, 1}, {1, 17}, {2, 15},
                                          {9, 4}, {19, 18}, {1, 33}};
    sizes.insert(sizes.end(), rectangles.begin(), rectangles.end());
    return sizes;
}

const std::vector<Placement> placements = usualPlacementsAnd({
    {.name = "objects side by side in the result", .resultOrder = Placement::byPosition},
    {.name = "objects side by side in the source, misaligned",
     .order = Placement::byPosition,
     .resultOrder = Placement::byRows,
     .misalignment = 3},
    {.name = "result by columns", .resultOrder = Placement::byColumns},
    {.name = "only the source's elements apart", .elementGap = 2, .gapsOnlyIn = 0},
    {.name = "only the result's rows apart", .rowGap = 2, .gapsOnlyIn = 1},
    {.name = "only the result's objects apart, scattered",
     .objectGap = 1,
     .gapsOnlyIn = 1,
     .scattered = true},
    {.name = "on each other", .overlapping = true},
});

void asPlaced(Call&) {}
// Tables lead to some positions or objects twice.
void repeatEntries(Call& call) {
    for (Operand& operand : call.operands()) {
        if (!operand.table) continue;
        const int entries =
            operand.layout == Layout::L ? operand.objects : operand.rows * operand.columns;
        char* const live = operand.table->begin();
        for (char* first : {live, operand.table->imageOf(live)}) {
            char** const table = reinterpret_cast<char**>(first);
            for (int k = 2; k < entries; k += 3) table[k] = table[k - 2];
        }
    }
}

class Movement : public Trials<Making, anyBits> {
protected:
    void SetUp() override {
        Trials::SetUp();
        if (!movesBits(function)) makings = {anyNumbers, atThreshold};
    }

    // Two counts and kinds of elements, by chance.
    void testSome(const Size& size, const Placement& placement,
                  const std::function<void(Call&)>& rearrange = asPlaced) {
        static constexpr int counts[] = {1, 2, 3, 7, 8, 9, 15, 16, 17, 33};
        for (int repetition = 0; repetition < 2; ++repetition) {
            Making* const making = makings[choice.below(makings.size())];
            test({.size = size,
                  .count = counts[choice() % std::size(counts)],
                  .placement = placement,
                  .others = making,
                  .special = making,
                  .rearrange = rearrange});
        }
    }

    std::vector<Making*> makings = {anyBits};

private:
    void setObject(const Call& call, int k, Making* making, Random& random) const override {
        if (function.operation != "LoadIdentity") making(function, call.operand("Src"), k, random);
    }

    std::string faultOf(Call& call, const Library& library) const override {
        return withType(function, [&]<class T>(T) -> std::string {
            movement_oracle::expectResults<T>(call, function);
            const qorStatus status = call.run(library);
            if (status != qorStatusOk) return "status " + std::to_string(status);
            if (function.operation == "FrobNorm" &&
                movement_oracle::NormRule(function, call.operand("Src")).inAnyOrder) {
                movement_oracle::allowAnyOrder<T>(call);
            }
            return call.difference(movesBits(function) ? Call::Nans::asBits : Call::Nans::alike);
        });
    }

    Random choice{1};
};

TEST_P(Movement, ofAllSizesInAllPlacements) {
    for (const Placement& placement : placements) {
        for (const Size& size : sizesFor(function)) testSome(size, placement);
    }
}

TEST_P(Movement, atAnyAddress) {
    const Placement anywhere = {.name = "anywhere", .objectGap = 1, .misalignment = 64};
    Random random(1);
    const auto move = [&](Call& call) {
        for (Operand& operand : call.operands()) {
            if (!operand.table) operand.base -= random() % 64;
        }
    };
    for (const Size& size : sizesFor(function)) testSome(size, anywhere, move);
}

TEST_P(Movement, byTablesWithRepetitions) {
    for (const Placement& placement : {packed, sideBySide, scattered}) {
        for (const Size& size : sizesFor(function)) testSome(size, placement, repeatEntries);
    }
}

// The destination begins on the first element of the source, or a few elements, rows and objects
// before or behind it.
TEST_P(Movement, overTheSource) {
    if (!movesBits(function)) return;
    Placement arrangements[] = {
        {.name = "packed", .shift = 1},
        {.name = "apart", .elementGap = 1, .objectGap = 2, .shift = 1},
        {.name = "result's rows apart", .rowGap = 1, .gapsOnlyIn = 1},
        {.name = "objects side by side", .order = Placement::byPosition},
        {.name = "by columns", .order = Placement::byColumns},
        {.name = "result by columns", .resultOrder = Placement::byColumns},
        {.name = "result's objects side by side", .resultOrder = Placement::byPosition},
        {.name = "source's objects side by side",
         .order = Placement::byPosition,
         .resultOrder = Placement::byRows},
        {.name = "scattered", .objectGap = 1, .scattered = true},
        {.name = "on each other", .overlapping = true}};
    Random random(1);
    for (Placement& placement : arrangements) {
        placement.destinationOn = "Src";
        for (const Size& size : sizesFor(function)) {
            placement.behindBy = {};
            testSome(size, placement);
            placement.behindBy = {.elements = integer(random, -9, 9)};
            testSome(size, placement);
            placement.behindBy.objects = integer(random, -1, 1);
            placement.behindBy.rows = integer(random, -1, 1);
            testSome(size, placement);
        }
    }
}

// The test of a stride falls away where it leads to no object.
TEST_P(Movement, ofASingleObjectWithAnyStride) {
    if (!contains("Copy LoadIdentity", function.operation)) return;
    for (const int stride : {0, 1, -8, std::numeric_limits<int>::min()}) {
        const auto set = [&](Call& call) {
            for (Operand& operand : call.operands()) operand.stride0 = stride;
        };
        for (const Size& size : sizesFor(function)) {
            test({.size = size, .count = 1, .placement = packed, .rearrange = set});
        }
    }
}

// Calls large enough for every function's fan-out: any number of threads gives the same bits.
TEST_P(Movement, onThreads) {
    if (!function.array || function.isDirect()) return;
    for (const auto& [threads, placement] :
         {std::pair(1, packed), std::pair(2, scattered), std::pair(3, packed)}) {
        const ThreadCount setting(threads);
        test({3, 13335, placement, makings[0], makings[0]});
        test({7, 5801, sideBySide, makings[0], makings[0]});
    }
}

INSTANTIATE_TEST_SUITE_P(, Movement, testing::ValuesIn(family),
                         [](const auto& tested) { return tested.param.name; });

// Results worked out by hand. Elements are in the order in which they are stored.
struct Case {
    std::string_view functions; // names without their prefix
    Size size;
    std::vector<double> source, result;
};

std::vector<double> only(double first, int n) {
    std::vector<double> elements(static_cast<std::size_t>(n), 0);
    elements.front() = first;
    return elements;
}
std::vector<double> square(int n, const std::vector<double>& diagonal) {
    return made(n, [&](int i, int j) { return i == j ? diagonal.begin()[i] : nan; }).elements;
}

std::vector<Case> cases() {
    constexpr double B = 0x1p24; // B + 1 rounds to B
    const std::vector<double> sixNumbers = {1, 2, 3, 4, 5, 6};
    const std::vector<double> transposed = {1, 4, 2, 5, 3, 6};
    const std::vector<double> small(9, 0x1p-16);
    const std::vector<double> five = square(5, {B, 1, -B, 0, 1});
    const std::vector<double> six = square(6, {B, 1, -B, 0, 1, 1});
    const std::vector<double> twelve = only(0x1p-27, 12);
    const char* const singleTraces = "Trace_m_32f Trace_m_64f Trace_m_32f_P Trace_m_64f_P";
    const char* const inLists = "Trace_m_32f Trace_ma_32f Trace_ma_32f_L";
    const char* const inPointers = "Trace_m_32f_P Trace_ma_32f_P";
    const char* const ofArrays = "FrobNorm_ma_32f FrobNorm_ma_64f FrobNorm_ma_32f_L";
    return {
        {"Extract_t_32f Extract_t_64f_P Extract_ta_32f_L", {3, 2}, sixNumbers, transposed},
        {"Transpose_m_32f Transpose_m_64f_P Transpose_ma_32f_L", {2, 3}, sixNumbers, transposed},
        {"LoadIdentity_ma_32f LoadIdentity_ma_64f_P", {2, 3}, {}, {1, 0, 0, 0, 1, 0}},
        {"LoadIdentity_ma_64f LoadIdentity_ma_32f_L", {3, 2}, {}, {1, 0, 0, 1, 0, 0}},
        {singleTraces, 1, {-0.0}, {0.0}},
        {singleTraces, 3, square(3, {-0.0, -0.0, -0.0}), {-0.0}},
        {inLists, 5, five, {0}},
        {inPointers, 5, five, {1}},
        {inLists, 6, six, {4}},
        {inPointers, 6, six, {2}},
        {"FrobNorm_m_32f FrobNorm_m_32f_P", 3, small, {0}},
        {"FrobNorm_ma_32f FrobNorm_ma_32f_P FrobNorm_m_64f", 3, small, {0x3p-16}},
        {"FrobNorm_m_64f", {2, 3}, only(0x1p-33, 6), {0x1p-33}},
        {"FrobNorm_m_64f_P", {2, 3}, only(0x1p-33, 6), {0}},
        {ofArrays, {4, 3}, twelve, {0}},
        {ofArrays, {3, 4}, twelve, {0x1p-27}},
        {"FrobNorm_m_32f FrobNorm_ma_32f FrobNorm_m_32f_P", 2, only(0x1p-11, 4), {0x1p-11}},
        {"FrobNorm_m_64f_P FrobNorm_ma_64f_L", 2, only(0x1p-26, 4), {0x1p-26}},
        {"FrobNorm_m_64f FrobNorm_m_64f_P FrobNorm_ma_32f", {2, 3}, {2, 0, 3, 0, 0, 6}, {7}},
        {"FrobNorm_m_32f FrobNorm_m_32f_P FrobNorm_m_64f_P FrobNorm_ma_64f", 2, only(nan, 4), {0}},
        {"FrobNorm_m_64f", 2, only(nan, 4), {nan}},
        {"FrobNorm_ma_32f FrobNorm_ma_32f_P FrobNorm_ma_64f_L", 3, only(nan, 9), {nan}},
        {"FrobNorm_ma_32f FrobNorm_ma_64f_L", {2, 5}, only(nan, 10), {nan}},
    };
}

TEST(MovementCases, documented) {
    for (const Case& known : cases()) {
        std::ptrdiff_t tested = 0;
        for (const Function& function : family) {
            if (!contains(known.functions, std::string_view(function.name).substr(4))) continue;
            ++tested;
            Call call(function, sizesOf(known.size, 1), packed, 1);
            withType(function, [&]<class T>(T) {
                const std::vector<T> source(known.source.begin(), known.source.end());
                const std::vector<T> wanted(known.result.begin(), known.result.end());
                std::vector<T> got(wanted.size());
                std::copy(source.begin(), source.end(),
                          reinterpret_cast<T*>(call.operands().front().base));
                EXPECT_EQ(call.run(libraries().back()), qorStatusOk);
                std::memcpy(got.data(), call.result().base, got.size() * sizeof(T));
                // As text, which tells the sign of zeros, and NaN from all numbers.
                EXPECT_EQ(testing::PrintToString(got), testing::PrintToString(wanted)) << function;
            });
        }
        EXPECT_EQ(tested, 1 + std::ranges::count(known.functions, ' ')) << known.functions;
    }
}

} // namespace
