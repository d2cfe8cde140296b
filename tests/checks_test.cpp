// The order in which each function checks its arguments, and that it reads and writes nothing
// before they have all passed: every pointer here leads to a page that may not be touched.
#include "harness/library.h"
#include "harness/memory.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <map>

namespace {

using namespace harness;

constexpr std::int32_t null = -8, badSize = -6, mismatch = -204, badCount = -203, badStride = -182,
                       badShift = -202, singular = -195;

// Statuses in the order of their checks. A check of what a function does not take falls away.
using Order = std::vector<std::int32_t>;
const Order usual = {null, badCount, badSize, badStride, badShift};
const Order stridesBeforeSizes = {null, badCount, badStride, badSize};
const Order countLast = {null, badStride, badShift, badSize, badCount};
const Order products = {null, badCount, badSize, mismatch, badStride, badShift};
const Order mismatchLast = {null, badCount, badSize, badStride, badShift, mismatch};
const Order sizesFirst = {null, badSize, badCount, badShift, badStride};
const Order countBeforeShifts = {null, badSize, badStride, badCount, badShift};
const Order countBehindShifts = {null, badSize, badStride, badShift, badCount};
const Order sizesBeforeCount = {null, badSize, badCount, badStride, badShift};
const Order sizesBeforePointers = {badSize, null, badShift};

// Whether the strides from object to object are tested only where there are more, behind all else.
bool ignoresSingleObjectsStride(const Function& function) {
    return contains("Copy LoadIdentity", function.operation);
}

// Products but for those with a constant.
bool hasSizesOfOperands(const Function& function) {
    return function.hasSize("src1Width");
}

const Order& orderOf(const Function& function) {
    if (hasSizesOfOperands(function)) return products;
    if (function.operation.starts_with("QR")) return mismatchLast;
    if (function.operation.starts_with("Eigen")) return sizesFirst;
    if (function.layout == Layout::S && function.isOneOf("Add Sub", "mam mma")) {
        return stridesBeforeSizes;
    }
    if (function.layout == Layout::L && function.isOneOf("CholeskyBackSubst", "mva")) {
        return countLast;
    }
    if (function.operation == "Extract") {
        const bool hasSizesFirst = function.layout == Layout::P && !function.array &&
                                   function.name != "qormExtract_v_32f_P";
        return hasSizesFirst ? sizesBeforePointers : sizesFirst;
    }
    if (contains("qormCopy_va_32f_SP qormCopy_va_32f_LP", function.name)) return sizesFirst;
    if (function.name == "qormLoadIdentity_ma_32f_P") return countBehindShifts;
    if (contains("Copy LoadIdentity", function.operation)) return sizesBeforeCount;
    if (function.isOneOf("Add Sub CrossProduct", "vav")) {
        return function.layout == Layout::L ? countBehindShifts : countBeforeShifts;
    }
    return usual;
}

// Values that give a status, where the other arguments are without a fault.
struct Fault {
    std::int32_t status;
    std::vector<Value> values;
};

// Whether a size larger than 1 does not fit the other sizes: one of the two that have to be the
// same in a product, or the width of a factorisation that asks for as many rows.
bool isMatched(const Function& function, const Argument& argument) {
    if (function.operation.starts_with("QR")) return argument.name == "width";
    if (!hasSizesOfOperands(function)) return false;
    if (function.operation == "Gaxpy") return true;
    const Parameter& src1 = function.parameters.front();
    const Parameter& src2 = *std::find_if(function.parameters.begin(), function.parameters.end(),
                                          [](const Parameter& p) { return p.name == "Src2"; });
    return argument.name == (src1.transposed ? src1.rows : src1.columns) ||
           argument.name == (src2.transposed || src2.isVector() ? src2.columns : src2.rows);
}

std::vector<Fault> faultsOf(const Function& function, const Argument& argument) {
    constexpr std::int32_t lowest = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t highest = std::numeric_limits<std::int32_t>::max();
    const std::int32_t size = function.elementSize;
    const std::vector<Value> notPositive = {{.number = 0}, {.number = -1}, {.number = lowest}};
    std::vector<Value> offGrid = {
        {.number = 1},  {.number = size / 2}, {.number = highest}, {.number = 100 * size + 1},
        {.number = -1}, {.number = -size},    {.number = lowest}};
    switch (argument.meaning) {
    case Argument::pointer:
        return {{null, {{.pointer = nullptr}}}};
    case Argument::count:
        return {{badCount, notPositive}};
    case Argument::size:
        if (!isMatched(function, argument)) return {{badSize, notPositive}};
        return {{badSize, notPositive}, {mismatch, {{.number = 2}, {.number = highest}}}};
    case Argument::shift:
        return {{badShift, offGrid}};
    case Argument::value:
        return {};
    default:
        offGrid.push_back({.number = 0});
        return {{badStride, offGrid}};
    }
}

// Arguments without a fault: objects of one element, which use no stride but that to the next one,
// if it is tested at all. A call with these values alone would touch the page.
std::vector<Value> faultlessValues(const Function& function) {
    std::vector<Value> values;
    for (const Argument& argument : function.arguments) {
        switch (argument.meaning) {
        case Argument::pointer:
            values.push_back({.pointer = inaccessible()});
            break;
        case Argument::size:
            values.push_back({.number = 1});
            break;
        case Argument::count:
            values.push_back({.number = ignoresSingleObjectsStride(function) ? 2 : 1});
            break;
        case Argument::shift:
        case Argument::value:
            values.push_back({});
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
        for (const Fault& fault : faultsOf(function, argument)) {
            for (const Value& faulty : fault.values) {
                values[k] = faulty;
                expectStatus(function, values, fault.status,
                             argument.name + " " + std::to_string(faulty.number));
            }
        }
    }
}

TEST_P(CheckedArguments, firstOfEachPair) {
    const Function& function = GetParam();
    const Order& order = orderOf(function);
    const auto rank = [&](const Argument& argument, const Fault& fault) {
        const bool isLast =
            argument.meaning == Argument::stride0 && ignoresSingleObjectsStride(function);
        if (isLast) return order.end();
        const auto found = std::find(order.begin(), order.end(), fault.status);
        EXPECT_NE(found, order.end()) << function << " does not give " << fault.status;
        return found;
    };
    for (std::size_t k = 0; k < function.arguments.size(); ++k) {
        for (std::size_t l = k + 1; l < function.arguments.size(); ++l) {
            const Argument& one = function.arguments[k];
            const Argument& other = function.arguments[l];
            for (const Fault& fault : faultsOf(function, one)) {
                for (const Fault& otherFault : faultsOf(function, other)) {
                    std::vector<Value> values = faultlessValues(function);
                    values[k] = fault.values.back();
                    // Of two sizes that match nothing, each has to be another.
                    values[l] = otherFault.status == mismatch ? otherFault.values.front()
                                                              : otherFault.values.back();
                    const bool isFirst = rank(one, fault) <= rank(other, otherFault);
                    expectStatus(function, values, isFirst ? fault.status : otherFault.status,
                                 one.name + ", " + other.name);
                }
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, CheckedArguments, testing::ValuesIn(allFunctions()),
                         [](const auto& tested) { return tested.param.name; });

// The inverse of one element is the entry function's own work, which needs no scratch.
TEST(Checks, ofOneElementToInvert) {
    for (const Function& function : functionsOf("Invert")) {
        for (const auto& [element, status, result] :
             {std::tuple(0.0, singular, 0.0), std::tuple(2.0, 0, 0.5)}) {
            auto as32f = static_cast<float>(element);
            double as64f = element;
            void* matrix = &as64f;
            if (function.elementSize == sizeof as32f) matrix = &as32f;
            std::vector<Value> values = faultlessValues(function);
            for (std::size_t k = 0; k < values.size(); ++k) {
                const std::string& name = function.arguments[k].name;
                if (name.starts_with("pp")) values[k].pointer = &matrix;
                if (name == "pSrc" || name == "pDst") values[k].pointer = matrix;
            }
            expectStatus(function, values, status, "matrix of " + std::to_string(element));
            EXPECT_EQ(function.elementSize == sizeof as32f ? as32f : as64f, result) << function;
        }
    }
}

// Shapes, types and layouts make exactly these functions.
TEST(Checks, coverEveryFunction) {
    const std::map<std::string, int> expected = {{"Add", 80},
                                                 {"Sub", 130},
                                                 {"Mul", 162},
                                                 {"Det", 10},
                                                 {"Invert", 10},
                                                 {"EigenValuesSym", 10},
                                                 {"EigenValuesVectorsSym", 10},
                                                 {"LUDecomp", 10},
                                                 {"LUBackSubst", 16},
                                                 {"CholeskyDecomp", 10},
                                                 {"CholeskyBackSubst", 16},
                                                 {"QRDecomp", 10},
                                                 {"QRBackSubst", 16},
                                                 {"Saxpy", 22},
                                                 {"LComb", 16},
                                                 {"Gaxpy", 10},
                                                 {"DotProduct", 16},
                                                 {"L2Norm", 10},
                                                 {"CrossProduct", 22},
                                                 {"Copy", 36},
                                                 {"Extract", 30},
                                                 {"LoadIdentity", 6},
                                                 {"Transpose", 10},
                                                 {"Trace", 10},
                                                 {"FrobNorm", 10}};
    std::map<std::string, int> functions;
    for (const Function& function : allFunctions()) ++functions[function.operation];
    EXPECT_EQ(functions, expected);
}

} // namespace
