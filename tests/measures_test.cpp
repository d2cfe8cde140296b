// Determinant and inverse: bit by bit against a scalar model, wherever the operands lie and in
// whatever lane an object is computed, and the results that no model can vouch for.
#include "harness/placements.h"
#include "measures_oracle.h"

#include "qorcore.h"
#include "qorm/types.h"

#include <functional>
#include <gtest/gtest.h>
#include <span>

namespace {

using namespace harness;
using measures_oracle::isClosed;

constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

double uniform(Random& random) {
    return static_cast<double>(static_cast<std::int64_t>(random())) * 0x1p-63;
}
int integer(Random& random, int low, int high) {
    return low + static_cast<int>(random() % static_cast<std::uint64_t>(high - low + 1));
}
template <std::size_t size>
double oneOf(const double (&values)[size], Random& random) {
    return values[random() % size];
}
double zero(Random& random) {
    return oneOf({0.0, -0.0}, random);
}
double unit(Random& random) {
    return oneOf({1.0, -1.0}, random);
}

// Makes a matrix of size n; the bounds are those of the type.
struct Bounds {
    double eps, smallest, largest;

    double nearEps(Random& r) const {
        return oneOf({eps - eps * eps / 2, eps, eps + eps * eps}, r);
    }
};
using M = Matrix<double>;
using Input = M(int n, const Bounds&, Random&);

template <class Value>
M made(int n, const Value& value) {
    M matrix{n, {}};
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j) matrix.elements.push_back(value(i, j));
    }
    return matrix;
}
M scaled(double scale, int n, Random& r) {
    return made(n, [&](int, int) { return scale * uniform(r); });
}
M integers(int n, int largest, Random& r) {
    return made(n, [&](int, int) { return integer(r, -largest, largest); });
}
M withRowsShuffled(M matrix, Random& r) {
    for (int i = matrix.n; i > 1; --i) {
        const int other = integer(r, 0, i - 1);
        for (int j = 0; j < matrix.n; ++j) std::swap(matrix(i - 1, j), matrix(other, j));
    }
    return matrix;
}
template <std::size_t size>
M sprinkled(const double (&values)[size], M matrix, Random& r) {
    for (int k = integer(r, 1, 3); k > 0; --k) {
        matrix(integer(r, 0, matrix.n - 1), integer(r, 0, matrix.n - 1)) = oneOf(values, r);
    }
    return matrix;
}

M dense(int n, const Bounds&, Random& r) {
    return scaled(1, n, r);
}
M dominant(int n, const Bounds&, Random& r) {
    return made(n, [&](int i, int j) { return uniform(r) + (i == j ? n * unit(r) : 0); });
}
M rowTwice(int n, const Bounds&, Random& r) {
    M matrix = integers(n, 3, r);
    const int i = integer(r, 0, n - 1);
    for (int j = 0; j < n; ++j) matrix(i, j) = n > 1 ? matrix((i + 1) % n, j) : 0;
    return matrix;
}

// Ties of pivots that leave rounding errors.
M roundingTies(int n, const Bounds&, Random& r) {
    return made(n, [&](int, int) { return 0.3 * integer(r, -2, 2); });
}

// The diagonal holds the pivots, but for the order of rows. One of them is at the threshold; so is
// the determinant.
M triangular(int n, const Bounds& of, Random& r) {
    M matrix = made(n, [&](int i, int j) {
        return i > j ? zero(r) : i == j ? unit(r) : integer(r, -2, 2);
    });
    const int k = integer(r, 0, 2) * (n - 1) / 2;
    matrix(k, k) = of.nearEps(r) * unit(r);
    return withRowsShuffled(matrix, r);
}

constexpr Input* inputs[] = {
    dense,
    dominant,
    rowTwice,
    triangular,
    [](int n, const Bounds&, Random& r) { return integers(n, 1, r); },
    [](int n, const Bounds&, Random& r) { return integers(n, 3, r); },
    roundingTies,
    [](int n, const Bounds&, Random& r) { return made(n, [&](int, int) { return unit(r); }); },
    [](int n, const Bounds&, Random& r) {
        return made(n, [&](int, int) { return oneOf({0.0, -0.0, 1.0, -1.0}, r); });
    },
    [](int n, const Bounds&, Random& r) { // permutations
        return withRowsShuffled(
            made(n, [&](int i, int j) { return i == j ? uniform(r) : zero(r); }), r);
    },
    [](int n, const Bounds&, Random& r) { // blocks on the diagonal
        return made(n, [&](int i, int j) { return i / 2 == j / 2 ? uniform(r) : zero(r); });
    },
    [](int n, const Bounds&, Random& r) { // zeros of both signs
        return made(n, [&](int, int) { return integer(r, 0, 4) > 0 ? zero(r) : unit(r); });
    },
    [](int n, const Bounds& of, Random& r) { // a column of zeros
        const int zeros = integer(r, 0, n - 1);
        const double scale = oneOf({1, std::pow(of.largest, 0.7)}, r);
        return made(n, [&](int, int j) { return j == zeros ? zero(r) : scale * uniform(r); });
    },
    [](int n, const Bounds& of, Random& r) { // minors with pivots at the threshold
        return withRowsShuffled(
            made(n, [&](int i,
                        int j) { return i == j ? unit(r) : of.nearEps(r) * integer(r, -1, 1); }),
            r);
    },
    [](int n, const Bounds& of, Random& r) { // determinants around the threshold
        return scaled(2 * std::pow(of.eps, 1.0 / n), n, r);
    },
    [](int n, const Bounds& of, Random& r) { return scaled(of.eps * 4, n, r); },
    [](int n, const Bounds&, Random& r) {
        return made(n, [&](int, int) { return uniform(r) * std::pow(10, integer(r, -8, 8)); });
    },
    [](int n, const Bounds& of, Random& r) { return scaled(of.smallest, n, r); },
    [](int n, const Bounds& of, Random& r) { return scaled(std::sqrt(of.smallest), n, r); },
    [](int n, const Bounds& of, Random& r) { return scaled(of.largest, n, r); },
    [](int n, const Bounds& of, Random& r) { return scaled(std::sqrt(of.largest), n, r); },
    [](int n, const Bounds& of, Random& r) { return sprinkled({nan}, dense(n, of, r), r); },
    [](int n, const Bounds& of, Random& r) {
        return sprinkled({infinity, -infinity}, dense(n, of, r), r);
    },
    [](int n, const Bounds&, Random& r) {
        return sprinkled({nan, infinity, 0, -infinity}, integers(n, 1, r), r);
    },
    [](int n, const Bounds& of, Random& r) {
        return sprinkled({nan, infinity}, triangular(n, of, r), r);
    },
};

template <class T>
Matrix<T> generated(Input* input, int n, Random& random) {
    using Limits = std::numeric_limits<T>;
    const M matrix = input(n, {Limits::epsilon(), Limits::min(), Limits::max()}, random);
    return {n, {matrix.elements.begin(), matrix.elements.end()}};
}

Sizes sizesOf(int n, int count) {
    return {{"widthHeight", n}, {"count", count}};
}

bool inverts(const Function& function) {
    return function.operation == "Invert";
}

// Sets what object k has to hold behind the call. False if it is singular.
template <class T>
bool expectObject(const Call& call, const Function& function, int k) {
    const Matrix<T> source = expectedMatrix<T>(call.operand("Src"), k);
    const Operand& result = call.operand("Dst");
    if (!inverts(function)) {
        result.expect<T>(k, 0, 0, measures_oracle::determinant(source, function.array));
        return true;
    }
    const auto inverse = measures_oracle::inverse(source, function.array);
    if (!inverse) return false;
    for (int i = 0; i < source.n; ++i) {
        for (int j = 0; j < source.n; ++j) result.expect<T>(k, i, j, (*inverse)(i, j));
    }
    return true;
}

// How the library differs from the model, which goes through the objects in their order, in a run
// for each thread, and ends a run at the first object that fails. All calls on several threads are
// large enough to spread.
template <class T>
std::string faultOf(Call& call, const Function& function, const Library& library) {
    const Operand& source = call.operand("Src");
    const bool stays = !function.array || (inverts(function) && source.rows == 1);
    const int threads = stays ? 1 : qorGetThreadCount();
    qorStatus status = qorStatusOk;
    for (int thread = 0, k = 0; thread < threads; ++thread) {
        const int end = k + source.objects / threads + (thread < source.objects % threads ? 1 : 0);
        while (k < end && expectObject<T>(call, function, k)) ++k;
        if (k < end) status = qorStatusSingular;
        k = end;
    }
    const std::int32_t got = call.run(library);
    if (got != status) return "status " + std::to_string(got);
    const bool needsScratch =
        threads == 1 && !isClosed(source.rows) && !(inverts(function) && source.rows == 1);
    if (!needsScratch && !call.scratch()->isUntouched(0)) return "the scratch was touched";
    return call.difference();
}

const std::vector<Placement> placements = usualPlacementsAnd({
    {.name = "only the source's elements apart", .elementGap = 2, .gapsOnlyIn = 0},
    {.name = "only the destination's elements apart", .elementGap = 2, .gapsOnlyIn = 1},
});

// One call in every variant of the library.
struct Trial {
    int n;
    int count;
    const Placement& placement;
    Input* others = dominant;
    Input* special = dominant;
    int position = -1; // of the special object; by default one by chance, or all of them
    std::string_view inPlaceOf = {};
    std::function<void(Call&)> rearrange = [](Call&) {};
};

class Measures : public testing::TestWithParam<Function> {
protected:
    const Function& function = GetParam();

    void SetUp() override { qorSetThreadCount(1); }

    void test(const Trial& trial, std::size_t firstLibrary = 0) {
        ++seed;
        for (const Library& library : std::span(libraries()).subspan(firstLibrary)) {
            Call call(function, sizesOf(trial.n, trial.count), trial.placement, seed,
                      trial.inPlaceOf);
            trial.rearrange(call);
            withType(function, [&]<class T>(T) {
                fill<T>(call.operand("Src"), trial);
                ASSERT_EQ(faultOf<T>(call, function, library), "") << call.describe();
            });
        }
    }

    template <class T>
    void fill(const Operand& source, const Trial& trial) {
        Random random(seed);
        const bool allSpecial = trial.position < 0 && integer(random, 0, 1) == 1;
        const int position = trial.position < 0 ? integer(random, 0, source.objects - 1)
                                                : std::min(trial.position, source.objects - 1);
        for (int k = 0; k < source.objects; ++k) {
            const bool isSpecial = allSpecial || k == position;
            Matrix<T> matrix =
                generated<T>(isSpecial ? trial.special : trial.others, trial.n, random);
            // A singular object hides those behind it, so one is enough.
            if (isSpecial && k != position && !isInvertible(matrix)) {
                matrix = generated<T>(trial.others, trial.n, random);
            }
            setMatrix(source, k, matrix);
        }
    }

    template <class T>
    bool isInvertible(const Matrix<T>& matrix) {
        return !inverts(function) || measures_oracle::inverse(matrix, function.array);
    }

    static inline std::uint64_t seed = 0;
};

// The inverse of a large matrix is slow, so there are few of them.
TEST_P(Measures, ofAllInputsInAllPlacements) {
    constexpr int counts[] = {1, 2, 7, 8, 9, 15, 16, 17, 33, 100};
    Random random(0);
    for (const int n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 12, 16, 17, 20}) {
        const int most = inverts(function) ? std::max(1, 1'000'000 / (n * n * n * n * n)) : 100;
        const int repetitions = n > 9 ? 1 : function.array ? 3 : 20;
        for (Input* input : inputs) {
            for (int repetition = 0; repetition < repetitions; ++repetition) {
                test({.n = n,
                      .count = std::min(counts[random() % std::size(counts)], most),
                      .placement = placements[random() % placements.size()],
                      .special = input});
            }
        }
    }
}

// Many large matrices: every lane has pivots of its own.
TEST_P(Measures, inversesOfLargeMatrices) {
    if (!inverts(function) || !function.array) return;
    for (const int n : {9, 12, 16}) {
        for (Input* input : {dense, roundingTies}) {
            test({.n = n, .count = 33, .placement = packed, .special = input});
        }
    }
}

// Calls large enough for every function's fan-out. The threads' own scratch, above all.
TEST_P(Measures, onThreads) {
    if (!function.array) return;
    const struct {
        int threads, n, measure;
        const Placement& placement;
    } shapes[] = {{2, 1, 40001, packed},    {3, 2, 40001, scattered},     {7, 2, 40001, packed},
                  {2, 3, 40001, packed},    {7, 3, 20001, elementsApart}, {3, 6, 40001, packed},
                  {7, 7, 40001, scattered}, {3, 17, 20001, elementsApart}};
    for (const auto& [threads, n, measure, placement] : shapes) {
        qorSetThreadCount(threads);
        const int count = measure / (inverts(function) ? 2 * n : n) + 1;
        Input* const special = n % 2 == 0 ? rowTwice : dense;
        test({n, count, placement, dense, special, count / 2 + 99}, libraries().size() - 1);
    }
}

// Wherever in a block of lanes or in its tail an object is singular: those before it are complete,
// it and those behind it are untouched.
TEST_P(Measures, endsAtTheSingularObject) {
    for (int position = 0; position < (function.array ? 35 : 1); ++position) {
        for (const int n : {1, 2, 3, 4, 5, 6, 7}) {
            test({n, 35, placements[static_cast<std::size_t>(position) % placements.size()],
                  dominant, rowTwice, position});
        }
    }
}

TEST_P(Measures, inverseInPlace) {
    if (!inverts(function)) return;
    for (const Placement& placement : placements) {
        if (placement.gapsOnlyIn >= 0 || placement.sharing != Placement::apart) continue;
        for (const int n : {1, 3, 4, 5, 6}) {
            for (Input* input : {dense, rowTwice}) {
                test({.n = n,
                      .count = 33,
                      .placement = placement,
                      .special = input,
                      .inPlaceOf = "Src"});
            }
        }
    }
}

void moveBack(Operand& operand, int elements) {
    const int bytes = elements * operand.elementSize;
    if (operand.table) {
        operand.shift -= bytes;
    } else {
        operand.base -= bytes;
    }
}

// Where every object is read before its result is written, results that are written over sources
// still to be read show the order of the objects.
TEST_P(Measures, resultsOverOtherSources) {
    constexpr int room = 64;
    constexpr struct {
        Placement::Order order;
        int objectGap, gapsOnlyIn;
    } arrangements[] = {
        {Placement::byRows, 5, -1}, {Placement::byRows, 5, 0}, {Placement::byPosition, 0, -1}};
    for (const auto& [order, objectGap, gapsOnlyIn] : arrangements) {
        const Placement placement = {.name = "overlapping",
                                     .order = order,
                                     .objectGap = objectGap,
                                     .gapsOnlyIn = gapsOnlyIn,
                                     .scattered = true,
                                     .shift = room,
                                     .misalignment = room * function.elementSize};
        for (const int ahead : {-41, -9, -4, -1, 0, 1, 2, 9, 10, 20, 24, 60}) {
            const auto overlap = [&](Call& call) {
                Operand& source = call.operands().front();
                Operand& result = call.operands().back();
                result.memory = source.memory;
                result.base = source.memory->begin() + placement.misalignment;
                if (inverts(function)) result.table = source.table;
                moveBack(ahead > 0 ? source : result, std::abs(ahead));
            };
            SCOPED_TRACE("results " + std::to_string(ahead) + " elements ahead");
            for (const int n : {1, 3, 4, 5, 6}) {
                if (n > 1 || inverts(function))
                    test({.n = n, .count = 40, .placement = placement, .rearrange = overlap});
            }
        }
    }
}

// So do inverses that are written over each other.
TEST_P(Measures, inversesOverOtherInverses) {
    if (!inverts(function) || function.layout == Layout::L) return; // lists have no such stride
    for (const int n : {2, 3, 6, 7}) {
        for (const int elements : {1, 2, n * n - 1}) {
            const auto overlap = [&](Call& call) {
                call.operands().back().stride0 = elements * function.elementSize;
            };
            test({.n = n, .count = 40, .placement = packed, .rearrange = overlap});
        }
    }
}

// By the threshold: a matrix, and what a function of one matrix and one of arrays make of it.
// Empty: the matrix is singular.
struct Results {
    std::vector<double> ofMatrix, ofArray;
};
struct Case {
    const char* description;
    std::vector<double> (*matrix)(double eps);
    Results (*determinant)(double eps);
    Results (*inverse)(double eps);
};

Results both(const std::vector<double>& result) {
    return {result, result};
}
const Results singular = {};
std::vector<double> diagonal(const std::vector<double>& elements) {
    const int n = static_cast<int>(elements.size());
    return made(n, [&](int i, int j) { return i == j ? elements.begin()[i] : 0; }).elements;
}
// The minors of the first rows are 1 or -1, the last row gives zeros: those of the last expansion.
std::vector<double> zeroExpansion(int n) {
    const int last = n - 1;
    const auto element = [&](int i, int j) {
        if (i == last) return j == last ? -0.0 : 0.0;
        return i == j || j == last ? 1.0 : 0.0;
    };
    return made(n, element).elements;
}
double above(double eps) {
    return eps + eps * eps;
}
double below(double eps) {
    return eps - eps * eps / 2;
}

const Case cases[] = {
    {"size 1 at the threshold", [](double e) { return diagonal({-e}); },
     [](double) { return both({0.0}); }, [](double) { return singular; }},
    {"size 1 above the threshold", [](double e) { return diagonal({above(e)}); },
     [](double e) { return both({above(e)}); }, [](double e) { return both({1 / above(e)}); }},
    {"size 1 that is no number", [](double) { return diagonal({nan}); },
     [](double) { return both({nan}); },
     [](double) -> Results {
         return {{}, {nan}};
     }},
    {"the first pivot at the threshold passes, as a minor it counts as zero",
     [](double e) {
         return diagonal({e, 1});
     },
     [](double e) { return both({e}); },
     [](double e) {
         return both({1 / e, -0.0, -0.0, 0.0});
     }},
    {"the first pivot below the threshold",
     [](double e) {
         return diagonal({below(e), -1});
     },
     [](double) -> Results {
         return {{0.0}, {-0.0}};
     },
     [](double) { return singular; }},
    {"the first pivot below the threshold, the last infinite",
     [](double e) {
         return diagonal({below(e), infinity});
     },
     [](double) -> Results {
         return {{0.0}, {nan}};
     },
     [](double) { return singular; }},
    {"the last pivot at the threshold",
     [](double e) {
         return diagonal({1, -e});
     },
     [](double) { return both({0.0}); }, [](double) { return singular; }},
    {"the last pivot above the threshold",
     [](double e) {
         return diagonal({1, above(e)});
     },
     [](double e) { return both({above(e)}); },
     [](double e) {
         return both({1, -0.0, -0.0, 1 / above(e)});
     }},
    {"the first pivot is no number and hides a better one",
     [](double) -> std::vector<double> {
         return {nan, 1, 2, 1};
     },
     [](double) { return both({0.0}); }, [](double) { return singular; }},
    {"the last pivot is no number",
     [](double) -> std::vector<double> {
         return {1, nan, 0, 1};
     },
     [](double) { return both({nan}); },
     [](double) {
         return both({nan, nan, nan, nan});
     }},
    {"an exchange of rows",
     [](double) -> std::vector<double> {
         return {0, 1, 1, 0};
     },
     [](double) { return both({-1}); },
     [](double) {
         return both({-0.0, 1, 1, -0.0});
     }},
    {"a minor below the threshold",
     [](double e) -> std::vector<double> {
         return {1, below(e), 0, 1};
     },
     [](double) { return both({1}); },
     [](double) {
         return both({1, -0.0, -0.0, 1});
     }},
    {"size 3 at the threshold",
     [](double e) {
         return diagonal({e, -1, -1});
     },
     [](double e) { return both({e}); },
     [](double e) {
         return both({1 / e, 0, 0, 0, -1, 0, 0, 0, -1});
     }},
    {"size 3 below the threshold",
     [](double e) {
         return diagonal({1, below(e), 1});
     },
     [](double e) { return both({below(e)}); }, [](double) { return singular; }},
    {"size 3 that is no number",
     [](double) {
         return diagonal({1, nan, 1});
     },
     [](double) { return both({nan}); },
     [](double) -> Results {
         return {{}, std::vector<double>(9, nan)};
     }},
    {"size 3 scaled: the test is absolute",
     [](double) {
         return diagonal({0x1p-30, 0x1p-30, 0x1p-30});
     },
     [](double) { return both({0x1p-90}); }, [](double) { return singular; }},
    {"size 3: zeros are added and subtracted", [](double) { return zeroExpansion(3); },
     [](double) { return both({-0.0}); }, [](double) { return singular; }},
    {"size 4: one is subtracted from zero first", [](double) { return zeroExpansion(4); },
     [](double) { return both({0.0}); }, [](double) { return singular; }},
    {"size 5: zeros are added and subtracted", [](double) { return zeroExpansion(5); },
     [](double) { return both({-0.0}); }, [](double) { return singular; }},
    {"size 6: one is subtracted from zero first", [](double) { return zeroExpansion(6); },
     [](double) { return both({0.0}); }, [](double) { return singular; }},
    {"size 7 with a row of zeros",
     [](double) {
         return diagonal({1, 1, 1, 0, 1, 1, -1});
     },
     [](double) -> Results {
         return {{0.0}, {-0.0}};
     },
     [](double) { return singular; }},
};

bool isSame(double a, double b) {
    return std::isnan(b) ? std::isnan(a) : a == b && (b != 0 || std::signbit(a) == std::signbit(b));
}

TEST_P(Measures, documentedCases) {
    withType(function, [&]<class T>(T) {
        constexpr double eps = std::numeric_limits<T>::epsilon();
        for (const Case& known : cases) {
            SCOPED_TRACE(known.description);
            const std::vector<double> matrix = known.matrix(eps);
            const int n = static_cast<int>(std::sqrt(static_cast<double>(matrix.size())));
            Call call(function, sizesOf(n, 1), packed, 1);
            setMatrix<T>(call.operand("Src"), 0, {n, {matrix.begin(), matrix.end()}});
            const Results results = inverts(function) ? known.inverse(eps) : known.determinant(eps);
            const std::vector<double>& wanted = function.array ? results.ofArray : results.ofMatrix;
            EXPECT_EQ(call.run(libraries().front()),
                      wanted.empty() ? qorStatusSingular : qorStatusOk);
            const Operand& result = call.operand("Dst");
            EXPECT_EQ(result.isUntouched(0), wanted.empty());
            std::size_t next = 0;
            result.forEachElement([&](int, int i, int j) {
                if (wanted.empty()) return;
                const double got{result.get<T>(0, i, j)};
                const auto want = double(T(wanted[next++]));
                EXPECT_PRED2(isSame, got, want) << i << ' ' << j;
            });
        }
    });
}

INSTANTIATE_TEST_SUITE_P(, Measures, testing::ValuesIn(functionsOf("Det Invert")),
                         [](const auto& tested) { return tested.param.name; });

std::int64_t exactDeterminant(const M& matrix) {
    if (matrix.n == 1) return std::int64_t(matrix(0, 0));
    std::int64_t sum = 0;
    for (int i = 0; i < matrix.n; ++i) {
        const M rest = made(matrix.n - 1, [&](int row, int column) {
            return matrix(row < i ? row : row + 1, column + 1);
        });
        sum += (i % 2 == 0 ? 1 : -1) * std::int64_t(matrix(i, 0)) * exactDeterminant(rest);
    }
    return sum;
}

// Integers this small make the formulas of sizes 3 to 6 exact.
TEST(DeterminantAccuracy, ofIntegers) {
    for (const char* name : {"qormDet_m_32f", "qormDet_m_64f"}) {
        const Function function = functionOf(name);
        for (int n = 1; n <= 8; ++n) {
            Random random(static_cast<std::uint64_t>(n));
            for (int trial = 0; trial < 50; ++trial) {
                const M matrix = integers(n, 3, random);
                Call call(function, sizesOf(n, 1), packed, 1);
                withType(function, [&]<class T>(T) {
                    setMatrix<T>(call.operand("Src"), 0,
                                 {n, {matrix.elements.begin(), matrix.elements.end()}});
                    EXPECT_EQ(call.run(libraries().front()), qorStatusOk);
                    const double limit = isClosed(n) ? 0 : 1e6 * measures_oracle::eps<T>;
                    EXPECT_NEAR(double{call.operand("Dst").get<T>(0, 0, 0)},
                                double(exactDeterminant(matrix)), limit);
                });
            }
        }
    }
}

TEST(InverseAccuracy, ofDominantMatrices) {
    for (const char* name : {"qormInvert_m_32f", "qormInvert_m_64f"}) {
        const Function function = functionOf(name);
        for (const int n : {1, 2, 3, 4, 5, 6, 7, 8, 17}) {
            Random random(static_cast<std::uint64_t>(n));
            Call call(function, sizesOf(n, 1), packed, 1);
            withType(function, [&]<class T>(T) {
                const auto matrix = generated<T>(dominant, n, random);
                setMatrix(call.operand("Src"), 0, matrix);
                EXPECT_EQ(call.run(libraries().front()), qorStatusOk);
                for (int i = 0; i < n; ++i) {
                    for (int j = 0; j < n; ++j) {
                        double product = 0;
                        for (int k = 0; k < n; ++k) {
                            product += double{matrix(i, k)} * call.operand("Dst").get<T>(0, k, j);
                        }
                        EXPECT_NEAR(product, i == j ? 1 : 0, 20.0 * n * measures_oracle::eps<T>);
                    }
                }
            });
        }
    }
}

} // namespace
