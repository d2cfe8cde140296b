// Factorisations and their solvers: bit by bit against a scalar model, wherever the operands lie and
// in whatever lane an object is computed, and the properties of the results that no model can vouch
// for.
#include "factorisations_oracle.h"
#include "harness/placements.h"
#include "harness/trial.h"

namespace {

using namespace harness;
using factorisations_oracle::doObject;
using factorisations_oracle::isUnrolled;
using harness::nan;

const std::vector<Function> family =
    functionsOf("LUDecomp LUBackSubst CholeskyDecomp CholeskyBackSubst QRDecomp QRBackSubst");

bool factorises(const Function& function) {
    return function.operation.ends_with("Decomp");
}
bool isQR(const Function& function) {
    return function.operation.starts_with("QR");
}
// The operand that a result may take the place of.
std::string_view replaceable(const Function& function) {
    return factorises(function) ? "Src" : "Src2";
}

std::vector<Size> sizesFor(const Function& function) {
    std::vector<Size> sizes = {1, 2, 3, 4, 5, 6, 7, 8, 9, 13, 16, 17};
    constexpr int tall[][2] = {{2, 1}, {3, 1}, {3, 2}, {4, 3},  {6, 3},
                               {7, 6}, {8, 4}, {9, 5}, {17, 3}, {17, 16}};
    for (const auto& [rows, columns] : tall) {
        if (isQR(function)) sizes.emplace_back(rows, columns);
    }
    return sizes;
}

// Every function factorises it, and solves with it.
Numbers definite(Size size, const Bounds&, Random& r) {
    return made(size, [&](int i, int j) { return uniform(r) + (i == j ? size.columns + 1 : 0); });
}

Numbers positiveDefinite(Size size, const Bounds& of, Random& r) {
    const Numbers G = dense(std::max(size.rows, size.columns), of, r);
    return made(size, [&](int i, int j) {
        double sum = i == j ? 0.1 : 0;
        for (int k = 0; k < size.columns; ++k) sum += G(i, k) * G(j, k);
        return sum;
    });
}

Numbers withPivot(double pivot, Numbers matrix, Random& r) {
    const int k = integer(r, 0, std::min(matrix.size.rows, matrix.size.columns) - 1);
    matrix(k, k) = pivot;
    return matrix;
}

// Its last columns vanish.
Numbers rankDeficient(Size size, const Bounds& of, Random& r) {
    Numbers matrix = definite(size, of, r);
    const int from = integer(r, 0, size.columns - 1);
    for (int i = 0; i < size.rows; ++i) {
        for (int j = from; j < size.columns; ++j) matrix(i, j) = 0;
    }
    return matrix;
}

const std::vector<Input*> allInputs = [] {
    std::vector<Input*> all = {
        definite,
        rankDeficient,
        positiveDefinite,
        [](Size size, const Bounds& of, Random& r) { // a pivot that is not positive
            const double pivot = oneOf({0, -0.0, -1, nan, -infinity, infinity}, r);
            return withPivot(pivot, definite(size, of, r), r);
        },
        [](Size size, const Bounds& of, Random& r) { // around thresholds of Cholesky factorisations
            const double at = oneOf({0x1p-23, 0x1p-30, 0x1p-52, of.smallest, 0}, r);
            const double pivot = at * oneOf({1 - of.eps / 2, 1, 1 + of.eps}, r);
            const Numbers identity = made(size, [](int i, int j) { return i == j; });
            return withPivot(pivot, identity, r);
        },
        [](Size size, const Bounds& of, Random& r) { // sums of squares around the threshold
            const double scale = std::sqrt(of.eps / oneOf({1, 2}, r));
            const int small = integer(r, 0, size.columns - 1);
            return made(size, [&](int i, int j) {
                return j == small ? scale * integer(r, -1, 1) : i == j ? unit(r) : zero(r);
            });
        },
        [](Size size, const Bounds&, Random& r) { // zeros on the diagonal
            return made(size, [&](int i, int j) { return i == j ? zero(r) : uniform(r); });
        },
        [](Size size, const Bounds& of, Random& r) { // the search for the first pivot meets NaN
            return made(size, [&](int, int j) {
                return j > 0 ? uniform(r) : oneOf({nan, of.eps / 2, of.eps, 1, -2}, r);
            });
        },
    };
    all.insert(all.end(), std::begin(inputs), std::end(inputs));
    return all;
}();

const std::vector<Placement> placements = usualPlacementsAnd({
    {.name = "only the first operand's elements apart", .elementGap = 2, .gapsOnlyIn = 0},
    {.name = "only the second operand's elements apart", .elementGap = 2, .gapsOnlyIn = 1},
    {.name = "only the third operand's elements apart", .elementGap = 2, .gapsOnlyIn = 2},
});

class Factorisations : public Trials<Input, definite> {
protected:
    // The pivot rows that a solver is given are in any order.
    void setObject(const Call& call, int k, Input* input, Random& random) const override {
        const Bounds bounds = withType(function, []<class T>(T) { return Bounds::of<T>(); });
        for (const Operand& operand : call.operands()) {
            const bool isGiven =
                operand.parameter.kind == Parameter::source || operand.parameter.name == "SrcIndex";
            if (!isGiven || k >= operand.objects) continue;
            if (operand.parameter.kind == Parameter::source) {
                const Numbers numbers = input({operand.rows, operand.columns}, bounds, random);
                operand.forEachElementOf(
                    k, [&](int, int i, int j) { operand.setNumber(k, i, j, numbers(i, j)); });
                continue;
            }
            const Numbers order =
                withRowsShuffled(made({operand.columns, 1}, [](int i, int) { return i; }), random);
            for (int i = 0; i < operand.columns; ++i) {
                operand.set(k, 0, i, static_cast<std::int32_t>(order(i, 0)));
            }
        }
    }

    bool fails(const Call& call, int k) const override {
        if (!factorises(function)) return false;
        const qorStatus status = modelled(call, k);
        for (const Operand& operand : call.operands()) operand.accept();
        return status != qorStatusOk;
    }

    // All calls on several threads are large enough to spread, where a function does.
    std::string faultOf(Call& call, const Library& library) const override {
        const bool spreads = function.operation == "LUDecomp"
                                 ? function.name == "qormLUDecomp_ma_32f_L"
                                 : function.array;
        const int threads = spreads ? qorGetThreadCount() : 1;
        const Operand& result = call.operand("Dst");
        const auto statuses =
            statusesOfRuns(result.objects, threads, [&](int k) { return modelled(call, k); });
        const qorStatus got = call.run(library);
        if (!isAnswer(got, statuses)) return "status " + std::to_string(got);
        const Operand& matrix = call.operands().front();
        const bool isLocal =
            !factorises(function) && matrix.rows == matrix.columns && isUnrolled(matrix.rows);
        if (isQR(function) && (threads > 1 || isLocal) && !call.scratch()->isUntouched(0)) {
            return "the scratch was touched";
        }
        return call.difference();
    }

private:
    qorStatus modelled(const Call& call, int k) const {
        return withType(function, [&]<class T>(T) { return doObject<T>(call, function, k); });
    }
};

TEST_P(Factorisations, ofAllInputsInAllPlacements) {
    constexpr int counts[] = {1, 2, 3, 8, 9, 16, 17, 33, 35};
    Random random(0);
    for (const Size& size : sizesFor(function)) {
        const bool isLarge = size.rows > 9;
        for (Input* input : allInputs) {
            for (int repetition = isLarge ? 1 : 0; repetition < 2; ++repetition) {
                const int count = counts[random() % std::size(counts)];
                test({.size = size,
                      .count = isLarge ? std::min(count, 3) : count,
                      .placement = placements[random.below(placements.size())],
                      .special = input});
            }
        }
    }
}

TEST_P(Factorisations, ofManyLargeMatrices) {
    for (const Size& size : sizesFor(function)) {
        if (function.array && size.rows > 9) {
            test({.size = size, .count = 33, .placement = packed, .special = dense});
        }
    }
}

// Calls large enough for every function's fan-out, in which one thread ends early. The threads' own
// scratch, above all.
TEST_P(Factorisations, onThreads) {
    if (!function.array) return;
    const struct {
        int threads;
        Size size;
        const Placement& placement;
    } shapes[] = {{2, 2, scattered}, {3, 3, packed},     {7, 3, elementsApart}, {2, 6, sideBySide},
                  {3, 7, packed},    {7, 17, scattered}, {3, {9, 5}, packed}};
    for (const auto& [threads, size, placement] : shapes) {
        if (!size.isSquare() && !isQR(function)) continue;
        qorSetThreadCount(threads);
        const int count = 40001 / (size.columns * size.columns) + 1;
        test({size, count, placement, definite, rankDeficient, count / 2 + 9},
             libraries().size() - 1);
    }
}

// Wherever in a block of lanes or in its tail an object fails: those before it are complete, its
// own state is the one that the model leaves, those behind it are untouched.
TEST_P(Factorisations, endAtTheObjectThatFails) {
    if (!factorises(function)) return;
    for (int position = 0; position < (function.array ? 35 : 1); ++position) {
        const Placement& placement = placements[std::size_t(position) % placements.size()];
        for (const Size& size : sizesFor(function)) {
            if (size.rows < 9) test({size, 35, placement, definite, rankDeficient, position});
        }
    }
}

TEST_P(Factorisations, inPlace) {
    std::size_t next = 0;
    for (const Size& size : sizesFor(function)) {
        const bool isLarge = size.rows > 9;
        for (Input* input : {definite, dense, rankDeficient}) {
            for (int repetition = isLarge ? 4 : 0; repetition < 6; ++repetition) {
                test({.size = size,
                      .count = isLarge ? 3 : 33,
                      .placement = placements[next++ % placements.size()],
                      .special = input,
                      .inPlaceOf = replaceable(function)});
            }
        }
    }
}

// Results that are written over sources still to be read show the order of reads and writes.
TEST_P(Factorisations, resultsOverOtherSources) {
    constexpr Placement::Step steps[] = {{.objects = -3}, {.objects = -1},  {.objects = 1},
                                         {.objects = 2},  {.objects = 16},  {.rows = 1},
                                         {.rows = -1},    {.elements = -1}, {.elements = 1}};
    for (const Placement::Step& step : steps) {
        if (step.objects != 0 && !function.array) continue;
        for (const auto order : {Placement::byRows, Placement::byPosition}) {
            const Placement placement = {.name = "over other sources",
                                         .order = order,
                                         .shift = 1,
                                         .destinationOn = replaceable(function),
                                         .behindBy = step};
            for (const int n : {1, 2, 3, 4, 5, 6, 7, 8}) {
                // Here an element may be stored while others are still to be read.
                const bool isOpen = function.operation == "CholeskyDecomp" && isUnrolled(n);
                if (isOpen && step.objects == 0) continue;
                SCOPED_TRACE("objects " + std::to_string(step.objects) + ", rows " +
                             std::to_string(step.rows) + ", elements " +
                             std::to_string(step.elements));
                Input* const special = function.operation == "CholeskyDecomp" ? definite : dense;
                test({.size = n, .count = 35, .placement = placement, .special = special});
            }
        }
    }
}

// Solutions may be written over the one matrix of all systems, which the next ones are solved by.
TEST_P(Factorisations, solutionsOverTheirMatrix) {
    if (factorises(function) || !function.array || function.parameters[0].array) return;
    for (const auto order : {Placement::byRows, Placement::byPosition}) {
        for (const int elements : {0, 1, 9}) {
            const Placement placement = {.name = "over the matrix",
                                         .order = order,
                                         .destinationOn = "Src1",
                                         .behindBy = {.elements = elements}};
            for (const int n : {2, 7, 8, 9})
                test({.size = n, .count = 35, .placement = placement, .special = dense});
        }
    }
}

// So do results that are written over each other, which those of LU must not be. Lists have no
// stride from object to object.
TEST_P(Factorisations, resultsOverOtherResults) {
    const bool mayOverlap = !function.operation.starts_with("LU");
    if (!mayOverlap || !function.array || function.layout == Layout::L) return;
    for (const int elements : {1, 2}) {
        const auto overlap = [&](Call& call) {
            for (Operand& operand : call.operands()) {
                if (operand.parameter.kind == Parameter::result)
                    operand.stride0 = elements * function.elementSize;
            }
        };
        for (const int n : {2, 3, 4, 5, 6, 7}) {
            test({.size = n, .count = 35, .placement = packed, .rearrange = overlap});
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, Factorisations, testing::ValuesIn(family),
                         [](const auto& tested) { return tested.param.name; });

// What a destination holds where a call has written nothing.
constexpr double kept = 77;

using Elements = std::vector<double>;
using Pivots = std::vector<std::int32_t>;

struct Case {
    const char* description;
    const char* functions; // operations, operations and types, or names
    Size size;
    Elements matrix;
    Elements vector; // that a solver is given
    Elements result;
    qorStatus status;
    Pivots pivots;        // of a solver: those that it is given
    double tolerance = 0; // in eps
    Placement placement = packed;
    bool inPlace = false;

    Case within(double eps) && { return tolerance = eps, std::move(*this); }
    Case in(const Placement& where) && { return placement = where, std::move(*this); }
    Case onSource() && { return inPlace = true, std::move(*this); }
};

Case factors(const char* description, const char* functions, Size size, const Elements& matrix,
             const Elements& result, qorStatus status = qorStatusOk, const Pivots& pivots = {}) {
    return {description, functions, size, matrix, {}, result, status, pivots};
}
Case solves(const char* description, const char* functions, Size size, const Elements& matrix,
            const Elements& vector, const Elements& result, const Pivots& pivots = {}) {
    return {description, functions, size, matrix, vector, result, qorStatusOk, pivots};
}

Elements diagonal(const Elements& elements) {
    const int n = static_cast<int>(elements.size());
    return made(n, [&](int i, int j) { return i == j ? elements.begin()[i] : 0; }).elements;
}

std::vector<Case> luCases(double eps) {
    const double below = eps - eps * eps / 2;
    const double above = eps + eps * eps;
    const auto ok = qorStatusOk;
    const auto singular = qorStatusSingular;
    return {
        factors("size 1 at the threshold", "LUDecomp", 1, {-eps}, {-eps}, singular, {0}),
        factors("size 1 above the threshold", "LUDecomp", 1, {above}, {above}, ok, {0}),
        factors("size 1 that is no number", "LUDecomp", 1, {nan}, {nan}, ok, {0}),
        factors("the first of equal candidates is the pivot", "LUDecomp", 2, {1, 1, -1, 1},
                {1, 1, -1, 2}, ok, {0, 1}),
        factors("rows stay in their places", "LUDecomp", 2, {1, 5, 2, 4}, {0.5, 3, 2, 4}, ok,
                {1, 0}),
        factors("size 2 with a pivot at the threshold: no exchange", "LUDecomp", 2, {0, 1, eps, 1},
                {0, 1, eps, 1}, singular, {0, 1}),
        factors("size 3 with pivots at the threshold", "LUDecomp", 3, diagonal({eps, 1, -eps}),
                diagonal({eps, 1, -eps}), ok, {0, 1, 2}),
        factors("size 3 with a pivot below the threshold: exchanged, nothing is written",
                "LUDecomp", 3, {0, 1, 0, below, 0, 0, 0, 0, 1}, Elements(9, kept), singular,
                {1, 0, 2}),
        factors("size 3 without a second pivot: the first row is written", "LUDecomp", 3,
                {1, 0, 0, 2, 0, 4, 1, below, 0}, {kept, kept, kept, 2, 0, 4, kept, kept, kept},
                singular, {1, 2, 0}),
        factors("size 7 with a pivot at the threshold", "LUDecomp", 7,
                diagonal({1, 1, 1, 1, 1, eps, 1}), diagonal({1, 1, 1, 1, 1, eps, 1}), singular,
                {0, 1, 2, 3, 4, 5, 6}),
        factors("size 7 with the last pivot at the threshold is done", "LUDecomp", 7,
                diagonal({1, 1, 1, 1, 1, 1, -eps}), diagonal({1, 1, 1, 1, 1, 1, -eps}), singular,
                {0, 1, 2, 3, 4, 5, 6}),
        factors("size 3 with the last pivot below the threshold: its row is not written",
                "LUDecomp", 3, diagonal({1, 1, below}), {1, 0, 0, 0, 1, 0, kept, kept, kept},
                singular, {0, 1, 2}),
        factors("a last pivot of 0 passes if the last row served before", "LUDecomp", 3,
                {0, 1, 1, 0, 1, 1, 1, 0, 5}, {0, 1, 0, 0, 1, 1, 1, 0, 5}, ok, {2, 1, 0}),
        factors("a regular matrix fails if the last row served before and ends in 0", "LUDecomp", 3,
                {0, 1, 1, 0, 2, 1, 1, 0, 0}, {kept, kept, kept, 0, 2, 1, 1, 0, 0}, singular,
                {2, 1, 0}),
        factors("NaN is no better pivot in 32f", "LUDecomp_32f", 2, {1, 2, nan, 1},
                {1, 2, nan, nan}, ok, {0, 1}),
        factors("NaN is a better pivot in 64f, and no pivot", "LUDecomp_64f", 2, {1, 2, nan, 1},
                {1, 2, nan, 1}, singular, {0, 1}),
        factors("NaN stays the pivot in 32f", "LUDecomp_32f", 2, {nan, 2, 2, 1}, {nan, 2, nan, nan},
                ok, {0, 1}),
        factors("NaN gives way to the next candidate in 64f", "LUDecomp_64f", 2, {nan, 2, 2, 1},
                {nan, nan, 2, 1}, ok, {1, 0}),
        factors("size 3: NaN and a small element hide the pivot from the test", "LUDecomp", 3,
                {5, 0, 0, nan, 1, 0, below, 0, 1}, Elements(9, kept), singular, {0, 1, 2}),
        factors("size 3: NaN and a large element hide a small pivot from the test", "LUDecomp", 3,
                {below / 2, 0, 0, nan, 1, 0, 5, 0, 1},
                {below / 2, 0, 0, kept, kept, kept, kept, kept, kept}, singular, {0, 1, 2}),
        factors("size 3: a last pivot that is no number", "LUDecomp", 3, diagonal({1, 1, nan}),
                {1, 0, 0, 0, 1, 0, kept, kept, kept}, singular, {0, 1, 2}),
        solves("size 1 divides", "LUBackSubst", 1, {49}, {49}, {1}, {0}),
        solves("a zero on the diagonal", "LUBackSubst", 1, {0}, {-1}, {-infinity}, {0}),
        solves("a zero on the diagonal of size 3", "LUBackSubst", 3, diagonal({1, 1, 0}), {1, 1, 1},
               {nan, nan, infinity}, {0, 1, 2}),
        solves("rows in the order of pivots", "LUBackSubst", 2, {0.5, 3, 2, 4}, {11, 10}, {1, 2},
               {1, 0}),
        solves("size 2 in place reads what it has written", "LUBackSubst", 2, {0, 1, 1, 0}, {3, 4},
               {4, 4}, {1, 0})
            .onSource(),
        solves("size 3 in place", "LUBackSubst", 3, {0, 0, 1, 1, 0, 0, 0, 1, 0}, {4, 5, 6},
               {5, 6, 4}, {1, 2, 0})
            .onSource(),
    };
}

std::vector<Case> choleskyCases() {
    const auto indefinite = qorStatusNotPositiveDefinite;
    return {
        factors("size 1", "CholeskyDecomp", 1, {4}, {0.5}).within(4),
        factors("the diagonal holds reciprocals, above it nothing is read or written",
                "CholeskyDecomp", 2, {4, nan, 0, 9}, {0.5, kept, 0, 1 / 3.0})
            .within(4),
        factors("size 3", "CholeskyDecomp", 3, {4, nan, nan, 2, 10, nan, 6, 6, 14},
                {0.5, kept, kept, 1, 1 / 3.0, kept, 3, 1, 0.5})
            .within(16),
        factors("a pivot of zero", "CholeskyDecomp", 1, {0}, {kept}, indefinite),
        factors("a negative pivot: its row is written up to it", "CholeskyDecomp_64f", 2,
                {4, 0, 2, 0.5}, {0.5, kept, 1, kept}, indefinite),
        factors("a pivot that is no number", "CholeskyDecomp", 1, {nan}, {kept}, indefinite),
        factors("pointers take a larger threshold at size 3",
                "CholeskyDecomp_m_32f_P CholeskyDecomp_ma_32f_P "
                "CholeskyDecomp_m_64f_P CholeskyDecomp_ma_64f_P",
                3, diagonal({0x1p-23, 1, 1}), Elements(9, kept), indefinite),
        factors("other layouts do not",
                "CholeskyDecomp_m_64f CholeskyDecomp_ma_64f "
                "CholeskyDecomp_ma_64f_L",
                3, diagonal({0x1p-30, 1, 1}), {0x1p15, kept, kept, 0, 1, kept, 0, 0, 1}),
        factors("nor do other sizes", "CholeskyDecomp_m_64f_P CholeskyDecomp_ma_64f_P", 2,
                diagonal({0x1p-30, 1}), {0x1p15, kept, 0, 1}),
        factors("strides take a threshold in ma_64f", "CholeskyDecomp_ma_64f", 1, {0x1p-52}, {kept},
                indefinite)
            .in(elementsApart),
        factors("lists do not", "CholeskyDecomp_ma_64f_L", 1, {0x1p-52}, {0x1p26})
            .in(elementsApart),
        solves("size 1 multiplies twice", "CholeskyBackSubst", 1, {0.5}, {3}, {0.75}),
        solves("by a diagonal", "CholeskyBackSubst", 2, {0.5, nan, 0, 1 / 3.0}, {4, 9}, {1, 1})
            .within(2),
        solves("size 3", "CholeskyBackSubst", 3, {0.5, nan, nan, 1, 1 / 3.0, nan, 3, 1, 0.5},
               {26, 40, 60}, {1, 2, 3})
            .within(64),
    };
}

std::vector<Case> qrCases() {
    const auto vanishing = qorStatusDivideByZero;
    return {
        factors("wider than high", "QRDecomp", {1, 2}, {1, 2}, {kept, kept}, qorStatusSizeMismatch),
        factors("size 1 is copied", "QRDecomp", 1, {0}, {0}),
        factors("a column of zeros", "QRDecomp", {2, 1}, {0, 0}, {0, 0}, vanishing),
        factors("a column", "QRDecomp", {2, 1}, {3, 4}, {-5, 0.5}),
        factors("a negative column", "QRDecomp", {2, 1}, {-3, 4}, {5, -0.5}),
        factors("a column that begins with 0", "QRDecomp", {2, 1}, {0, 1}, {1, -1}),
        factors("the identity", "QRDecomp", 2, diagonal({1, 1}), diagonal({-1, 1})),
        factors("the last column of a square matrix is not tested", "QRDecomp", 2, {3, 0, 4, 0},
                {-5, 0, 0.5, 0}),
        factors("columns before the one that vanishes are reduced", "QRDecomp", 3,
                {1, 0, 7, 0, 0, 8, 0, 0, 9}, {-1, 0, -7, 0, 0, 8, 0, 0, 9}, vanishing),
        factors("a sum of squares below the threshold", "QRDecomp_32f", {2, 1}, {0, 0x1.6a09e6p-12},
                {0, 0x1.6a09e6p-12}, vanishing),
        factors("a sum of squares at the threshold", "QRDecomp_64f", {2, 1}, {0, 0x1p-26},
                {0x1p-26, -1}),
        factors("full rank, but small", "QRDecomp_32f", 2, diagonal({1e-4, 1e-4}),
                diagonal({1e-4, 1e-4}), vanishing),
        solves("size 1 divides", "QRBackSubst", 1, {49}, {49}, {1}),
        solves("a column", "QRBackSubst", {2, 1}, {-5, 0.5}, {3, 4}, {1}),
        solves("a zero on the diagonal", "QRBackSubst", 2, {-1, 1, 0, 0}, {1, -1},
               {-infinity, -infinity}),
    };
}

void give(const Operand& operand, const Elements& elements) {
    auto next = elements.begin();
    operand.forEachElement([&](int, int i, int j) { operand.setNumber(0, i, j, *next++); });
}

template <class T>
Numbers taken(const Operand& operand) {
    return made({operand.rows, operand.columns},
                [&](int i, int j) { return double(operand.get<T>(0, i, j)); });
}

template <class T>
void expectCase(const Function& function, const Case& known) {
    Call call(function, sizesOf(known.size, 1), known.placement, 1, known.inPlace ? "Src2" : "");
    const Operand& result = call.operand("Dst");
    give(result, Elements(known.result.size(), kept));
    give(call.operands().front(), known.matrix);
    if (!factorises(function)) give(call.operand("Src2"), known.vector);
    const int pivots = static_cast<int>(known.pivots.size());
    for (int k = 0; k < pivots && !factorises(function); ++k) {
        call.operand("SrcIndex").set(0, 0, k, known.pivots.begin()[k]);
    }

    EXPECT_EQ(call.run(libraries().back()), known.status);
    const Numbers got = taken<T>(result);
    for (std::size_t k = 0; k < got.elements.size(); ++k) {
        const double want{T(known.result[k])};
        const double error = std::abs(got.elements[k] - want);
        const double limit =
            known.tolerance * double{std::numeric_limits<T>::epsilon()} * std::abs(want);
        EXPECT_TRUE(got.elements[k] == want || error <= limit ||
                    (std::isnan(want) && std::isnan(error)))
            << k << " got " << got.elements[k] << " want " << want;
    }
    for (int k = 0; k < pivots && factorises(function); ++k) {
        const auto row = call.operand("DstIndex").get<std::int32_t>(0, 0, k);
        EXPECT_EQ(row, known.pivots.begin()[k]) << "pivot " << k;
    }
}

bool isFor(const Case& known, const Function& function) {
    const std::string type = function.elementSize == 4 ? "_32f" : "_64f";
    return contains(known.functions, function.operation) ||
           contains(known.functions, function.operation + type) ||
           contains(known.functions, std::string_view(function.name).substr(4));
}

TEST(FactorisationCases, documented) {
    const auto cases = [](double eps) {
        std::vector<Case> all = luCases(eps);
        for (const auto& more : {choleskyCases(), qrCases()}) {
            all.insert(all.end(), more.begin(), more.end());
        }
        return all;
    };
    const std::vector<Case> of32f = cases(0x1p-23);
    const std::vector<Case> of64f = cases(0x1p-52);
    for (std::size_t k = 0; k < of32f.size(); ++k) {
        int functions = 0;
        for (const Function& function : family) {
            if (!isFor(of32f[k], function)) continue;
            SCOPED_TRACE(of32f[k].description + (" of " + function.name));
            if (function.elementSize == 4)
                expectCase<float>(function, of32f[k]);
            else
                expectCase<double>(function, of64f[k]);
            ++functions;
        }
        EXPECT_GT(functions, 0) << of32f[k].description;
    }
}

// What factors multiply to, with rows in the order of pivots.
Numbers product(const std::string& operation, const Numbers& f, const Pivots& p) {
    const auto [rows, columns] = f.size;
    if (operation != "QR") {
        const bool isLU = operation == "LU";
        const auto row = [&](int k) { return isLU ? p.begin()[k] : k; };
        const auto L = [&](int i, int k) {
            return i < k ? 0 : i > k ? f(row(i), k) : isLU ? 1 : 1 / f(i, i);
        };
        const auto U = [&](int k, int j) { return !isLU ? L(j, k) : k > j ? 0 : f(row(k), j); };
        return made(f.size, [&](int i, int j) {
            double sum = 0;
            for (int k = 0; k < f.size.columns; ++k) sum += L(i, k) * U(k, j);
            return sum;
        });
    }
    Numbers result = made(f.size, [&](int i, int j) { return i <= j ? f(i, j) : 0; });
    for (int k = std::min(columns, rows - 1) - 1; k >= 0; --k) {
        const auto v = [&](int i) { return i == k ? 1 : f(i, k); };
        double norm = 0;
        for (int i = k; i < rows; ++i) norm += v(i) * v(i);
        for (int j = 0; j < columns; ++j) {
            double s = 0;
            for (int i = k; i < rows; ++i) s += v(i) * result(i, j);
            for (int i = k; i < rows; ++i) result(i, j) -= 2 / norm * s * v(i);
        }
    }
    return result;
}

// A x - b, of a least-squares solution A^T (A x - b), relative to the terms of the first.
double residual(const Numbers& A, const Numbers& x, const Numbers& b) {
    const auto [rows, columns] = A.size;
    double largest = 0;
    const Numbers r = made({rows, 1}, [&](int i, int) {
        double sum = -b(0, i);
        double terms = std::abs(sum);
        for (int j = 0; j < A.size.columns; ++j) {
            sum += A(i, j) * x(0, j);
            terms += std::abs(A(i, j) * x(0, j));
        }
        largest = std::max(largest, terms);
        return sum;
    });
    double most = 0;
    for (int j = 0; j < columns; ++j) {
        double sum = rows == columns ? r(j, 0) : 0;
        for (int i = 0; rows > columns && i < rows; ++i) sum += A(i, j) * r(i, 0);
        most = std::max(most, std::abs(sum));
    }
    return most / largest;
}

template <class T>
void expectAccuracy(const std::string& operation, Numbers A, Numbers b) {
    for (double& element : A.elements) element = T(element);
    for (double& element : b.elements) element = T(element);
    const std::string type = sizeof(T) == 4 ? "32f" : "64f";
    const Function decomposes = functionOf("qorm" + operation + "Decomp_m_" + type);
    const Function substitutes = functionOf("qorm" + operation + "BackSubst_mv_" + type);
    Call factorisation(decomposes, sizesOf(A.size, 1), packed, 1);
    Call substitution(substitutes, sizesOf(A.size, 1), packed, 2);

    give(factorisation.operand("Src"), A.elements);
    EXPECT_EQ(factorisation.run(libraries().back()), qorStatusOk);
    const Numbers factors = taken<T>(factorisation.operand("Dst"));
    Pivots p;
    for (int k = 0; k < A.size.columns && operation == "LU"; ++k) {
        p.push_back(factorisation.operand("DstIndex").get<std::int32_t>(0, 0, k));
        substitution.operand("SrcIndex").set(0, 0, k, p.back());
    }
    give(substitution.operand("Src1"), factors.elements);
    give(substitution.operand("Src2"), b.elements);
    EXPECT_EQ(substitution.run(libraries().back()), qorStatusOk);

    const double limit = 4.0 * A.size.rows * std::numeric_limits<T>::epsilon();
    EXPECT_LE(residual(A, taken<T>(substitution.operand("Dst")), b), limit);
    const Numbers B = product(operation, factors, p);
    for (int i = 0; i < A.size.rows; ++i) {
        const int row = operation == "LU" ? p.begin()[i] : i;
        for (int j = 0; j < A.size.columns; ++j) EXPECT_NEAR(B(i, j), A(row, j), limit);
    }
}

TEST(FactorisationAccuracy, ofProductsAndSolutions) {
    const struct {
        std::string operation;
        Input* input;
    } methods[] = {{"LU", dense}, {"Cholesky", positiveDefinite}, {"QR", dense}};
    for (const auto& [operation, input] : methods) {
        for (const Size& size : sizesFor(functionOf("qorm" + operation + "Decomp_m_32f"))) {
            SCOPED_TRACE(operation + " of " + std::to_string(size.rows) + " rows");
            Random random(1);
            for (int trial = 0; trial < 200; ++trial) {
                const Numbers A = input(size, {}, random);
                const Numbers b = dense({1, size.rows}, {}, random);
                expectAccuracy<float>(operation, A, b);
                expectAccuracy<double>(operation, A, b);
            }
        }
    }
}

} // namespace
