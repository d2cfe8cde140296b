// Products of a matrix with vectors, and updates by them, bit by bit, wherever the operands lie.
// Where they overlap, what comes out tells the order of reads and writes.
#include "vector_trials.h"

namespace {

using namespace harness;
using vectors_oracle::isUnrolled;

const std::vector<Function> family = functionsOf("Mul Gaxpy", "mv");

// The size is that of the matrix as read.
Sizes sizesOf(const Function& function, Size size, int count) {
    return productSizes(function, size.rows, size.columns, 1, count);
}

const std::vector<Size> small = {1,      2,      3,      4,       5,      6,      7,
                                 8,      {3, 4}, {4, 3}, {2, 4},  {6, 5}, {1, 3}, {5, 1},
                                 {2, 9}, {3, 6}, {4, 8}, {2, 10}, {11, 2}};
// Lengths of sums around those where their order changes.
const std::vector<Size> large = {11,      12,      {2, 11}, {1, 12},  {3, 15},
                                 {1, 16}, {2, 17}, {1, 23}, {2, 24},  {1, 25},
                                 {2, 31}, {1, 32}, {3, 33}, {2, 130}, {130, 2}};

const std::vector<Placement> placements = usualPlacementsAnd({
    {.name = "only the matrix's elements apart", .elementGap = 2, .gapsOnlyIn = 0},
    {.name = "only the vectors' elements apart", .elementGap = 2, .gapsOnlyIn = 1},
    {.name = "only the third operand's elements apart", .elementGap = 2, .gapsOnlyIn = 2},
    {.name = "only the destination's elements apart", .elementGap = 2, .gapsOnlyIn = 3},
});

class MatrixVectors : public VectorTrials {
protected:
    // Where the order of sums depends on addresses, only straight-line code says when it reads.
    bool isOpen(Size size) const {
        const bool unrolled = size.isSquare() && isUnrolled(size.rows);
        return function.name == "qormMul_mva_32f" && !unrolled;
    }
};

TEST_P(MatrixVectors, ofAllSizesInAllPlacements) {
    for (const Placement& placement : placements) {
        for (const Size& size : small) {
            for (const int count : countsOf({1, 7, 16, 17, 33, 40})) {
                test({sizesOf(function, size, count), placement});
            }
        }
        for (const Size& size : large) {
            test({sizesOf(function, size, countsOf({5})[0]), placement});
        }
    }
}

TEST_P(MatrixVectors, atAllAddresses) {
    for (const auto& sizes : {small, large}) {
        for (const Size& size : sizes) testAddresses(sizesOf(function, size, countsOf({3})[0]));
    }
}

TEST_P(MatrixVectors, atBoundaries) {
    if (function.layout != Layout::S) return;
    for (const auto& sizes : {small, large}) {
        for (const Size& size : sizes) {
            for (const int count : countsOf({1, 5, 17})) {
                testBoundaries(sizesOf(function, size, count));
            }
        }
    }
}

// A chain that begins with the first product keeps the sign of zeros, one from +0.0 does not.
TEST_P(MatrixVectors, ofNegativeZeros) {
    for (const Placement& placement : {packed, elementsApart, sideBySide}) {
        for (const auto& sizes : {small, large}) {
            for (const Size& size : sizes) {
                test({.sizes = sizesOf(function, size, countsOf({19})[0]),
                      .placement = placement,
                      .negativeZeros = true});
            }
        }
    }
}

// The destination begins where a vector does. Straight-line code has read it by then; other sizes
// have lost an element before they read it.
TEST_P(MatrixVectors, inPlace) {
    for (const Parameter& source : function.parameters) {
        if (source.kind != Parameter::source || !source.isVector()) continue;
        if (source.array != function.array) continue;
        for (const Placement& placement : placements) {
            for (const Size& size : small) {
                if (size.rows > size.columns || isOpen(size)) continue;
                for (const int count : countsOf({1, 35})) {
                    test({sizesOf(function, size, count), placement, source.name});
                }
            }
        }
    }
}

// The destination begins some elements or objects from a source.
TEST_P(MatrixVectors, overSources) {
    using Step = Placement::Step;
    const Placement overlapping[] = {
        {.name = "overlapping"},
        {.name = "overlapping, apart", .elementGap = 1, .rowGap = 1, .objectGap = 1, .shift = 1},
        {.name = "overlapping, by position", .order = Placement::byPosition, .objectGap = 1}};
    std::vector<Step> steps = {{}, {.elements = 1}, {.elements = -1}, {.rows = 1}};
    for (const int objects : {1, -1, 5, -5, 34, -34}) {
        if (function.array) steps.push_back({.objects = objects});
    }
    for (const Parameter& source : function.parameters) {
        if (source.kind != Parameter::source) continue;
        for (Placement placement : overlapping) {
            placement.destinationOn = source.name;
            for (const Step& step : steps) {
                placement.behindBy = step;
                for (const Size& size : small) {
                    // When a row is read is open where its sum is formed in blocks, and whether the
                    // one matrix of an update is read again.
                    const bool isSingle = !source.array && function.array;
                    const bool isMatrixOpen =
                        (function.name == "qormMul_mva_32f" && !isUnrolled(size.rows)) ||
                        (function.operation == "Gaxpy" && isSingle && isUnrolled(size.rows));
                    if (isOpen(size) || (!source.isVector() && isMatrixOpen)) continue;
                    test({sizesOf(function, size, countsOf({35})[0]), placement});
                }
            }
        }
    }
}

// Long lists are looked through stretch by stretch: what one writes, a later one may read.
TEST_P(MatrixVectors, overSourcesOfLongLists) {
    if (function.layout != Layout::L) return;
    Placement placement = {.name = "overlapping far away"};
    for (const Parameter& source : function.parameters) {
        if (source.kind != Parameter::source) continue;
        placement.destinationOn = source.name;
        for (const int objects : {300, -300}) {
            placement.behindBy = {.objects = objects};
            for (const int n : {3, 4, 6, 7, 8}) {
                const bool isOpenUpdate = function.operation == "Gaxpy" && !source.array;
                if (isOpenUpdate && isUnrolled(n)) continue;
                test({sizesOf(function, n, 560), placement});
            }
        }
    }
}

// Calls large enough for every function's fan-out: any number of threads gives the same bits.
TEST_P(MatrixVectors, onThreads) {
    if (!function.array) return;
    for (const auto& [threads, placement] :
         {std::pair(1, packed), std::pair(2, scattered), std::pair(3, packed)}) {
        const ThreadCount setting(threads);
        test({sizesOf(function, 3, 7001), placement});
        test({sizesOf(function, 4, 5001), placement});
        test({sizesOf(function, {2, 17}, 2401), packed});
    }
}

INSTANTIATE_TEST_SUITE_P(, MatrixVectors, testing::ValuesIn(family),
                         [](const auto& tested) { return tested.param.name; });

std::vector<VectorCase> casesOf(double B) {
    using Elements = std::vector<double>;
    const auto rows = [](int n, const Elements& row) {
        Elements matrix;
        for (int i = 0; i < n; ++i) matrix.insert(matrix.end(), row.begin(), row.end());
        return matrix;
    };
    const char* const singly = "Mul_mv_32f Mul_mv_64f_P Mul_mva_64f_L Mul_mva_32f_L";
    const char* const chains = "Mul_mva_64f Mul_mva_32f_L Mul_mva_32f_P Mul_mv_32f Mul_mava_32f";
    const Elements ones = rows(12, {1});
    const Elements turn = {0, 1, 0, 0, 0, 1, 1, 0, 0};
    const Elements four = rows(4, {B, 1, 1, -B});
    const Elements twelve = rows(4, {B, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, -B});
    return {
        {"a product",
         "Mul_mv_64f Mul_mava_32f_P Mul_mav_64f_L",
         {2, 3},
         {{1, 2, 3, 4, 5, 6}, {1, 0, -1}},
         {-2, -2}},
        {"an update", "Gaxpy", {2, 3}, {{1, 2, 3, 4, 5, 6}, {1, 0, -1}, {10, 20}}, {8, 18}},
        {"one product of -0", "Mul_mv_32f Mul_tva_64f Mul_mava_64f_P", 1, {{-0.0}, {1}}, {0.0}},
        {"an update by -0", "Gaxpy", 1, {{-0.0}, {1}, {-0.0}}, {0.0}},
        {"three products of -0",
         "Mul_mv_32f Mul_mva_32f Mul_mava_64f_P",
         3,
         {rows(9, {-0.0}), ones},
         {-0.0, -0.0, -0.0}},
        {"what is added comes last", "Gaxpy", {1, 2}, {{1, 1}, {1, B}, {-B}}, {0}},
        {"four at boundaries", "Mul_mva_32f", 4, {four, ones}, {1, 1, 1, 1}},
        {"four elsewhere", "Mul_mva_32f", 4, {four, ones}, {0, 0, 0, 0}, 4},
        {"four in a chain", chains, 4, {four, ones}, {0, 0, 0, 0}},
        {"twelve at boundaries", "Mul_mva_32f", {4, 12}, {twelve, ones}, {8, 8, 8, 8}},
        {"twelve elsewhere", "Mul_mva_32f", {4, 12}, {twelve, ones}, {6, 6, 6, 6}, 4},
        {"no boundary to peel to", "Mul_mva_32f", {4, 12}, {twelve, ones}, {0, 0, 0, 0}, 2},
        {"twelve in a chain", chains, {4, 12}, {twelve, ones}, {0, 0, 0, 0}},
        {"size 3 in place",
         "Mul_mv_32f Mul_mva_32f Mul_mava_64f",
         3,
         {turn, {5, 6, 7}},
         {6, 7, 5},
         0,
         0,
         "Src2"},
        {"size 2 in place", singly, 2, {{0, 1, 1, 1}, {5, 6}}, {6, 12}, 0, 0, "Src2"},
        {"size 3 updated in place",
         "Gaxpy",
         3,
         {turn, {5, 6, 7}, {10, 20, 30}},
         {16, 27, 35},
         0,
         0,
         "Src3"},
        {"size 2 updated in place: the product twice",
         "Gaxpy",
         2,
         {{1, 2, 3, 4}, {1, 1}, {10, 20}},
         {6, 14},
         0,
         0,
         "Src3"},
        {"size 2 updated on its factor",
         "Gaxpy",
         2,
         {{1, 1, 1, 0}, {5, 6}, {10, 20}},
         {16, 36},
         0,
         0,
         "Src2"},
    };
}

TEST(MatrixVectorCases, documented) {
    expectCases(family, casesOf, sizesOf);
}

} // namespace
