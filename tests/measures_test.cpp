// Determinant and inverse: bit by bit against a scalar model, wherever the operands lie and in
// whatever lane an object is computed, and the results that no model can vouch for.
#include "harness/placements.h"
#include "harness/trial.h"
#include "measures_oracle.h"

namespace {

using namespace harness;
using harness::nan;
using measures_oracle::isClosed;

template <class T>
Matrix<T> generated(Input* input, int n, Random& random) {
    const Numbers matrix = input(n, Bounds::of<T>(), random);
    return {n, {matrix.elements.begin(), matrix.elements.end()}};
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

const std::vector<Placement> placements = usualPlacementsAnd({
    {.name = "only the source's elements apart", .elementGap = 2, .gapsOnlyIn = 0},
    {.name = "only the destination's elements apart", .elementGap = 2, .gapsOnlyIn = 1},
});

class Measures : public Trials<Input, dominant> {
    void setObject(const Call& call, int k, Input* input, Random& random) const override {
        withType(function, [&]<class T>(T) {
            const Operand& source = call.operand("Src");
            setMatrix(source, k, generated<T>(input, source.rows, random));
        });
    }

    bool fails(const Call& call, int k) const override {
        return inverts(function) && withType(function, [&]<class T>(T) {
                   const auto matrix = expectedMatrix<T>(call.operand("Src"), k);
                   return !measures_oracle::inverse(matrix, function.array);
               });
    }

    // All calls on several threads are large enough to spread.
    std::string faultOf(Call& call, const Library& library) const override {
        const Operand& source = call.operand("Src");
        const bool stays = !function.array || (inverts(function) && source.rows == 1);
        const int threads = stays ? 1 : qorGetThreadCount();
        const auto statuses = statusesOfRuns(source.objects, threads, [&](int k) {
            return withType(function, [&]<class T>(T) {
                return expectObject<T>(call, function, k) ? qorStatusOk : qorStatusSingular;
            });
        });
        const qorStatus got = call.run(library);
        if (!isAnswer(got, statuses)) return "status " + std::to_string(got);
        const bool needsScratch =
            threads == 1 && !isClosed(source.rows) && !(inverts(function) && source.rows == 1);
        if (!needsScratch && !call.scratch()->isUntouched(0)) return "the scratch was touched";
        return call.difference();
    }
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
                test({.size = n,
                      .count = std::min(counts[random() % std::size(counts)], most),
                      .placement = placements[random.below(placements.size())],
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
            test({.size = n, .count = 33, .placement = packed, .special = input});
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
                test({.size = n,
                      .count = 33,
                      .placement = placement,
                      .special = input,
                      .inPlaceOf = "Src"});
            }
        }
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
                    test({.size = n, .count = 40, .placement = placement, .rearrange = overlap});
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
            test({.size = n, .count = 40, .placement = packed, .rearrange = overlap});
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

std::int64_t exactDeterminant(const Numbers& matrix) {
    if (matrix.size.rows == 1) return std::int64_t(matrix(0, 0));
    std::int64_t sum = 0;
    for (int i = 0; i < matrix.size.rows; ++i) {
        const Numbers rest = made(matrix.size.rows - 1, [&](int row, int column) {
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
                const Numbers matrix = integers(n, 3, random);
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
