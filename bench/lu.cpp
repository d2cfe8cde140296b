// LU factors with row pivoting, and solutions by way of them.
#include "factorisations.h"

#include <Eigen/LU>

namespace {

using namespace bench;

struct LuFamily {
    static constexpr const char* name = "LU";
    static constexpr Factorisation factorisation = Factorisation::lu;
    static constexpr bool hasLeastSquares = false;

    template <class T>
    static void fill(const Matrices<T>& a) {
        a.fillDominated(true);
    }

    static double elements(int n, int) { return n * n; }
    template <class T>
    static double extraBytes(int n) {
        return n * double{sizeof(std::int32_t)};
    }
    static double operationsToFactor(int n, int) { return eliminationOperations(n) + n; }
    static double operationsToSolve(int n, int) { return 2.0 * n * n - n; }

    // The library's work measure of a matrix, and where it begins to use threads.
    static int workToFactor(int n) { return n * n; }
    template <class T>
    static int threshold(Task task, Placement placement) {
        if (task != Task::factor) return 1701;
        return placement == Placement::list && sizeof(T) == 4 ? 40001 : 0;
    }

    template <class T>
    struct Calls {
        const Systems<T>& systems;
        Matrices<T> factors{systems.rows, systems.columns, systems.matrixCount, systems.placement};
        std::vector<std::int32_t> order =
            std::vector<std::int32_t>(static_cast<std::size_t>(systems.matrixCount * systems.rows));

        bool factor(int threads) {
            return callLibrary(QORM_LAYOUTS(T, qormLUDecomp_ma), systems.placement, threads,
                               systems.a, order.data(), factors, systems.rows, systems.matrixCount);
        }
        bool solve(int threads) const {
            return callLibrary(QORM_LAYOUTS(T, qormLUBackSubst_mava), systems.placement, threads,
                               factors, order.data(), Vectors<T>{systems.b}, Vectors<T>{systems.x},
                               systems.rows, systems.count);
        }
        bool solveWithOne(int threads) const {
            return callLibrary(QORM_LAYOUTS(T, qormLUBackSubst_mva), systems.placement, threads,
                               Single<T>{factors}, order.data(), Vectors<T>{systems.b},
                               Vectors<T>{systems.x}, systems.rows, systems.count);
        }
    };

    template <class, int n, Placement>
    using LoopKernel = Lu<std::conditional_t<n <= 8, StepBySelection<ScalarMath>, StepByBranches>>;
    template <class T>
    using Extra = std::int32_t;

    template <class Matrix>
    using Decomposition = Eigen::PartialPivLU<Matrix>;

    template <class T, int n, int>
    struct LapackCalls {
        using Extra = lapack_int;

        void factor(T* m, lapack_int* exchanged) const {
            ofType<T>(LAPACKE_sgetrf_work, LAPACKE_dgetrf_work)(LAPACK_COL_MAJOR, n, n, m, n,
                                                                exchanged);
        }
        void solve(const T* m, const lapack_int* exchanged, T* x, int count) const {
            ofType<T>(LAPACKE_sgetrs_work, LAPACKE_dgetrs_work)(LAPACK_COL_MAJOR, 'T', n, count, m,
                                                                n, exchanged, x, n);
        }
    };
};

const Tables<LuFamily> lu;

} // namespace
