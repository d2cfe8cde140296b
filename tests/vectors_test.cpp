// Vector operations: element by element, in the documented order of every sum, wherever the
// operands lie and whatever their addresses are multiples of.
#include "vector_trials.h"

namespace {

using namespace harness;
using vectors_oracle::isElementwiseUnrolled;

const std::vector<Function> family =
    functionsOf("Add Sub Mul Saxpy LComb DotProduct L2Norm CrossProduct", "vv vc cv mc v");

bool isSum(const Function& function) {
    return contains("DotProduct L2Norm", function.operation);
}
// What a cross product of an array with a single vector gives is open, if it lies on one of them.
bool isOpenOverSources(const Function& function) {
    return isSum(function) || function.isOneOf("CrossProduct", "vav vva");
}
// The sources that a destination may coincide with.
std::vector<Parameter> likeTheDestination(const Function& function) {
    std::vector<Parameter> sources = function.parameters;
    std::erase_if(sources, [&](const Parameter& source) {
        return source.kind != Parameter::source || source.transposed ||
               source.array != function.array || isOpenOverSources(function);
    });
    return sources;
}

// Lengths around those where orders of summation and paths change.
std::vector<Size> sizesFor(const Function& function) {
    if (function.operation == "CrossProduct") return {{1, 3}};
    if (function.operands == "mc") {
        return {1, 2, 3, 4, 5, 6, 7, {1, 5}, {3, 4}, {4, 3}, {2, 5}, {67, 1}, {3, 40}};
    }
    std::vector<Size> sizes;
    for (const int length :
         {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 15, 16, 17, 23, 24, 25, 31, 32, 33, 100, 1001}) {
        sizes.emplace_back(1, length);
    }
    return sizes;
}

Sizes sizesOf(Size size, int count) {
    return {
        {"len", size.columns}, {"width", size.columns}, {"height", size.rows}, {"count", count}};
}

const std::vector<Placement> placements = usualPlacementsAnd({
    {.name = "only the first operand's elements apart", .elementGap = 2, .gapsOnlyIn = 0},
    {.name = "only the second operand's elements apart", .elementGap = 2, .gapsOnlyIn = 1},
    {.name = "only the destination's elements apart", .elementGap = 2, .gapsOnlyIn = 2},
});

class Vectors : public VectorTrials {};

TEST_P(Vectors, ofAllLengthsInAllPlacements) {
    const std::vector<int> counts = countsOf({1, 7, 16, 17, 33, 40});
    std::size_t turn = 0;
    for (const Size& size : sizesFor(function)) {
        for (const Placement& placement : placements) {
            const std::size_t trials = size.columns <= 6 ? counts.size() : 1;
            for (std::size_t k = 0; k < trials; ++k) {
                const int count = counts[turn++ % counts.size()];
                test({sizesOf(size, size.columns > 1000 ? 1 : count), placement});
            }
        }
    }
}

TEST_P(Vectors, atAllAddresses) {
    for (const Size& size : sizesFor(function)) {
        testAddresses(sizesOf(size, countsOf({3})[0]));
    }
}

TEST_P(Vectors, atBoundaries) {
    if (function.layout != Layout::S) return;
    for (const Size& size : sizesFor(function)) {
        for (const int count : countsOf({1, 5})) testBoundaries(sizesOf(size, count));
    }
}

// A chain that begins with the first product keeps the sign of zeros, one from +0.0 does not.
TEST_P(Vectors, ofNegativeZeros) {
    for (const Placement& placement : {packed, elementsApart, sideBySide}) {
        for (const Size& size : sizesFor(function)) {
            test({.sizes = sizesOf(size, countsOf({19})[0]),
                  .placement = placement,
                  .negativeZeros = true});
        }
    }
}

TEST_P(Vectors, inPlace) {
    for (const Parameter& source : likeTheDestination(function)) {
        for (const Placement& placement : placements) {
            if (placement.gapsOnlyIn >= 0) continue;
            for (const Size& size : sizesFor(function)) {
                if (size.columns > 40) continue;
                test({sizesOf(size, countsOf({35})[0]), placement, source.name});
            }
        }
    }
}

// Whether the order of the elements within an object is told: straight-line code may read ahead.
bool ascends(const Function& function, const Size& size, const Placement& placement) {
    if (function.operation == "CrossProduct") return true;
    const Call call(function, sizesOf(size, 2), placement, 1);
    const bool isTold = contains("Add Sub Mul", function.operation) ||
                        (function.shape == "vv" && call.isContiguous());
    return isTold && !isElementwiseUnrolled(function, call);
}

// A destination that is written before a source has been read shows the order: plainly ascending.
TEST_P(Vectors, overSources) {
    const bool objectsAscend = contains("Add Sub Mul CrossProduct", function.operation);
    const Placement overlapping[] = {
        {.name = "overlapping"},
        {.name = "overlapping, apart", .elementGap = 1, .rowGap = 1, .objectGap = 1, .shift = 1},
        {.name = "overlapping, by position", .order = Placement::byPosition, .objectGap = 1}};
    for (const Parameter& source : likeTheDestination(function)) {
        for (const Size& size : sizesFor(function)) {
            if (size.columns > 40) continue;
            for (Placement placement : overlapping) {
                placement.destinationOn = source.name;
                std::vector<Placement::Step> steps;
                for (const int elements : {1, 2, 3, 4, 7, 8, size.columns - 1, size.columns}) {
                    if (!ascends(function, size, placement)) break;
                    steps.push_back({.elements = elements});
                    steps.push_back({.elements = -elements});
                }
                for (const int objects : {1, -1, 3, -3, 16, -16}) {
                    if (!function.array || !objectsAscend) break;
                    steps.push_back({.objects = objects});
                }
                for (const Placement::Step& step : steps) {
                    placement.behindBy = step;
                    test({sizesOf(size, countsOf({19})[0]), placement});
                }
            }
        }
    }
}

// The same, a fraction of an element off.
TEST_P(Vectors, overSourcesByBytes) {
    if (function.layout != Layout::S || function.array) return;
    for (const Parameter& source : likeTheDestination(function)) {
        for (const Size& size : sizesFor(function)) {
            // Among more fractions of numbers there is NaN, whose bits are the processor's.
            if (size.columns > 40) continue;
            for (const int elements : {-8, -3, 0, 1, 4}) {
                const Placement placement = {.name = "overlapping",
                                             .destinationOn = source.name,
                                             .behindBy = {.elements = elements}};
                if (!ascends(function, size, placement)) continue;
                for (const int bytes : {1, 2, 3}) {
                    const auto move = [&](Call& call) {
                        for (Operand& operand : call.operands()) {
                            if (operand.parameter.kind == Parameter::result) operand.base -= bytes;
                        }
                    };
                    test({.sizes = sizesOf(size, 1),
                          .placement = placement,
                          .withoutNan = true,
                          .rearrange = move});
                }
            }
        }
    }
}

// One object of the destination lies on the single operand: the others see it where the operand is
// read again for every object.
TEST_P(Vectors, overTheSingleOperand) {
    if (isOpenOverSources(function) || !function.array) return;
    for (const Parameter& source : function.parameters) {
        if (source.kind != Parameter::source || source.array) continue;
        for (const Size& size : sizesFor(function)) {
            if (size.columns > 40) continue;
            for (const int object : {0, 1, 5, 18, 34}) {
                for (const auto order : {Placement::byRows, Placement::byPosition}) {
                    const Placement placement = {.name = "over the single operand",
                                                 .order = order,
                                                 .elementGap = size.columns % 2,
                                                 .destinationOn = source.name,
                                                 .behindBy = {.objects = -object}};
                    test({sizesOf(size, 35), placement});
                }
            }
        }
    }
}

// A result is written when its object's sum is complete, so only later objects see it.
TEST_P(Vectors, sumsOverSources) {
    if (function.operation != "DotProduct") return;
    for (const std::size_t k : {0U, 1U}) {
        for (const Size& size : sizesFor(function)) {
            for (const int count : countsOf({2, 5, 17, 34})) {
                for (const int first : {0, 1, 2 * size.columns, 17 * size.columns}) {
                    const int elements = size.columns * (function.parameters[k].array ? count : 1);
                    if (first + count > elements) continue;
                    const auto move = [&](Call& call) {
                        const Operand& source = call.operands()[k];
                        Operand& result = call.operands()[2];
                        result.memory = source.memory;
                        result.base = source.memory->begin() + first * source.elementSize;
                    };
                    test({.sizes = sizesOf(size, count), .placement = packed, .rearrange = move});
                }
            }
        }
    }
}

// Calls large enough for every function's fan-out: any number of threads gives the same bits.
TEST_P(Vectors, onThreads) {
    if (!function.array) return;
    for (const auto& [threads, placement] :
         {std::pair(1, packed), std::pair(2, scattered), std::pair(3, packed)}) {
        const ThreadCount setting(threads);
        test({sizesOf({1, 3}, 20002), placement});
        if (function.operation == "CrossProduct") continue;
        test({sizesOf({1, 17}, 2401), packed});
        test({sizesOf(4, 2401), elementsApart});
    }
}

INSTANTIATE_TEST_SUITE_P(, Vectors, testing::ValuesIn(family),
                         [](const auto& tested) { return tested.param.name; });

std::vector<VectorCase> casesOf(double B) {
    const auto line = [](int n) { return Size(1, n); };
    const auto ones = [](int n) { return std::vector<double>(static_cast<std::size_t>(n), 1); };
    const char* const plain = "DotProduct_vav_32f DotProduct_vav_64f DotProduct_vava_64f "
                              "DotProduct_vav_32f_L DotProduct_vava_32f_L DotProduct_vv_32f_P";
    const std::vector<double> four = {B, 1, 1, -B};
    const std::vector<double> five = {B, 1, -B, 0, 1};
    const std::vector<double> six = {B, 1, -B, 0, 1, 1};
    const std::vector<double> nine = {B, 1, 1, 1, 1, 1, 1, 1, -B};
    const std::vector<double> eleven = {B, 1, 1, 1, 1, 1, 1, 1, -B, 0, 0};
    const std::vector<double> twelve = {B, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, -B};
    return {
        {"a difference", "Sub_vv_32f Sub_vva_64f_P", line(2), {{1, 2}, {4, 3}}, {-3, -1}},
        {"a constant less a vector", "Sub_cv_32f Sub_cva_64f_L", line(2), {{1, 2}, {5}}, {4, 3}},
        {"a vector less a constant", "Sub_vc_64f Sub_vac_32f", line(2), {{1, 2}, {5}}, {-4, -3}},
        {"the scalar is the first operand's", "Saxpy", line(2), {{1, 2}, {3}, {10, 20}}, {13, 26}},
        {"a product is rounded", "Saxpy", line(1), {{B + 2}, {1 + 6 / B}, {-B}}, {8}},
        {"both have scalars", "LComb", line(2), {{1, 2}, {3}, {10, 20}, {5}}, {53, 106}},
        {"unit vectors", "CrossProduct", line(3), {{1, 0, 0}, {0, 1, 0}}, {0, 0, 1}},
        {"any vectors", "CrossProduct", line(3), {{1, 2, 3}, {4, 6, 9}}, {0, 3, -2}},
        {"one product of -0", "DotProduct", line(1), {{-0.0}, {1}}, {0.0}},
        {"three of -0", "DotProduct", line(3), {{-0.0, -0.0, -0.0}, {1, 1, 1}}, {-0.0}},
        {"five without gaps", plain, line(5), {five, ones(5)}, {1}},
        {"five with gaps",
         "DotProduct_vv_32f DotProduct_vav_64f_L DotProduct_vava_64f",
         line(5),
         {five, ones(5)},
         {0},
         0,
         1},
        {"six without gaps", plain, line(6), {six, ones(6)}, {2}},
        {"six with gaps",
         "DotProduct_vv_64f DotProduct_vav_32f DotProduct_vava_32f_L",
         line(6),
         {six, ones(6)},
         {4},
         0,
         1},
        {"four at boundaries", "DotProduct_vava_32f", line(4), {four, ones(4)}, {1}},
        {"four elsewhere", "DotProduct_vava_32f", line(4), {four, ones(4)}, {0}, 4},
        {"a chain of eleven", plain, line(11), {eleven, ones(11)}, {0}},
        {"eight lanes of one", "DotProduct_vv_32f", line(11), {eleven, ones(11)}, {6}},
        {"four lanes of two", "DotProduct_vv_64f", line(9), {nine, ones(9)}, {6}},
        {"nothing to peel", "DotProduct_vv_32f", line(12), {twelve, ones(12)}, {8}},
        {"three to peel", "DotProduct_vv_32f", line(12), {twelve, ones(12)}, {6}, 4},
        {"no boundary to peel to", "DotProduct_vv_32f", line(12), {twelve, ones(12)}, {0}, 2},
        {"a norm", "L2Norm", line(3), {{2, 3, 6}}, {7}},
        {"a norm of one", "L2Norm", line(1), {{-3}}, {3}},
    };
}

TEST(VectorCases, documented) {
    expectCases(family, casesOf,
                [](const Function&, Size size, int count) { return sizesOf(size, count); });
}

} // namespace
