// Cholesky factors of symmetric positive definite matrices, and solutions by way of them.
#include "factorisations.h"

#include <Eigen/Cholesky>

namespace {

using namespace bench;

struct CholeskyFamily {
    static constexpr const char* name = "Cholesky";
    static constexpr Factorisation factorisation = Factorisation::cholesky;
    static constexpr bool hasLeastSquares = false;

    template <class T>
    static void fill(const Matrices<T>& a) {
        a.fillPositiveDefinite();
    }

    static double elements(int n, int) { return n * (n + 1) / 2; }
    template <class T>
    static double extraBytes(int) {
        return 0;
    }
    static double operationsToFactor(int n, int) {
        double sum = 0;
        for (int i = 0; i < n; ++i) sum += i * i + 2 * i + 2;
        return sum;
    }
    static double operationsToSolve(int n, int) { return 2.0 * n * n; }

    static int workToFactor(int n) { return n * n; }
    template <class T>
    static int threshold(Task task, Placement placement) {
        constexpr bool singles = sizeof(T) == 4;
        switch (task) {
        case Task::factor:
            if (singles) return placement == Placement::packed ? 7501 : 2001;
            return placement == Placement::list ? 721 : 2001;
        case Task::solveWithOne:
            return singles && placement == Placement::packed ? 1201 : 721;
        default:
            return placement == (singles ? Placement::packed : Placement::adjacent) ? 2051 : 1701;
        }
    }

    template <class T>
    struct Calls {
        const Systems<T>& systems;
        Matrices<T> factors{systems.rows, systems.columns, systems.matrixCount, systems.placement};

        bool factor(int threads) const {
            return callLibrary(QORM_LAYOUTS(T, qormCholeskyDecomp_ma), systems.placement, threads,
                               systems.a, factors, systems.rows, systems.matrixCount);
        }
        bool solve(int threads) const {
            return callLibrary(QORM_LAYOUTS(T, qormCholeskyBackSubst_mava), systems.placement,
                               threads, factors, Vectors<T>{systems.b}, Vectors<T>{systems.x},
                               systems.rows, systems.count);
        }
        bool solveWithOne(int threads) const {
            return callLibrary(QORM_LAYOUTS(T, qormCholeskyBackSubst_mva), systems.placement,
                               threads, Single<T>{factors}, Vectors<T>{systems.b},
                               Vectors<T>{systems.x}, systems.rows, systems.count);
        }
    };

    template <class T, int n, Placement placement>
    using LoopKernel = Cholesky<ScalarMath>;
    template <class T>
    using Extra = T;

    template <class Matrix>
    using Decomposition = Eigen::LLT<Matrix>;

    // The lower triangle is LAPACK's upper one, of the same matrix.
    template <class T, int n, int>
    struct LapackCalls {
        using Extra = T;

        void factor(T* m, T*) const {
            ofType<T>(LAPACKE_spotrf_work, LAPACKE_dpotrf_work)(LAPACK_COL_MAJOR, 'U', n, m, n);
        }
        void solve(const T* m, const T*, T* x, int count) const {
            ofType<T>(LAPACKE_spotrs_work, LAPACKE_dpotrs_work)(LAPACK_COL_MAJOR, 'U', n, count, m,
                                                                n, x, n);
        }
    };
};

const Tables<CholeskyFamily> cholesky;

} // namespace
