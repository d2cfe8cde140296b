// The order in which each function checks its arguments, and that it reads and writes nothing before
// they have all passed: every pointer here leads to a page that may not be touched.
#include "harness/library.h"
#include "harness/memory.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

using namespace harness;

// Statuses in the order of their checks.
using Order = std::vector<std::int32_t>;
constexpr std::int32_t null = -8, badSize = -6, badCount = -203, badStride = -182, badShift = -202;

struct Checks {
    std::string_view operations;
    std::string_view shapes;
    Order standard;
    Order pointers;
    Order list;
};

const Order usual = {null, badCount, badSize, badStride};
const Order usualShifted = {null, badCount, badSize, badStride, badShift};
const Order stridesFirst = {null, badCount, badStride, badSize};
const Order eigen = {null, badSize, badCount, badStride};
const Order eigenShifted = {null, badSize, badCount, badShift, badStride};
const Order single = {null, badSize, badStride};
const Order singleShifted = {null, badSize, badShift};

const Checks checks[] = {
    {"Add Sub", "mm tm mt tt", single, singleShifted, {}},
    {"Add", "mam", stridesFirst, usualShifted, usualShifted},
    {"Sub", "mam mma", stridesFirst, usualShifted, usualShifted},
    {"Add Sub", "tam mat tat tma mta tta mama tama mata tata", usual, usualShifted, usualShifted},
    {"EigenValuesSym EigenValuesVectorsSym", "m", single, singleShifted, {}},
    {"EigenValuesSym EigenValuesVectorsSym", "ma", eigen, eigenShifted, eigenShifted},
};

const Order& orderOf(const Function& function) {
    for (const Checks& row : checks) {
        if (!function.isOneOf(row.operations, row.shapes)) continue;
        return function.layout == Layout::S   ? row.standard
               : function.layout == Layout::P ? row.pointers
                                              : row.list;
    }
    throw std::out_of_range("no order of checks for " + function.name);
}

std::int32_t statusOf(const Argument& argument) {
    switch (argument.meaning) {
    case Argument::pointer:
        return null;
    case Argument::shift:
        return badShift;
    case Argument::size:
        return badSize;
    case Argument::count:
        return badCount;
    default:
        return badStride;
    }
}

std::vector<Value> faultyValues(const Argument& argument, int elementSize) {
    constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t highest = std::numeric_limits<std::int32_t>::max();
    if (argument.meaning == Argument::pointer) return {{.pointer = nullptr}};
    if (argument.meaning == Argument::size || argument.meaning == Argument::count) {
        return {{.number = 0}, {.number = -1}, {.number = lowest}};
    }
    std::vector<Value> values = {{.number = 1},
                                 {.number = elementSize / 2},
                                 {.number = 100 * elementSize + 1},
                                 {.number = highest},
                                 {.number = -1},
                                 {.number = -elementSize},
                                 {.number = lowest}};
    if (argument.isStride()) values.push_back({.number = 0});
    return values;
}

// Arguments without a fault: one object of one element, which uses no stride. A call with these
// values alone would touch the page.
std::vector<Value> faultlessValues(const Function& function) {
    std::vector<Value> values;
    for (const Argument& argument : function.arguments) {
        switch (argument.meaning) {
        case Argument::pointer:
            values.push_back({.pointer = inaccessible()});
            break;
        case Argument::size:
        case Argument::count:
            values.push_back({.number = 1});
            break;
        case Argument::shift:
            values.push_back({.number = 0});
            break;
        default:
            values.push_back({.number = function.elementSize});
        }
    }
    return values;
}

// The entry functions are the same code in all variants of the library.
void expectStatus(const Function& function, const std::vector<Value>& values, std::int32_t expected,
                  const std::string& faults) {
    const std::string description = function.name + " with faulty " + faults;
    EXPECT_EQ(libraries().front().call(function, values, description), expected) << description;
}

class CheckedArguments : public testing::TestWithParam<Function> {};

TEST_P(CheckedArguments, eachAlone) {
    const Function& function = GetParam();
    for (std::size_t k = 0; k < function.arguments.size(); ++k) {
        const Argument& argument = function.arguments[k];
        std::vector<Value> values = faultlessValues(function);
        for (const Value& faulty : faultyValues(argument, function.elementSize)) {
            values[k] = faulty;
            expectStatus(function, values, statusOf(argument),
                         argument.name + " " + std::to_string(faulty.number));
        }
    }
}

TEST_P(CheckedArguments, firstOfEachPair) {
    const Function& function = GetParam();
    const Order& order = orderOf(function);
    const auto rank = [&](const Argument& argument) {
        const auto found = std::find(order.begin(), order.end(), statusOf(argument));
        EXPECT_NE(found, order.end()) << function << " does not check " << argument.name;
        return found;
    };
    for (std::size_t k = 0; k < function.arguments.size(); ++k) {
        for (std::size_t l = k + 1; l < function.arguments.size(); ++l) {
            const Argument& one = function.arguments[k];
            const Argument& other = function.arguments[l];
            std::vector<Value> values = faultlessValues(function);
            values[k] = faultyValues(one, function.elementSize).back();
            values[l] = faultyValues(other, function.elementSize).front();
            expectStatus(function, values, *std::min(rank(one), rank(other)),
                         one.name + ", " + other.name);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, CheckedArguments, testing::ValuesIn(allFunctions()),
                         [](const auto& tested) { return tested.param.name; });

// The shapes above and the types and layouts make exactly the functions that are built.
TEST(Checks, coverEveryFunction) {
    const std::pair<std::string_view, std::size_t> expected[] = {
        {"Add", 54}, {"Sub", 88}, {"EigenValuesSym", 10}, {"EigenValuesVectorsSym", 10}};
    std::size_t functions = 0;
    for (const auto& [operation, count] : expected) {
        EXPECT_EQ(functionsOf(operation).size(), count) << operation;
        functions += count;
    }
    EXPECT_EQ(allFunctions().size(), functions);
}

} // namespace
