// Products of matrices, bit by bit, wherever the operands lie. Where they overlap, what comes out
// tells the order of all reads and writes.
#include "harness/inputs.h"
#include "harness/placements.h"
#include "harness/thread_count.h"

#include "qorm/types.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace {

using namespace harness;

// The result is rows x columns, each element a sum of `inner` products.
struct Shape {
    int rows;
    int inner;
    int columns;
};

// Where an operand's elements lie, as the function sees it: rows x columns as read, in stored rows
// that it takes to be `width` long.
template <class T>
class Matrix {
public:
    Matrix(const Operand& operand, int width, int rows, int columns)
        : rows_(rows), columns_(columns) {
        for (int n = 0; n < operand.objects; ++n) {
            for (int i = 0; i < rows; ++i) {
                for (int j = 0; j < columns; ++j) {
                    const bool transposed = operand.parameter.transposed;
                    const int position = transposed ? j * width + i : i * width + j;
                    const int row = position / operand.columns;
                    const int column = position % operand.columns;
                    elements_.push_back(
                        operand.memory->imageOf(transposed ? operand.address(n, column, row)
                                                           : operand.address(n, row, column)));
                }
            }
        }
        if (!operand.parameter.array) everyObject_ = 0;
    }

    T get(int n, int i, int j) const {
        T value;
        std::memcpy(&value, at(n, i, j), sizeof value);
        return value;
    }
    void put(int n, int i, int j, T value) const { std::memcpy(at(n, i, j), &value, sizeof value); }
    int rows() const { return rows_; }
    int columns() const { return columns_; }

private:
    char* at(int n, int i, int j) const {
        return elements_[static_cast<std::size_t>((everyObject_ * n * rows_ + i) * columns_ + j)];
    }

    int rows_;
    int columns_;
    int everyObject_ = 1;
    std::vector<char*> elements_;
};

// When a source is read: each time it is used, or ahead of each object's first write or the call's.
enum class Read { asUsed, aheadOfObject, aheadOfCall };

template <class T>
class Source {
public:
    Source(Matrix<T> matrix, Read read) : matrix_(std::move(matrix)), read_(read) {
        if (read == Read::aheadOfCall) readAhead();
    }

    void begin(int n) {
        object_ = n;
        if (read_ == Read::aheadOfObject) readAhead();
    }
    T operator()(int i, int j) const {
        if (read_ == Read::asUsed) return matrix_.get(object_, i, j);
        return ahead_[static_cast<std::size_t>(i * matrix_.columns() + j)];
    }

private:
    void readAhead() {
        ahead_.clear();
        for (int i = 0; i < matrix_.rows(); ++i) {
            for (int j = 0; j < matrix_.columns(); ++j)
                ahead_.push_back(matrix_.get(object_, i, j));
        }
    }

    Matrix<T> matrix_;
    Read read_;
    int object_ = 0;
    std::vector<T> ahead_;
};

// The size, of 3 to 6, whose formulas the function uses, or 0. Two functions take some smaller
// matrices for 3x3 ones, in rows of their own length.
int formulaSize(const Function& function, const Shape& shape) {
    const auto [rows, inner, columns] = shape;
    const bool combinesBits =
        function.name == "qormMul_mm_32f_P" || function.name == "qormMul_tt_64f_P";
    if (combinesBits && (rows | inner | columns) == 3) return 3;
    return rows == inner && rows == columns && rows >= 3 && rows <= 6 ? rows : 0;
}

Read readOfFirst(const Function& function, const Operand& first, int size) {
    if (size == 0 || function.layout != Layout::P) return Read::asUsed;
    return first.parameter.array ? Read::aheadOfObject : Read::aheadOfCall;
}

// Lists are done like single matrices, one by one.
Read readOfSecond(const Function& function, const Operand& first, const Operand& second, int size,
                  bool contiguous) {
    const bool oneByOne = function.layout == Layout::L || !function.array;
    const bool asStored = !first.parameter.transposed && !second.parameter.transposed;
    const bool readsAsUsed = oneByOne && function.layout != Layout::P && asStored && !contiguous &&
                             (size > 3 || function.elementSize == 8);
    if (size == 0 || readsAsUsed) return Read::asUsed;
    return oneByOne || second.parameter.array ? Read::aheadOfObject : Read::aheadOfCall;
}

template <class T>
void expectProducts(const Call& call, const Function& function, const Shape& shape, int count) {
    const Operand& a = call.operand("Src1");
    const Operand& b = call.operand("Src2");
    const Operand& product = call.operand("Dst");
    const int size = formulaSize(function, shape);
    const auto [rows, inner, columns] =
        size > 0 ? Shape{size, size, size} : Shape{shape.rows, shape.inner, shape.columns};
    const int width1 = a.parameter.transposed ? shape.rows : shape.inner;
    const int width2 = b.parameter.transposed ? shape.inner : shape.columns;
    Source<T> first(Matrix<T>(a, width1, rows, inner), readOfFirst(function, a, size));
    Source<T> second(Matrix<T>(b, width2, inner, columns),
                     readOfSecond(function, a, b, size, call.isContiguous()));
    const Matrix<T> destination(product, size > 0 ? width2 : shape.columns, rows, columns);
    for (int n = 0; n < count; ++n) {
        first.begin(n);
        second.begin(n);
        for (int i = 0; i < rows; ++i) {
            for (int j = 0; j < columns; ++j) {
                T sum = 0;
                if (size == 0) destination.put(n, i, j, sum);
                for (int k = 0; k < inner; ++k) {
                    const T term = first(i, k) * second(k, j);
                    sum = size > 0 && k == 0 ? term : sum + term;
                    if (size == 0 || k + 1 == size) destination.put(n, i, j, sum);
                }
            }
        }
    }
}

template <class T>
std::string faultOf(Call& call, const Function& function, const Shape& shape, int count,
                    const Library& library, std::uint64_t seed) {
    Random random(seed);
    for (const char* name : {"Src1", "Src2"}) {
        const Operand& source = call.operand(name);
        source.forEachElement(
            [&](int n, int i, int j) { source.set(n, i, j, mixedValue<T>(random, seed)); });
    }
    expectProducts<T>(call, function, shape, count);
    const std::int32_t status = call.run(library);
    return status == qorStatusOk ? call.difference() : "status " + std::to_string(status);
}

// Calls the function in every variant of the library, each on data of its own. A function that takes
// the matrices for 3x3 ones gets memory and tables of these.
void test(const Function& function, const Shape& shape, int count, const Placement& placement,
          std::string_view inPlaceOf = {}, void (*rearrange)(Call&) = nullptr) {
    static std::uint64_t seed = 0;
    const Shape laidOut = formulaSize(function, shape) == 3 ? Shape{3, 3, 3} : shape;
    for (const Library& library : libraries()) {
        ++seed;
        Call call(function,
                  productSizes(function, laidOut.rows, laidOut.inner, laidOut.columns, count),
                  placement, seed, inPlaceOf);
        for (const auto& [name, value] :
             productSizes(function, shape.rows, shape.inner, shape.columns, count)) {
            call.claim(name, value);
        }
        if (rearrange != nullptr) rearrange(call);
        const std::string fault =
            function.elementSize == 4
                ? faultOf<float>(call, function, shape, count, library, seed)
                : faultOf<double>(call, function, shape, count, library, seed);
        EXPECT_EQ(fault, "") << call.describe() << (inPlaceOf.empty() ? "" : ", in place");
    }
}

const std::vector<Placement> placements =
    usualPlacementsAnd({{.name = "each overlapping itself", .overlapping = true}});

class Products : public testing::TestWithParam<Function> {
protected:
    const Function& function = GetParam();

    std::vector<int> countsOf(std::vector<int> counts) const {
        return function.array ? counts : std::vector{1};
    }

private:
    const ThreadCount setting_{1}; // overlapping objects show the order in which they are done
};

constexpr Shape small[] = {{1, 1, 1}, {2, 2, 2}, {3, 3, 3}, {4, 4, 4}, {5, 5, 5},
                           {6, 6, 6}, {7, 7, 7}, {8, 8, 8}, {3, 3, 4}, {4, 3, 3},
                           {3, 4, 3}, {2, 5, 7}, {1, 1, 5}, {1, 6, 1}, {5, 1, 4}};
constexpr Shape large[] = {{9, 9, 9},  {12, 12, 12}, {16, 16, 16}, {17, 17, 17},
                           {3, 2, 40}, {40, 3, 2},   {2, 40, 3}};

TEST_P(Products, ofSmallMatricesInAllPlacements) {
    for (const Placement& placement : placements) {
        for (const Shape& shape : small) {
            for (const int count : countsOf({1, 2, 15, 16, 17, 33})) {
                test(function, shape, count, placement);
            }
        }
    }
}

TEST_P(Products, ofLargeMatricesInAllPlacements) {
    for (const Placement& placement : placements) {
        for (const Shape& shape : large) {
            for (const int count : countsOf({1, 3})) test(function, shape, count, placement);
        }
    }
}

TEST_P(Products, ofManyOrLargerMatrices) {
    for (const Placement& placement : {packed, elementsApart, sideBySide}) {
        for (const Shape& shape : {Shape{33, 33, 33}, {17, 5, 33}, {3, 130, 19}}) {
            test(function, shape, 1, placement);
        }
        if (!function.array) continue;
        for (const Shape& shape :
             {Shape{2, 2, 2}, {3, 3, 3}, {4, 4, 4}, {5, 5, 5}, {6, 6, 6}, {7, 7, 7}, {2, 3, 4}}) {
            test(function, shape, 100, placement);
        }
    }
}

// What holds for all operands but one.
TEST_P(Products, ofOneOperandWithGaps) {
    for (const auto order : {Placement::byRows, Placement::byPosition}) {
        for (int gaps = 0; gaps < 9; ++gaps) {
            const Placement placement = {.name = "one operand with gaps",
                                         .order = order,
                                         .elementGap = gaps % 3 == 0 ? 1 : 0,
                                         .rowGap = gaps % 3 == 1 ? 1 : 0,
                                         .objectGap = gaps % 3 == 2 ? 1 : 0,
                                         .gapsOnlyIn = gaps / 3};
            for (const Shape& shape : small) test(function, shape, countsOf({20})[0], placement);
        }
    }
}

TEST_P(Products, ofAllShapesUpTo3) {
    for (const Placement& placement : {packed, scattered}) {
        for (int shape = 0; shape < 27; ++shape) {
            test(function, {1 + shape / 9, 1 + shape / 3 % 3, 1 + shape % 3},
                 function.array ? 19 : 1, placement);
        }
    }
}

// Pointer for pointer, where tables are scattered.
TEST_P(Products, inPlace) {
    for (const Parameter& source : function.parameters) {
        if (source.kind != Parameter::source || source.array != function.array) continue;
        for (const Placement& placement : placements) {
            const int count = placement.order == Placement::byPosition ? 70 : 20;
            for (const int size : {1, 2, 3, 4, 5, 6, 7, 8}) {
                test(function, {size, size, size}, function.array ? count : 1, placement,
                     source.name);
            }
            test(function, {16, 16, 16}, function.array ? 2 : 1, placement, source.name);
        }
    }
}

// The destination begins on a source, or some elements, rows or objects from there.
TEST_P(Products, overSources) {
    const Placement overlapping[] = {
        {.name = "overlapping"},
        {.name = "overlapping, objects apart in the destination", .objectGap = 5, .gapsOnlyIn = 2},
        {.name = "overlapping, rows apart", .rowGap = 2, .shift = 1},
        {.name = "overlapping, elements apart", .elementGap = 1},
        {.name = "overlapping, by columns", .order = Placement::byColumns},
        {.name = "overlapping, side by side", .order = Placement::byPosition},
        {.name = "overlapping, scattered", .scattered = true}};
    using Step = Placement::Step;
    std::vector<Step> steps = {{}, {0, 0, 1}, {0, 0, -1}, {0, 1, 0}, {0, -1, 0}};
    if (function.array) {
        for (const int objects : {1, -1, 5, -5, 19}) steps.push_back({objects, 0, 0});
    }
    const Shape shapes[] = {{2, 2, 2}, {3, 3, 3}, {4, 4, 4}, {5, 5, 5}, {6, 6, 6},
                            {7, 7, 7}, {8, 8, 8}, {2, 3, 4}, {4, 3, 2}};
    std::size_t turn = 0;
    for (Placement placement : overlapping) {
        for (const char* source : {"Src1", "Src2"}) {
            placement.destinationOn = source;
            for (const Step& step : steps) {
                SCOPED_TRACE(source + (" and " + std::to_string(step.objects)) + " objects, " +
                             std::to_string(step.rows) + " rows, " + std::to_string(step.elements) +
                             " elements");
                placement.behindBy = step;
                // Of arrays a third each time.
                for (std::size_t k = turn++ % 3; k < std::size(shapes); k += function.array ? 3 : 1)
                    test(function, shapes[k], function.array ? 40 : 1, placement);
            }
        }
    }
}

// Long lists are looked through stretch by stretch: what one writes, a later one may read.
TEST_P(Products, overSourcesOfLongLists) {
    if (function.layout != Layout::L) return;
    Placement placement = {.name = "overlapping far away"};
    for (const char* source : {"Src1", "Src2"}) {
        placement.destinationOn = source;
        for (const int objects : {300, -300}) {
            placement.behindBy = {.objects = objects};
            for (const int n : {3, 4, 7}) test(function, {n, n, n}, 560, placement);
        }
    }
}

// A list may name an object twice.
TEST_P(Products, ofListsWithRepetitions) {
    if (function.layout != Layout::L) return;
    const auto repeat = [](Call& call) {
        std::ptrdiff_t period = 2;
        for (const Operand& operand : call.operands()) {
            if (!operand.table) continue;
            for (std::ptrdiff_t n = period; n < operand.objects; n += period) {
                constexpr std::size_t bytes = sizeof(char*);
                char* const entry = operand.table->begin() + bytes * static_cast<std::size_t>(n);
                std::memcpy(entry, entry - bytes, bytes);
                std::memcpy(operand.table->imageOf(entry), entry, bytes);
            }
            ++period;
        }
    };
    for (const int size : {2, 3, 4, 5, 6, 7}) {
        test(function, {size, size, size}, 40, packed, {}, repeat);
        const Parameter& first = function.parameters.front();
        if (first.array) test(function, {size, size, size}, 40, packed, first.name, repeat);
    }
}

// Calls large enough for every layout's fan-out: any number of threads gives the same bits.
TEST_P(Products, onThreads) {
    if (!function.array) return;
    for (const int threads : {2, 3, 7}) {
        const ThreadCount setting(threads);
        test(function, {4, 4, 4}, 1201, packed);
        test(function, {2, 3, 7}, 999, sideBySide);
    }
}

INSTANTIATE_TEST_SUITE_P(, Products, testing::ValuesIn(functionsOf("Mul", "mm")),
                         [](const auto& tested) { return tested.param.name; });

} // namespace
