// The symmetric eigenproblem: bit by bit against a scalar model, wherever the operands lie and in
// whatever lane an object is computed, and the properties of the results that no model can vouch for.
#include "eigen_oracle.h"
#include "harness/trial.h"

#include <array>

namespace {

using namespace harness;
using eigen_oracle::Eigen;

// Makes element (i, j) of a matrix of size n; the bounds are those of the type. Only `lopsided` is
// asked for the elements below the diagonal.
struct Place {
    int i, j, n;
    double eps, smallest, largest;
};
using Entry = double(const Place&, Random&);

double grade(const Place& at) {
    return std::pow(10, 16.0 * at.j / std::max(1, at.n - 1) - 8);
}

double dense(const Place&, Random& random) {
    return uniform(random);
}
double lopsided(const Place&, Random& random) {
    return 2 * uniform(random);
}
double singular(const Place& at, Random&) {
    return at.i == at.j ? at.i : 0;
}
double negativeDefinite(const Place& at, Random& random) {
    return at.i == at.j ? uniform(random) - at.n - 1 : uniform(random);
}

constexpr Entry* entries[] = {
    dense,
    lopsided,
    singular,
    negativeDefinite,
    [](const Place& at, Random&) { return at.i == at.j ? 3.0 : 1.0; }, // one value repeated
    [](const Place& at, Random& r) { return uniform(r) * grade(at); },
    [](const Place& at, Random& r) { return uniform(r) / grade(at); },
    [](const Place& at, Random& r) { return at.j - at.i < 2 ? uniform(r) : 0; },
    [](const Place& at, Random& r) { return at.i == at.j ? uniform(r) : 0; },
    [](const Place& at, Random& r) { return at.i == at.j ? integer(r, 1, 3) : 3e-7 * uniform(r); },
    [](const Place& at, Random& r) { return at.i == at.j ? integer(r, 1, 3) : 1e-8 * uniform(r); },
    [](const Place& at, Random& r) { // on all sides of the thresholds
        const double x = at.i == at.j ? integer(r, -1, 1) : integer(r, 0, 1) * uniform(r);
        return x + at.eps * uniform(r);
    },
    [](const Place& at, Random&) { return 1.0 / (at.i + at.j + 1); },
    [](const Place&, Random& r) -> double { return integer(r, -3, 3); },
    [](const Place& at, Random& r) -> double {
        return at.i == at.j ? integer(r, 0, 2) : at.j - at.i == 1 ? -1 : 0;
    },
    [](const Place&, Random&) { return 0.0; },
    [](const Place& at, Random& r) { return at.smallest * uniform(r); },
    [](const Place& at, Random& r) { return at.largest * uniform(r); },
    [](const Place&, Random& r) { return integer(r, 0, 5) > 0 ? uniform(r) : std::nan(""); },
    [](const Place&, Random& r) { return integer(r, 0, 5) > 0 ? uniform(r) : -infinity; },
};

template <class T>
Matrix<T> generated(Entry* input, int n, Random& random) {
    using Limits = std::numeric_limits<T>;
    Matrix<T> matrix{n, std::vector<T>(static_cast<std::size_t>(n * n))};
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j) {
            const bool mirrored = j < i && input != lopsided;
            const T x =
                mirrored
                    ? matrix(j, i)
                    : T(input({i, j, n, Limits::epsilon(), Limits::min(), Limits::max()}, random));
            // What size 2 gives for a trace that is no number is open.
            matrix(i, j) = n > 2 || std::isfinite(x) ? x : 1;
        }
    }
    return matrix;
}

// From a dense matrix of size 3 for which the iteration does not settle, whether or not reduced
// columns are reflected.
template <class T>
double unsettled(const Place& at, Random&) {
    static Matrix<T> found = [] {
        const auto settles = [](const Matrix<T>& matrix, bool skipsReducedColumns) {
            return Eigen<T>(matrix, {false, false, skipsReducedColumns, false, false}).solve() !=
                   qorStatusNoConvergence;
        };
        Random random(1);
        Matrix<T> matrix = generated<T>(dense, 3, random);
        while (settles(matrix, false) || settles(matrix, true)) {
            matrix = generated<T>(dense, 3, random);
        }
        return matrix;
    }();
    return found(at.i, at.j);
}

bool hasVectors(const Function& function) {
    return function.operation == "EigenValuesVectorsSym";
}

// Sets what object k has to hold behind the call.
template <class T>
qorStatus expectObject(const Call& call, const Function& function, int k) {
    const Operand& source = call.operand("Src");
    Eigen<T> eigen(expectedMatrix<T>(source, k), eigen_oracle::rulesOf(function));
    const qorStatus status = eigen.solve();
    if (status == qorStatusSingular && source.rows == 2) return status;
    for (int i = 0; i < source.rows; ++i) {
        for (int j = 0; hasVectors(function) && j < source.rows; ++j) {
            call.operand("DstVectors").expect<T>(k, i, j, eigen.V(i, j));
        }
    }
    for (int j = 0; j < source.rows; ++j) {
        call.operand("DstValues").expect<T>(k, 0, j, eigen.values[static_cast<std::size_t>(j)]);
    }
    return status;
}

// How the library differs from the model.
template <class T>
std::string faultOf(Call& call, const Function& function, const Library& library) {
    std::vector<int> unsettled;
    const int threads = function.array ? qorGetThreadCount() : 1;
    const auto statuses = statusesOfRuns(call.operand("Src").objects, threads, [&](int k) {
        const qorStatus status = expectObject<T>(call, function, k);
        if (status == qorStatusNoConvergence) unsettled.push_back(k);
        return status;
    });
    const qorStatus got = call.run(library);
    if (!isAnswer(got, statuses)) return "status " + std::to_string(got);
    const Operand& values = call.operand("DstValues");
    for (const int k : unsettled) { // their values are meaningless
        for (int j = 0; j < values.columns; ++j) values.expect(k, 0, j, values.get<T>(k, 0, j));
    }
    return call.difference();
}

const Placement placements[] = {
    {.name = "packed"},
    {.name = "rows apart", .rowGap = 3, .shift = 5},
    {.name = "elements apart", .elementGap = 1, .rowGap = 1, .objectGap = 1, .shift = 1},
    {.name = "only the vectors' elements apart", .elementGap = 2, .gapsOnlyIn = 1},
    {.name = "by columns", .order = Placement::byColumns, .objectGap = 2, .misalignment = 1},
    {.name = "objects side by side", .order = Placement::byPosition},
    {.name = "scattered", .objectGap = 3, .scattered = true, .shift = 7},
    {.name = "interleaved elements", .sharing = Placement::interleavedElements},
};

class SymmetricEigen : public Trials<Entry, dense> {
    void setObject(const Call& call, int k, Entry* input, Random& random) const override {
        withType(function, [&]<class T>(T) {
            const Operand& source = call.operand("Src");
            setMatrix(source, k, generated<T>(input, source.rows, random));
        });
    }
    std::string faultOf(Call& call, const Library& library) const override {
        return withType(function,
                        [&]<class T>(T) { return ::faultOf<T>(call, function, library); });
    }
};

TEST_P(SymmetricEigen, ofAllInputsInAllPlacements) {
    std::size_t next = 0;
    for (const int n : {1, 2, 3, 4, 5, 6, 7, 8, 16, 17}) {
        for (Entry* input : entries) {
            for (const int count : {1, 3, 37}) {
                const Placement& placement = placements[next++ % std::size(placements)];
                test({.size = n, .count = count, .placement = placement, .special = input});
            }
        }
    }
}

// Calls large enough for every function's fan-out.
TEST_P(SymmetricEigen, onThreads) {
    for (const int threads : {1, 2, 3, 7}) {
        qorSetThreadCount(threads);
        for (const Placement& placement : {placements[0], placements[2], placements[5]}) {
            test({.size = 6, .count = 960, .placement = placement, .special = singular});
        }
    }
}

// Wherever in a block of lanes or in its tail an object fails: those before it are complete, its
// own state is the one that the model leaves, those behind it are untouched.
TEST_P(SymmetricEigen, endsAtTheObjectThatFails) {
    Entry* const doesNotSettle = function.elementSize == 4 ? unsettled<float> : unsettled<double>;
    for (int position = 0; position < (function.array ? 35 : 1); ++position) {
        const auto failAt = [&](int n, Entry* failing) {
            test({n, 35, placements[position % 3], negativeDefinite, failing, position});
        };
        failAt(2, singular);
        failAt(3, singular);
        failAt(3, doesNotSettle);
    }
}

TEST_P(SymmetricEigen, vectorsInPlaceOfTheSource) {
    for (const Placement& placement : placements) {
        const bool bothAlike = placement.gapsOnlyIn < 0 && placement.sharing == Placement::apart;
        for (const int n : {1, 2, 3, 5, 8}) {
            if (bothAlike)
                test({.size = n, .count = 33, .placement = placement, .inPlaceOf = "Src"});
        }
    }
}

// Results that are written over sources still to be read show the order of the objects.
TEST_P(SymmetricEigen, resultsOverOtherSources) {
    constexpr int room = 24;
    const Placement placement = {.name = "overlapping",
                                 .objectGap = 9,
                                 .scattered = true,
                                 .shift = room,
                                 .misalignment = room * function.elementSize};
    for (const int ahead : {-18, -9, -4, 0, 1, 9, 10, 24}) {
        for (const int sourceStride : {9, 18}) {
            for (const auto kind : {Parameter::results, Parameter::result}) {
                const auto overlap = [&](Call& call) {
                    Operand& source = call.operands().front();
                    source.stride0 = sourceStride * source.elementSize;
                    for (Operand& operand : call.operands()) {
                        if (operand.parameter.kind != kind) continue;
                        operand.memory = source.memory;
                        operand.base = source.memory->begin() + placement.misalignment;
                        if (kind == Parameter::result) operand.table = source.table;
                        moveBack(ahead > 0 ? source : operand, std::abs(ahead));
                    }
                };
                SCOPED_TRACE("results " + std::to_string(ahead) + " elements ahead");
                test({.size = 3, .count = 20, .placement = placement, .rearrange = overlap});
            }
        }
    }
}

// So do vectors that are written over each other.
TEST_P(SymmetricEigen, vectorsOverOtherVectors) {
    for (const int elements : {1, 2, 7}) {
        const auto overlap = [&](Call& call) {
            for (Operand& operand : call.operands()) {
                if (operand.parameter.kind == Parameter::result)
                    operand.stride0 = elements * operand.elementSize;
            }
        };
        // Lists have no stride from object to object.
        if (function.layout != Layout::L)
            test({.size = 3, .count = 20, .placement = placements[0], .rearrange = overlap});
    }
}

struct Case {
    const char* description;
    std::vector<double> matrix;
    qorStatus status;
    std::vector<double> values;  // empty: not written
    std::vector<double> vectors; // empty: not of interest
    double tolerance = 0;
};
const Case cases[] = {
    {"size 1 knows no singular matrix", {0}, qorStatusOk, {0}, {1}},
    {"zero of size 2", {0, 0, 0, 0}, qorStatusSingular, {}, {}},
    {"zero of size 3",
     std::vector<double>(9),
     qorStatusSingular,
     {0, 0, 0},
     {1, 0, 0, 0, 1, 0, 0, 0, 1}},
    {"size 2 with a negative trace ascends", {-1, 0, 0, -2}, qorStatusOk, {-2, -1}, {}},
    {"size 2 with a positive trace descends", {2, 0, 0, 1}, qorStatusOk, {2, 1}, {}},
    {"size 2 without trace", {1, 0, 0, -1}, qorStatusOk, {1, -1}, {}},
    {"vectors of size 2", {3, 0, 0, 1}, qorStatusOk, {3, 1}, {-1, 0, 0, -1}},
    {"size 2 reads the upper element", {2, 1, 7, 1}, qorStatusOk, {2.618034, 0.381966}, {}, 1e-6},
    {"diagonals are sorted",
     {1, 0, 0, 0, 3, 0, 0, 0, 2},
     qorStatusOk,
     {3, 2, 1},
     {0, 0, 1, 1, 0, 0, 0, 1, 0}},
    {"a vanishing rotation: inexact",
     {2, -1, 0, -1, 1, -1, 0, -1, 1},
     qorStatusOk,
     {2.90701, 1.34815, -0.25516},
     {},
     1e-5},
};

TEST_P(SymmetricEigen, documentedCases) {
    for (const Case& known : cases) {
        SCOPED_TRACE(known.description);
        const int n = static_cast<int>(std::sqrt(static_cast<double>(known.matrix.size())));
        Call call(function, sizesOf(n, 1), placements[0], 1);
        withType(function, [&]<class T>(T) {
            setMatrix<T>(call.operand("Src"), 0, {n, {known.matrix.begin(), known.matrix.end()}});
            EXPECT_EQ(call.run(libraries().front()), known.status);
            const Operand& values = call.operand("DstValues");
            EXPECT_EQ(values.isUntouched(0), known.values.empty());
            for (std::size_t j = 0; j < known.values.size(); ++j) {
                EXPECT_NEAR(double(values.get<T>(0, 0, int(j))), known.values[j], known.tolerance);
            }
            for (int k = 0; hasVectors(function) && k < int(known.vectors.size()); ++k) {
                EXPECT_EQ(call.operand("DstVectors").get<T>(0, k / n, k % n),
                          known.vectors[std::size_t(k)]);
            }
        });
    }
}

INSTANTIATE_TEST_SUITE_P(, SymmetricEigen,
                         testing::ValuesIn(functionsOf("EigenValuesSym EigenValuesVectorsSym")),
                         [](const auto& tested) { return tested.param.name; });

// Functions that answer one input differently, each as the model says.
struct Difference {
    const char* reason;
    const char* function;
    const char* otherFunction;
    std::vector<double> matrix;
};
const Difference differences[] = {
    {"single forms reflect a reduced column",
     "Sym_m_64f",
     "Sym_ma_64f",
     {1, 0.1, 0, 0.1, 3, 0.7, 0, 0.7, 2}},
    {"ma_64f_P reflects a small column",
     "Sym_ma_64f",
     "Sym_ma_64f_P",
     {1, -1e-8, 3e-9, -1e-8, 1.25, 0.5, 3e-9, 0.5, 2}},
    {"m_32f has the sign of the shift from the top change at 0",
     "VectorsSym_m_32f",
     "VectorsSym_m_32f_P",
     {1, 1, 0, 1, 1 + 0x1p-23, 1, 0, 1, 2.5}},
    {"m_32f_P sorts what is singular",
     "VectorsSym_m_32f",
     "VectorsSym_m_32f_P",
     {0, 0, 0, 0, 1, 0, 0, 0, 3}},
};

TEST(SymmetricEigenFunctions, differWhereTheyShould) {
    for (const Difference& difference : differences) {
        const auto valuesOf = [&](const std::string& name) {
            const Function function = functionOf("qormEigenValues" + name);
            Call call(function, sizesOf(3, 1), placements[0], 1);
            return withType(function, [&]<class T>(T) {
                setMatrix<T>(call.operand("Src"), 0,
                             {3, {difference.matrix.begin(), difference.matrix.end()}});
                EXPECT_EQ(faultOf<T>(call, function, libraries().front()), "");
                const Operand& values = call.operand("DstValues");
                return std::array<double, 3>{values.get<T>(0, 0, 0), values.get<T>(0, 0, 1),
                                             values.get<T>(0, 0, 2)};
            });
        };
        EXPECT_NE(valuesOf(difference.function), valuesOf(difference.otherFunction))
            << difference.reason;
    }
}

// The largest deviation of A V from V diag(values), of V^T V from the identity, and of the values
// from those that are computed without vectors; infinite where a call fails.
template <class T>
double deviation(const std::string& type, Matrix<T> a) {
    const Function function = functionOf("qormEigenValuesVectorsSym_m_" + type);
    const Function valuesOnly = functionOf("qormEigenValuesSym_m_" + type);
    Call call(function, sizesOf(a.n, 1), placements[0], 1);
    Call callValues(valuesOnly, sizesOf(a.n, 1), placements[0], 1);
    setMatrix(call.operand("Src"), 0, a);
    setMatrix(callValues.operand("Src"), 0, a);
    if (call.run(libraries().front()) != qorStatusOk) return infinity;
    if (callValues.run(libraries().front()) != qorStatusOk) return infinity;

    const auto value = [&](int j) { return double(call.operand("DstValues").get<T>(0, 0, j)); };
    const auto v = [&](int i, int j) { return double(call.operand("DstVectors").get<T>(0, i, j)); };
    double largest = 0;
    for (int i = 0; i < a.n; ++i) {
        const auto other = double(callValues.operand("DstValues").get<T>(0, 0, i));
        largest = std::max(largest, std::abs(value(i) - other));
        for (int j = 0; j < a.n; ++j) {
            double residual = -v(i, j) * value(j);
            double product = i == j ? -1 : 0;
            for (int k = 0; k < a.n; ++k) {
                residual += double(a(i, k)) * v(k, j);
                product += v(k, i) * v(k, j);
            }
            largest = std::max({largest, std::abs(residual), std::abs(product)});
        }
    }
    return largest;
}

// Thresholds are absolute, so dense matrices of order 1 come out inexact now and then, more so in
// 32f.
template <class T>
void expectAccuracy(const std::string& type, double limitPerSize, int exceptionsIn10000) {
    for (const int n : {2, 3, 4, 5, 6, 7, 8, 17}) {
        Random random(static_cast<std::uint64_t>(n));
        int exceptions = 0;
        for (int trial = 0; trial < 2000; ++trial) {
            exceptions += !(deviation<T>(type, generated<T>(dense, n, random)) <= n * limitPerSize);
        }
        EXPECT_LE(exceptions, 2000 * exceptionsIn10000 / 10000) << type << " of size " << n;
    }
}

TEST(SymmetricEigenAccuracy, ofDenseMatrices) {
    expectAccuracy<double>("64f", 1e-15, 5);
    expectAccuracy<float>("32f", 1e-5, 10);
}

} // namespace
