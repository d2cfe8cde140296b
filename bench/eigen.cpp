// Symmetric eigenproblems beside Eigen's iterative and closed solvers and LAPACK, which get a call
// per matrix. In the place of a limit stands the library on objects that already lie in lanes.
#include "operands.h"

#include <Eigen/Eigenvalues>
#include <array>
#include <lapacke.h>

namespace {

using namespace bench;

template <class T, int n>
std::array<T, n * n> solvableMatrix() {
    const auto solveSingle = ofType<T>(qormEigenValuesSym_m_32f, qormEigenValuesSym_m_64f);
    for (;;) {
        std::array<T, n * n> matrix;
        std::array<T, n * n> scratch;
        std::array<T, n> ignored;
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j <= i; ++j) matrix[i * n + j] = matrix[j * n + i] = randomValue<T>();
        }
        if (solveSingle(matrix.data(), n * sizeof(T), sizeof(T), scratch.data(), ignored.data(),
                        n) == qorStatusOk) {
            return matrix;
        }
    }
}

template <class T, int n, bool withVectors>
struct Problems {
    int count;
    Placement placement;
    Matrices<T> source{n, n, count, placement};
    Matrices<T> vectors{n, n, count, placement};
    std::vector<T> values = std::vector<T>(static_cast<std::size_t>(n * count));
    std::array<T, n * n> scratch;

    Problems(int objects, Placement where) : count(objects), placement(where) {
        for (int k = 0; k < count; ++k) {
            // An array call would end at a matrix that the library finds singular.
            const std::array<T, n* n> matrix = solvableMatrix<T, n>();
            for (int p = 0; p < n * n; ++p) source(k, p / n, p % n) = matrix[p];
        }
    }

    bool solve(int threads) {
        if constexpr (withVectors)
            return callLibrary(QORM_LAYOUTS(T, qormEigenValuesVectorsSym_ma), placement, threads,
                               source, scratch.data(), vectors, values.data(), n, count);
        else
            return callLibrary(QORM_LAYOUTS(T, qormEigenValuesSym_ma), placement, threads, source,
                               scratch.data(), values.data(), n, count);
    }

    // solveOne(solver, matrix, options)
    template <class Solve>
    bool solveByEigen(const Solve& solveOne) {
        using Matrix = Eigen::Matrix<T, n, n>;
        Eigen::SelfAdjointEigenSolver<Matrix> solver;
        for (int k = 0; k < count; ++k) {
            solveOne(solver, Eigen::Map<const Matrix>(&source(k, 0, 0)),
                     withVectors ? Eigen::ComputeEigenvectors : Eigen::EigenvaluesOnly);
            if (solver.info() != Eigen::Success) return false;
            Eigen::Map<Eigen::Vector<T, n>>{&values[k * n]} = solver.eigenvalues();
            if constexpr (withVectors) {
                Eigen::Map<Matrix>{&vectors(k, 0, 0)} = solver.eigenvectors();
            }
        }
        return true;
    }

    bool solveByLapack() {
        const auto solveOne = ofType<T>(LAPACKE_ssyev_work, LAPACKE_dsyev_work);
        std::array<T, 64 * n> work;
        for (int k = 0; k < count; ++k) {
            // The matrix is overwritten, with vectors by them.
            T* const matrix = withVectors ? &vectors(k, 0, 0) : scratch.data();
            std::copy_n(&source(k, 0, 0), n * n, matrix);
            if (solveOne(LAPACK_COL_MAJOR, withVectors ? 'V' : 'N', 'L', n, matrix, n,
                         &values[k * n], work.data(), static_cast<lapack_int>(work.size())) != 0) {
                return false;
            }
        }
        return true;
    }

    // Whatever order the values have.
    double takeSquaresOfValues() {
        double sum = 0;
        for (T& x : values) sum += double{x} * double{std::exchange(x, T(0))};
        return sum;
    }
};

// contendersOf(problems)
template <class T, int n, bool withVectors, class ContendersOf>
void row(Session& session, int count, const ContendersOf& contendersOf) {
    const Subject subject = {withVectors ? "eigenvectors" : "eigenvalues",
                             nameOf(Placement::packed),
                             Memory::cached,
                             nameOfType<T>,
                             n,
                             count,
                             0,
                             0};
    if (!session.wants(subject)) return;
    Problems<T, n, withVectors> problems(count, Placement::packed);
    session.measure(subject, contendersOf(problems),
                    [&] { return problems.takeSquaresOfValues(); });
}

template <bool withVectors>
void rows(Session& session) {
    forSizes<3, 4, 5, 6, 8>([&]<class T, int n>() {
        const int count = countFor(Memory::cached, n * n * sizeof(T));
        Problems<T, n, withVectors> inLanes(count, Placement::adjacent);
        row<T, n, withVectors>(session, count, [&](auto& problems) {
            const auto iterative = [](auto& solver, const auto& matrix, int options) {
                solver.compute(matrix, options);
            };
            std::vector<Contender> contenders = {
                {"qorm", Role::library, [&] { return problems.solve(1); }},
                {"Eigen", Role::peer, [&, iterative] { return problems.solveByEigen(iterative); }},
                {"LAPACK", Role::peer, [&] { return problems.solveByLapack(); }},
                {"qorm P adjacent", Role::limit, [&] { return inLanes.solve(1); }}};
            if constexpr (n == 3) {
                const auto direct = [](auto& solver, const auto& matrix, int options) {
                    solver.computeDirect(matrix, options);
                };
                contenders.push_back({"Eigen direct", Role::peer,
                                      [&, direct] { return problems.solveByEigen(direct); }});
            }
            return contenders;
        });
    });
}

const Registration eigen({"eigen",
                          {"qorm", "Eigen", "Eigen direct", "LAPACK", "qorm P adjacent"},
                          [](Session& session) {
                              rows<false>(session);
                              rows<true>(session);
                          }});

template <bool withVectors>
void sweep(Session& session) {
    forSizes<3, 6>([&]<class T, int n>() {
        const int threshold = withVectors ? 1701 : 20001;
        sweepCount(threshold, n * (withVectors ? 2 * n + 1 : n + 1), [&](int count) {
            row<T, n, withVectors>(session, count, [](auto& problems) {
                return twoThreadsAndOne([&](int threads) { return problems.solve(threads); });
            });
        });
    });
}

const Registration
    eigenOnThreads({"eigen on threads", {"2 threads", "1 thread"}, [](Session& session) {
                        sweep<false>(session);
                        sweep<true>(session);
                    }});

} // namespace
