// The tables of a factorisation and its solver: systems a x = b beside a plain loop whose strides
// the compiler knows, Eigen's fixed sizes, and LAPACK, which gets a call per matrix. The limit
// works on systems that lie in lanes.
//
// A family is a class with what is its own; see lu.cpp.
#pragma once

#include "eigen_maps.h"
#include "factors.h"
#include "objects.h"
#include "roofline.h"

#include <cmath>
#include <lapacke.h>
#include <limits>
#include <stdexcept>

namespace bench {

constexpr Task allTasks[] = {Task::factor, Task::solve, Task::factorAndSolve, Task::solveWithOne};

inline const char* nameOf(Task task) {
    constexpr const char* names[] = {"factor ma", "solve mava", "factor and solve", "solve mva"};
    return names[static_cast<int>(task)];
}

// Matrices, of which solveWithOne has a single one, right-hand sides and room for the solutions.
template <class T>
struct Systems {
    int rows;
    int columns;
    int count;
    int matrixCount;
    Placement placement;
    Matrices<T> a{rows, columns, matrixCount, placement};
    Matrices<T> b{1, rows, count, placement};
    Matrices<T> x{1, columns, count, placement};

    // fill(a)
    template <class Fill>
    Systems(int height, int width, int systems, Placement where, Task task, const Fill& fill)
        : rows(height),
          columns(width),
          count(systems),
          matrixCount(task == Task::solveWithOne ? 1 : systems),
          placement(where) {
        fill(a);
        b.fillRandomly();
    }

    // The sum of squares of all solutions, which become zero, or no number if one of them is wrong.
    double takeSolutions() const {
        for (int k = 0; k < count; ++k) {
            if (!isSolved(k)) return std::numeric_limits<double>::quiet_NaN();
        }
        return x.takeSquares();
    }

private:
    // a^T (a x - b) is zero up to rounding: what is left over by a least squares solution is
    // orthogonal to all columns, and by one of a square matrix nothing is left over.
    bool isSolved(int k) const {
        const int matrix = std::min(k, matrixCount - 1);
        std::array<double, 16> sums = {}, sizes = {};
        for (int i = 0; i < rows; ++i) {
            double left = -double{b(k, 0, i)};
            double size = std::fabs(left);
            for (int j = 0; j < columns; ++j) {
                const double term = double{a(matrix, i, j)} * double{x(k, 0, j)};
                left += term;
                size += std::fabs(term);
            }
            for (int j = 0; j < columns; ++j) {
                sums[j] += left * double{a(matrix, i, j)};
                sizes[j] += size * std::fabs(double{a(matrix, i, j)});
            }
        }
        const double rounding = 100.0 * rows * double{std::numeric_limits<T>::epsilon()};
        return std::equal(
            sums.begin(), sums.begin() + columns, sizes.begin(),
            [=](double sum, double size) { return std::fabs(sum) <= rounding * size; });
    }
};

// A contender's way to solve the systems. The factors are its own affair.
class Method {
public:
    Method() = default;
    Method(const Method&) = delete;
    Method& operator=(const Method&) = delete;
    virtual ~Method() = default;

    virtual bool perform(Task task) = 0;
};

// The library: calls(task, threads) of the family.
template <class Family, class T>
class LibraryMethod : public Method {
public:
    explicit LibraryMethod(const Systems<T>& given) : calls{given} {}

    bool perform(Task task) override { return perform(task, 1); }
    bool perform(Task task, int threads) {
        switch (task) {
        case Task::factor:
            return calls.factor(threads);
        case Task::solve:
            return calls.solve(threads);
        case Task::factorAndSolve:
            return calls.factor(threads) && calls.solve(threads);
        case Task::solveWithOne:
            break;
        }
        return calls.solveWithOne(threads);
    }

private:
    typename Family::template Calls<T> calls;
};

// A kernel in functions of its own.
template <class Kernel>
struct Apart : Kernel {
    template <int rows, int columns, class Tile, class Extras>
    [[gnu::noinline]] static void factor(Tile& m, Extras& e) {
        Kernel::template factor<rows, columns>(m, e);
    }
    template <int rows, int columns, class Tile, class Extras, class Given, class Vector>
    [[gnu::always_inline]] static void solve(const Tile& m, const Extras& e, const Given& b,
                                             Vector& x) {
        Vector given;
        for (int i = 0; i < rows; ++i) given[i] = b(i);
        solveCopy<rows, columns>(m, e, given, x);
    }

private:
    template <int rows, int columns, class Tile, class Extras, class Vector>
    [[gnu::noinline]] static void solveCopy(const Tile& m, const Extras& e, const Vector& b,
                                            Vector& x) {
        Kernel::template solve<rows, columns>(
            m, e, [&](int i) { return b[i]; }, x);
    }
};

// Straight-line code for 16x16 takes long to compile: it is part of the loop over objects only
// where compilers make vectors of that.
template <int rows, Placement placement>
constexpr bool isApart = rows > 8 && placement != Placement::packed;

template <class Family, class T, int rows, int columns, Placement placement>
class Loop : public Method {
public:
    explicit Loop(const Systems<T>& given) : systems(given) {}

    bool perform(Task task) override {
        switch (task) {
        case Task::factor:
            factor();
            break;
        case Task::solve:
            solve();
            break;
        case Task::factorAndSolve:
            factorAndSolve();
            break;
        case Task::solveWithOne:
            solveWithOne();
            break;
        }
        return true;
    }

private:
    using OwnKernel = typename Family::template LoopKernel<T, rows, placement>;
    using Kernel = std::conditional_t<isApart<rows, placement>, Apart<OwnKernel>, OwnKernel>;
    using Extra = typename Family::template Extra<T>;
    static constexpr int extras = Kernel::template extras<rows, columns>;
    using Array = Elements<T, rows, placement, columns>;
    using GivenVectors = Elements<T, 1, placement, rows>;
    using SolutionVectors = Elements<T, 1, placement, columns>;
    using Tile = T[rows][columns];
    using Extras = Extra[rows];

    template <class Work>
    [[gnu::always_inline]] static void forUsed(const Work& work) {
        const int rowsEnd = endOf<rows>();
        const int columnsEnd = endOf<columns>();
#pragma GCC unroll 16
        for (int i = 0; i < rowsEnd; ++i) {
#pragma GCC unroll 16
            for (int j = 0; j < columnsEnd; ++j) {
                if (Kernel::uses(i, j)) work(i, j);
            }
        }
    }
    [[gnu::always_inline]] static void load(const Array& from, std::ptrdiff_t k, Tile& m) {
        forUsed([&](int i, int j) { m[i][j] = from(k, i, j); });
    }
    [[gnu::always_inline]] void loadFactors(const Array& from, std::ptrdiff_t k, Tile& m,
                                            Extras& e) const {
        load(from, k, m);
        for (int i = 0; i < extras; ++i) e[i] = keptExtras[k * extras + i];
    }
    [[gnu::always_inline]] static void solve(const Tile& m, const Extras& e, const GivenVectors& b,
                                             const SolutionVectors& x, std::ptrdiff_t k) {
        T values[rows];
        Kernel::template solve<rows, columns>(
            m, e, [&](int i) { return b(k, 0, i); }, values);
        for (int i = 0; i < columns; ++i) x(k, 0, i) = values[i];
    }

    void factor() {
        writeTo(factors.base(), [&](T* target) {
            const Array a(systems.a), d(factors, target);
            Extra* const kept = keptExtras.data();
            const std::ptrdiff_t count = systems.matrixCount;
            BENCH_INDEPENDENT
            for (std::ptrdiff_t k = 0; k < count; ++k) {
                Tile m;
                Extras e;
                load(a, k, m);
                Kernel::template factor<rows, columns>(m, e);
                forUsed([&](int i, int j) { d(k, i, j) = m[i][j]; });
                for (int i = 0; i < extras; ++i) kept[k * extras + i] = e[i];
            }
        });
    }
    void solve() {
        writeTo(systems.x.base(), [&](T* target) {
            const Array d(factors);
            const GivenVectors b(systems.b);
            const SolutionVectors x(systems.x, target);
            const std::ptrdiff_t count = systems.count;
            BENCH_INDEPENDENT
            for (std::ptrdiff_t k = 0; k < count; ++k) {
                Tile m;
                Extras e;
                loadFactors(d, k, m, e);
                solve(m, e, b, x, k);
            }
        });
    }
    void factorAndSolve() {
        writeTo(systems.x.base(), [&](T* target) {
            const Array a(systems.a);
            const GivenVectors b(systems.b);
            const SolutionVectors x(systems.x, target);
            const std::ptrdiff_t count = systems.count;
            BENCH_INDEPENDENT
            for (std::ptrdiff_t k = 0; k < count; ++k) {
                Tile m;
                load(a, k, m);
                if constexpr (isApart<rows, placement>) {
                    Extras e;
                    Kernel::template factor<rows, columns>(m, e);
                    solve(m, e, b, x, k);
                } else {
                    T values[rows];
                    for (int i = 0; i < rows; ++i) values[i] = b(k, 0, i);
                    Kernel::template factorAndSolve<rows, columns>(m, values);
                    for (int i = 0; i < columns; ++i) x(k, 0, i) = values[i];
                }
            }
        });
    }
    void solveWithOne() {
        writeTo(systems.x.base(), [&](T* target) {
            const GivenVectors b(systems.b);
            const SolutionVectors x(systems.x, target);
            const std::ptrdiff_t count = systems.count;
            Tile m;
            Extras e;
            loadFactors(Array(factors), 0, m, e);
            BENCH_INDEPENDENT
            for (std::ptrdiff_t k = 0; k < count; ++k) solve(m, e, b, x, k);
        });
    }

    const Systems<T>& systems;
    Matrices<T> factors{rows, columns, systems.matrixCount, placement};
    std::vector<Extra> keptExtras =
        std::vector<Extra>(static_cast<std::size_t>(systems.matrixCount * extras));
};

// For peers that take addresses, object by object.
template <class T, int rows, int columns, Placement placement>
class ObjectByObject : public Method {
protected:
    using Array = Objects<T, rows, placement, columns>;

    explicit ObjectByObject(const Systems<T>& given) : systems(given) {}

    // work(k, a)
    template <class Work>
    void forMatrices(const Work& work) const {
        const Array a(systems.a);
        for (std::ptrdiff_t k = 0; k < systems.matrixCount; ++k) work(k, a.read(k));
    }
    // work(k, b, x)
    template <class Work>
    void forVectors(const Work& work) const {
        const Objects<T, 1, placement, rows> b(systems.b);
        const Objects<T, 1, placement, columns> x(systems.x);
        for (std::ptrdiff_t k = 0; k < systems.count; ++k) work(k, b.read(k), x.write(k));
    }
    // work(a, b, x)
    template <class Work>
    void forSystems(const Work& work) const {
        const Array a(systems.a);
        forVectors([&](std::ptrdiff_t k, const T* b, T* x) { work(a.read(k), b, x); });
    }

    const Systems<T>& systems;
};

// Eigen's part of the work, all that it calls included: once for all placements, as it takes long
// to compile.
template <class Decomposition, class Source>
[[gnu::noinline, gnu::flatten]] void decompose(const Source& a, Decomposition& decomposition) {
    decomposition.compute(a);
}
template <class Decomposition, class Given, class Solution>
[[gnu::noinline, gnu::flatten]] void solveWith(const Decomposition& decomposition, const Given& b,
                                               Solution x) {
    x = decomposition.solve(b);
}

template <class Family, class T, int rows, int columns, Placement placement>
class EigenMethod : public ObjectByObject<T, rows, columns, placement> {
    using Base = ObjectByObject<T, rows, columns, placement>;
    using Source = ConstMap<T, rows, Base::Array::rowStep, columns>;
    using Given = Eigen::Map<const Eigen::Vector<T, rows>>;
    using Solution = Eigen::Map<Eigen::Vector<T, columns>>;
    using Decomposition = typename Family::template Decomposition<EigenMatrix<T, rows, columns>>;

public:
    explicit EigenMethod(const Systems<T>& given)
        : Base(given), decompositions(static_cast<std::size_t>(given.matrixCount)) {}

    bool perform(Task task) override {
        switch (task) {
        case Task::factor:
            Base::forMatrices(
                [&](std::ptrdiff_t k, const T* a) { decompose(Source(a), decompositions[k]); });
            break;
        case Task::solve:
            Base::forVectors([&](std::ptrdiff_t k, const T* b, T* x) {
                solveWith(decompositions[k], Given(b), Solution(x));
            });
            break;
        case Task::factorAndSolve:
            Base::forSystems([&](const T* a, const T* b, T* x) {
                decompose(Source(a), decompositions[0]);
                solveWith(decompositions[0], Given(b), Solution(x));
            });
            break;
        case Task::solveWithOne:
            Base::forVectors([&](std::ptrdiff_t, const T* b, T* x) {
                solveWith(decompositions[0], Given(b), Solution(x));
            });
            break;
        }
        return true;
    }

private:
    std::vector<Decomposition> decompositions;
};

// Rows are columns to LAPACK, which gets the transposed matrices and is asked for what that makes
// of the task.
template <class Family, class T, int rows, int columns, Placement placement>
class LapackMethod : public ObjectByObject<T, rows, columns, placement> {
    using Base = ObjectByObject<T, rows, columns, placement>;
    using Calls = typename Family::template LapackCalls<T, rows, columns>;
    static constexpr int size = rows * columns;

public:
    explicit LapackMethod(const Systems<T>& given)
        : Base(given),
          factors(static_cast<std::size_t>(given.matrixCount * size)),
          extras(static_cast<std::size_t>(given.matrixCount * columns)) {}

    bool perform(Task task) override {
        switch (task) {
        case Task::factor:
            Base::forMatrices([&](std::ptrdiff_t k, const T* a) {
                factor(a, &factors[k * size], &extras[k * columns]);
            });
            break;
        case Task::solve:
            Base::forVectors([&](std::ptrdiff_t k, const T* b, T* x) {
                solve(&factors[k * size], &extras[k * columns], b, x);
            });
            break;
        case Task::factorAndSolve:
            Base::forSystems([&](const T* a, const T* b, T* x) {
                factor(a, factors.data(), extras.data());
                solve(factors.data(), extras.data(), b, x);
            });
            break;
        case Task::solveWithOne:
            solveWithOne();
            break;
        }
        return true;
    }

private:
    using Extra = typename Calls::Extra;

    void factor(const T* a, T* m, Extra* e) {
        for (int i = 0; i < rows; ++i) {
            std::copy_n(a + i * Base::Array::rowStep, columns, m + i * columns);
        }
        calls.factor(m, e);
    }
    void solve(const T* m, const Extra* e, const T* b, T* x) {
        std::array<T, rows> values;
        std::copy_n(b, rows, values.begin());
        calls.solve(m, e, values.data(), 1);
        std::copy_n(values.begin(), columns, x);
    }
    // A call for many vectors, though not so many that it would use threads.
    void solveWithOne() {
        constexpr std::ptrdiff_t most = 128;
        const Objects<T, 1, placement, rows> b(Base::systems.b);
        const Objects<T, 1, placement, columns> x(Base::systems.x);
        std::array<T, most * rows> values;
        for (std::ptrdiff_t first = 0; first < Base::systems.count; first += most) {
            const std::ptrdiff_t count = std::min(most, Base::systems.count - first);
            for (std::ptrdiff_t k = 0; k < count; ++k) {
                const auto vector = b.read(first + k);
                std::copy_n(static_cast<const T*>(vector), rows, &values[k * rows]);
            }
            calls.solve(factors.data(), extras.data(), values.data(), static_cast<int>(count));
            for (std::ptrdiff_t k = 0; k < count; ++k) {
                auto vector = x.write(first + k);
                std::copy_n(&values[k * rows], columns, static_cast<T*>(vector));
            }
        }
    }

    std::vector<T> factors;
    std::vector<Extra> extras;
    Calls calls;
};

template <class Family, class T>
class LanesMethod : public Method {
public:
    LanesMethod(int rows, int columns, int count, Task task)
        : systems(rows, columns, count, Placement::adjacent, task, Family::template fill<T>) {}

    bool perform(Task task) override {
        runInLanes<T, Family::factorisation>(
            task, {systems.rows, systems.columns,
                   task == Task::factor ? systems.matrixCount : systems.count, systems.a.planes(),
                   factors.planes(), extras.planes(), systems.b.planes(), systems.x.planes()});
        return true;
    }
    // Limits are not among those whose results are compared.
    bool isRight(Task task) {
        perform(task);
        if (task == Task::factor) perform(Task::solve);
        return systems.takeSolutions() > 0;
    }

private:
    Systems<T> systems;
    Matrices<T> factors{systems.rows, systems.columns, systems.matrixCount, Placement::adjacent};
    Matrices<T> extras{1, systems.rows, systems.matrixCount, Placement::adjacent};
};

// Of one system, as far as the task needs it.
template <class Family, class T>
double bytesOf(Task task, int rows, int columns) {
    const double element = sizeof(T);
    const double matrix = Family::elements(rows, columns) * element;
    const double factors = matrix + Family::template extraBytes<T>(rows);
    const double vectors = (rows + columns) * element;
    switch (task) {
    case Task::factor:
        return matrix + factors;
    case Task::solve:
        return factors + vectors;
    case Task::factorAndSolve:
        return matrix + vectors;
    case Task::solveWithOne:
        break;
    }
    return vectors;
}

template <class Family>
double operationsOf(Task task, int rows, int columns) {
    double operations = 0;
    if (task == Task::factor || task == Task::factorAndSolve)
        operations += Family::operationsToFactor(rows, columns);
    if (task != Task::factor) operations += Family::operationsToSolve(rows, columns);
    return operations;
}

template <class Family, class T>
Subject subjectOf(Task task, int rows, int columns, Placement placement, Memory memory, int count) {
    const std::string shape =
        rows == columns ? "" : std::to_string(rows) + "x" + std::to_string(columns) + " ";
    return {std::string(Family::name) + " " + shape + nameOf(task),
            nameOf(placement),
            memory,
            nameOfType<T>,
            rows,
            count,
            bytesOf<Family, T>(task, rows, columns),
            operationsOf<Family>(task, rows, columns)};
}

// A solver finds factors.
inline void prepare(Method& method, Task task) {
    if (task == Task::solve || task == Task::solveWithOne) method.perform(Task::factor);
}

template <class Family, class T, int rows, int columns, Placement placement>
void row(Session& session, Task task, Memory memory) {
    // Elements with a pointer each are copied, wherever they lie.
    constexpr Placement access =
        placement == Placement::adjacent ? Placement::scattered : placement;

    // Larger ones make nothing of memory.
    if (memory == Memory::streamed && rows > 6) return;
    const int count = countFor(memory, bytesOf<Family, T>(task, rows, columns));
    const Subject subject = subjectOf<Family, T>(task, rows, columns, placement, memory, count);
    if (!session.wants(subject)) return;

    const Systems<T> systems(rows, columns, count, placement, task, Family::template fill<T>);
    std::vector<std::unique_ptr<Method>> methods;
    std::vector<Contender> contenders;
    Method* last = nullptr;
    const auto add = [&](const char* name, Role role, std::unique_ptr<Method> method) {
        prepare(*method, task);
        contenders.push_back({name, role, [&last, task, chosen = method.get()] {
                                  last = chosen;
                                  return chosen->perform(task);
                              }});
        methods.push_back(std::move(method));
    };
    add("qorm", Role::library, std::make_unique<LibraryMethod<Family, T>>(systems));
    add("loop", Role::peer, std::make_unique<Loop<Family, T, rows, columns, placement>>(systems));
    add("Eigen", Role::peer,
        std::make_unique<EigenMethod<Family, T, rows, columns, access>>(systems));
    if (memory == Memory::cached) {
        add("LAPACK", Role::peer,
            std::make_unique<LapackMethod<Family, T, rows, columns, access>>(systems));
        auto lanes = std::make_unique<LanesMethod<Family, T>>(rows, columns, count, task);
        prepare(*lanes, task);
        if (!lanes->isRight(task)) throw std::runtime_error("lanes: wrong result");
        add("lanes", Role::limit, std::move(lanes));
    }
    append(contenders, roofline<T>(subject, 1));
    session.measure(subject, contenders, [&] {
        // Factors are right if they solve.
        if (task == Task::factor && last) last->perform(Task::solve);
        return systems.takeSolutions();
    });
}

// work(rows, columns) as constants and both types.
template <class Family, class Work>
void forShapes(const Work& work) {
    forSizes<3, 4, 5, 6, 8, 16>([&]<class T, int n>() { work.template operator()<T, n, n>(); });
    if constexpr (Family::hasLeastSquares) {
        work.template operator()<float, 8, 4>();
        work.template operator()<double, 8, 4>();
    }
}

template <class Family, Placement placement>
void rows(Session& session, Task task, Memory memory) {
    forShapes<Family>([&]<class T, int rows, int columns>() {
        row<Family, T, rows, columns, placement>(session, task, memory);
    });
}

template <class Family>
void tables(Session& session) {
    for (const Memory memory : {Memory::cached, Memory::streamed}) {
        for (const Task task : allTasks) {
            rows<Family, Placement::packed>(session, task, memory);
            rows<Family, Placement::padded>(session, task, memory);
            rows<Family, Placement::adjacent>(session, task, memory);
            rows<Family, Placement::scattered>(session, task, memory);
            rows<Family, Placement::list>(session, task, memory);
        }
    }
}

// The library's work measures: what a call counts whatever the number of systems, and a system.
inline int fixedWork(Task task, int n) {
    return task == Task::solveWithOne ? n * n : 0;
}
template <class Family>
int workPerSystem(Task task, int n) {
    if (task == Task::factor) return Family::workToFactor(n);
    return task == Task::solve ? n * (n + 2) : 2 * n;
}

// Around the thresholds from which the calls of a task spread over threads.
template <class Family>
void tablesOnThreads(Session& session) {
    forSizes<3, 6>([&]<class T, int n>() {
        const auto measure = [&](Task task, Placement placement, int count) {
            const Subject subject =
                subjectOf<Family, T>(task, n, n, placement, Memory::cached, count);
            if (!session.wants(subject)) return;
            const Systems<T> systems(n, n, count, placement, task, Family::template fill<T>);
            LibraryMethod<Family, T> method(systems);
            prepare(method, task);
            std::vector<Contender> contenders =
                twoThreadsAndOne([&](int threads) { return method.perform(task, threads); });
            append(contenders, roofline<T>(subject, 2));
            session.measure(subject, contenders, [&] {
                if (task == Task::factor) method.perform(Task::solve);
                return systems.takeSolutions();
            });
        };
        for (const Task task : {Task::factor, Task::solve, Task::solveWithOne}) {
            for (const Placement placement :
                 {Placement::packed, Placement::adjacent, Placement::list}) {
                const int threshold = Family::template threshold<T>(task, placement);
                if (threshold == 0) continue; // never on threads
                sweepCount(threshold - fixedWork(task, n), workPerSystem<Family>(task, n),
                           [&](int count) { measure(task, placement, count); });
            }
        }
    });
}

// "LU" and "LU on threads".
template <class Family>
struct Tables {
    Registration cachedAndStreamed{{Family::name,
                                    {"qorm", "loop", "Eigen", "LAPACK", "lanes", "memcpy", "peak"},
                                    tables<Family>}};
    Registration onThreads{{std::string(Family::name) + " on threads",
                            {"2 threads", "1 thread", "memcpy", "peak"},
                            tablesOnThreads<Family>}};
};

} // namespace bench
