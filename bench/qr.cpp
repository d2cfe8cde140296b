// Householder's QR factors, and solutions and least squares solutions by way of them.
#include "factorisations.h"

#include <Eigen/QR>

namespace {

using namespace bench;

struct QrFamily {
    static constexpr const char* name = "QR";
    static constexpr Factorisation factorisation = Factorisation::qr;
    static constexpr bool hasLeastSquares = true;

    template <class T>
    static void fill(const Matrices<T>& a) {
        a.fillDominated(true);
    }

    static double elements(int rows, int columns) { return rows * columns; }
    // Scales of reflections are found anew.
    template <class T>
    static double extraBytes(int) {
        return 0;
    }
    // A reflection of a vector takes 4 (rows - k) - 2.
    static double operationsToFactor(int rows, int columns) {
        double sum = 0;
        for (int k = 0; k < reflections(rows, columns); ++k) {
            const double length = rows - k;
            sum += 3 * length + 5 + (columns - 1 - k) * (4 * length - 2);
        }
        return sum;
    }
    static double operationsToSolve(int rows, int columns) {
        double sum = columns * columns;
        for (int k = 0; k < reflections(rows, columns); ++k) sum += 4 * (rows - k) - 2;
        return sum;
    }
    static int reflections(int rows, int columns) {
        return rows == columns ? columns - 1 : columns;
    }

    static int workToFactor(int n) { return 2 * n * n; }
    template <class T>
    static int threshold(Task, Placement placement) {
        return placement == Placement::packed ? 2801 : 1801;
    }

    template <class T>
    struct Calls {
        const Systems<T>& systems;
        Matrices<T> factors{systems.rows, systems.columns, systems.matrixCount, systems.placement};
        std::vector<T> scratch = std::vector<T>(static_cast<std::size_t>(systems.rows));

        bool factor(int threads) {
            return callLibrary(QORM_LAYOUTS(T, qormQRDecomp_ma), systems.placement, threads,
                               systems.a, scratch.data(), factors, systems.columns, systems.rows,
                               systems.matrixCount);
        }
        bool solve(int threads) {
            return callLibrary(QORM_LAYOUTS(T, qormQRBackSubst_mava), systems.placement, threads,
                               factors, scratch.data(), Vectors<T>{systems.b},
                               Vectors<T>{systems.x}, systems.columns, systems.rows, systems.count);
        }
        bool solveWithOne(int threads) {
            return callLibrary(QORM_LAYOUTS(T, qormQRBackSubst_mva), systems.placement, threads,
                               Single<T>{factors}, scratch.data(), Vectors<T>{systems.b},
                               Vectors<T>{systems.x}, systems.columns, systems.rows, systems.count);
        }
    };

    template <class T, int n, Placement placement>
    using LoopKernel = Qr<ScalarMath>;
    template <class T>
    using Extra = T;

    template <class Matrix>
    using Decomposition = Eigen::HouseholderQR<Matrix>;

    // The LQ factors of the transposed matrix.
    template <class T, int rows, int columns>
    struct LapackCalls {
        using Extra = T;

        void factor(T* m, T* scales) {
            ofType<T>(LAPACKE_sgelqf_work, LAPACKE_dgelqf_work)(
                LAPACK_COL_MAJOR, columns, rows, m, columns, scales, work.data(), workSize);
        }
        void solve(const T* m, const T* scales, T* x, int count) {
            ofType<T>(LAPACKE_sormlq_work, LAPACKE_dormlq_work)(LAPACK_COL_MAJOR, 'L', 'N', rows,
                                                                count, columns, m, columns, scales,
                                                                x, rows, work.data(), workSize);
            ofType<T>(LAPACKE_strtrs_work, LAPACKE_dtrtrs_work)(
                LAPACK_COL_MAJOR, 'L', 'T', 'N', columns, count, m, columns, x, rows);
        }

    private:
        static constexpr lapack_int workSize = 64 * 128;
        std::vector<T> work = std::vector<T>(workSize);
    };
};

const Tables<QrFamily> qr;

} // namespace
