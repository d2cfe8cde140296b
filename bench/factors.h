// LU, Cholesky and QR factors and the solvers that take them, for elements of any kind of value:
// the numbers of one object, in a loop over objects of which compilers make vectors, or registers
// with an object in each lane. Math has the functions of a value. All diagonals are kept as
// reciprocals.
//
// Up to 8x8 everything is unrolled: else compilers keep the matrix in memory.
#pragma once

#include <cmath>
#include <utility>

namespace bench {

struct ScalarMath {
    static int number(int i) { return i; }
    template <class T>
    static T magnitude(T x) {
        return std::abs(x);
    }
    template <class T>
    static T root(T x) {
        return std::sqrt(x);
    }
    template <class T>
    static T reciprocalRoot(T x) {
        return 1 / std::sqrt(x);
    }
};

// The end of a loop over so many rows or columns. Compilers are not to see it where straight-line
// code would take them minutes.
template <int n>
[[gnu::always_inline]] inline int endOf() {
    int end = n;
    if constexpr (n > 8) __asm__("" : "+r"(end));
    return end;
}

// Swaps row p with the one below it that has the largest element in column p, and tells which.
template <class T, int n>
int exchangeRows(T (&m)[n][n], int p) {
    const int end = endOf<n>();
    int pivot = p;
    for (int i = p + 1; i < end; ++i) {
        if (std::abs(m[i][p]) > std::abs(m[pivot][p])) pivot = i;
    }
    if (pivot != p) std::swap(m[pivot], m[p]);
    return pivot;
}

// Of an elimination without its reciprocals.
constexpr double eliminationOperations(int n) {
    double sum = 0;
    for (int rest = 1; rest < n; ++rest) sum += rest * (2.0 * rest + 1);
    return sum;
}

template <int n, class Tile, class Vector>
[[gnu::always_inline]] inline void substituteBackward(const Tile& m, Vector& x) {
    const int end = endOf<n>();
#pragma GCC unroll 16
    for (int i = end - 1; i >= 0; --i) {
#pragma GCC unroll 16
        for (int j = end - 1; j > i; --j) x[i] -= m[i][j] * x[j];
        x[i] *= m[i][i];
    }
}

// A step of LU exchanges rows from a column on. Values that belong to the rows move with them:
// their numbers, or the right-hand side.
template <int n, class Tile>
[[gnu::always_inline]] inline void eliminateColumn(Tile& m, int p) {
    const int end = endOf<n>();
    m[p][p] = 1 / m[p][p];
#pragma GCC unroll 16
    for (int i = p + 1; i < end; ++i) {
        m[i][p] *= m[p][p];
#pragma GCC unroll 16
        for (int j = p + 1; j < end; ++j) m[i][j] -= m[i][p] * m[p][j];
    }
}

// Without branches.
template <class Values>
struct StepBySelection {
    using Math = Values;

    template <class Mask, class Value>
    [[gnu::always_inline]] static void exchangeWhere(Mask mask, Value& x, Value& y) {
        const Value chosen = mask ? y : x;
        y = mask ? x : y;
        x = chosen;
    }

    template <int n, class Tile, class Vector>
    [[gnu::always_inline]] static void run(Tile& m, int p, int firstColumn, Vector& moved) {
        const int end = endOf<n>();
#pragma GCC unroll 16
        for (int i = p + 1; i < end; ++i) {
            const auto isLarger = Math::magnitude(m[i][p]) > Math::magnitude(m[p][p]);
#pragma GCC unroll 16
            for (int j = firstColumn; j < end; ++j) exchangeWhere(isLarger, m[p][j], m[i][j]);
            exchangeWhere(isLarger, moved[p], moved[i]);
        }
        eliminateColumn<n>(m, p);
    }
};

// For numbers and sizes where straight-line code is too long.
struct StepByBranches {
    using Math = ScalarMath;

    template <int n, class Tile, class Vector>
    static void run(Tile& m, int p, int, Vector& moved) {
        const int end = endOf<n>();
        std::swap(moved[p], moved[exchangeRows(m, p)]);
        const auto r = m[p][p] = 1 / m[p][p];
        for (int i = p + 1; i < end; ++i) {
            const auto f = m[i][p] *= r;
            for (int j = p + 1; j < end; ++j) m[i][j] -= f * m[p][j];
        }
    }
};

template <class Step>
struct Lu {
    template <int rows, int columns>
    static constexpr int extras = rows; // the row number of each pivot

    static constexpr bool uses(int, int) { return true; }

    template <int n, int, class Tile, class Order>
    [[gnu::always_inline]] static void factor(Tile& m, Order& order) {
        const int end = endOf<n>();
#pragma GCC unroll 16
        for (int i = 0; i < end; ++i) order[i] = Step::Math::number(i);
#pragma GCC unroll 16
        for (int p = 0; p < end; ++p) Step::template run<n>(m, p, 0, order);
    }

    // b(i) for a row number of `order`.
    template <int n, int, class Tile, class Order, class Given, class Vector>
    [[gnu::always_inline]] static void solve(const Tile& m, const Order& order, const Given& b,
                                             Vector& x) {
        const int end = endOf<n>();
#pragma GCC unroll 16
        for (int i = 0; i < end; ++i) {
            x[i] = b(order[i]);
#pragma GCC unroll 16
            for (int j = 0; j < i; ++j) x[i] -= m[i][j] * x[j];
        }
        substituteBackward<n>(m, x);
    }

    template <int n, int, class Tile, class Vector>
    [[gnu::always_inline]] static void factorAndSolve(Tile& m, Vector& x) {
        const int end = endOf<n>();
#pragma GCC unroll 16
        for (int p = 0; p < end; ++p) {
            Step::template run<n>(m, p, p, x);
#pragma GCC unroll 16
            for (int i = p + 1; i < end; ++i) x[i] -= m[i][p] * x[p];
        }
        substituteBackward<n>(m, x);
    }
};

template <class Math>
struct Cholesky {
    template <int rows, int columns>
    static constexpr int extras = 0;

    static constexpr bool uses(int i, int j) { return j <= i; }

    template <int n, int, class Tile, class None>
    [[gnu::always_inline]] static void factor(Tile& m, None&) {
        const int end = endOf<n>();
#pragma GCC unroll 16
        for (int i = 0; i < end; ++i) {
#pragma GCC unroll 16
            for (int j = 0; j < i; ++j) {
#pragma GCC unroll 16
                for (int k = 0; k < j; ++k) m[i][j] -= m[i][k] * m[j][k];
                m[i][j] *= m[j][j];
            }
#pragma GCC unroll 16
            for (int k = 0; k < i; ++k) m[i][i] -= m[i][k] * m[i][k];
            m[i][i] = Math::reciprocalRoot(m[i][i]);
        }
    }

    template <int n, class Tile, class Vector>
    [[gnu::always_inline]] static void substitute(const Tile& m, Vector& x) {
        const int end = endOf<n>();
#pragma GCC unroll 16
        for (int i = 0; i < end; ++i) {
#pragma GCC unroll 16
            for (int j = 0; j < i; ++j) x[i] -= m[i][j] * x[j];
            x[i] *= m[i][i];
        }
#pragma GCC unroll 16
        for (int i = end - 1; i >= 0; --i) {
#pragma GCC unroll 16
            for (int j = end - 1; j > i; --j) x[i] -= m[j][i] * x[j];
            x[i] *= m[i][i];
        }
    }

    template <int n, int, class Tile, class None, class Given, class Vector>
    [[gnu::always_inline]] static void solve(const Tile& m, const None&, const Given& b,
                                             Vector& x) {
        const int end = endOf<n>();
#pragma GCC unroll 16
        for (int i = 0; i < end; ++i) x[i] = b(i);
        substitute<n>(m, x);
    }

    template <int n, int columns, class Tile, class Vector>
    [[gnu::always_inline]] static void factorAndSolve(Tile& m, Vector& x) {
        struct {
        } none;
        factor<n, columns>(m, none);
        substitute<n>(m, x);
    }
};

// Householder's reflections I - scale v v^T, with v[k] = 1.
template <class Math>
struct Qr {
    template <int rows, int columns>
    static constexpr int extras = columns; // the scale of each reflection
    template <int rows, int columns>
    static constexpr int reflections = rows == columns ? columns - 1 : columns;

    static constexpr bool uses(int, int) { return true; }

    template <int rows, int columns, class Tile, class Scales>
    [[gnu::always_inline]] static void factor(Tile& m, Scales& scales) {
        const int rowsEnd = endOf<rows>();
        const int columnsEnd = endOf<columns>();
        const int reflectionsEnd = endOf<reflections<rows, columns>>();
#pragma GCC unroll 16
        for (int k = 0; k < reflectionsEnd; ++k) {
            auto squares = m[k][k] * m[k][k];
#pragma GCC unroll 16
            for (int i = k + 1; i < rowsEnd; ++i) squares += m[i][k] * m[i][k];
            const auto length = Math::root(squares);
            const auto end = m[k][k] > 0 ? -length : length;
            const auto q = 1 / (m[k][k] - end);
            const auto r = 1 / end;
            scales[k] = 1 - m[k][k] * r;
            m[k][k] = r;
#pragma GCC unroll 16
            for (int i = k + 1; i < rowsEnd; ++i) m[i][k] *= q;
#pragma GCC unroll 16
            for (int j = k + 1; j < columnsEnd; ++j) {
                auto s = m[k][j];
#pragma GCC unroll 16
                for (int i = k + 1; i < rowsEnd; ++i) s += m[i][k] * m[i][j];
                s *= scales[k];
                m[k][j] -= s;
#pragma GCC unroll 16
                for (int i = k + 1; i < rowsEnd; ++i) m[i][j] -= m[i][k] * s;
            }
        }
        if constexpr (rows == columns) {
            constexpr int last = columns - 1;
            m[last][last] = 1 / m[last][last];
            scales[last] =
                m[last][last]; // not used, but compilers make vectors of runs without gaps
        }
    }

    template <int rows, int columns, class Tile, class Scales, class Vector>
    [[gnu::always_inline]] static void substitute(const Tile& m, const Scales& scales, Vector& x) {
        const int rowsEnd = endOf<rows>();
        const int reflectionsEnd = endOf<reflections<rows, columns>>();
#pragma GCC unroll 16
        for (int k = 0; k < reflectionsEnd; ++k) {
            auto s = x[k];
#pragma GCC unroll 16
            for (int i = k + 1; i < rowsEnd; ++i) s += m[i][k] * x[i];
            s *= scales[k];
            x[k] -= s;
#pragma GCC unroll 16
            for (int i = k + 1; i < rowsEnd; ++i) x[i] -= m[i][k] * s;
        }
        substituteBackward<columns>(m, x);
    }

    template <int rows, int columns, class Tile, class Scales, class Given, class Vector>
    [[gnu::always_inline]] static void solve(const Tile& m, const Scales& scales, const Given& b,
                                             Vector& x) {
        const int rowsEnd = endOf<rows>();
#pragma GCC unroll 16
        for (int i = 0; i < rowsEnd; ++i) x[i] = b(i);
        substitute<rows, columns>(m, scales, x);
    }

    template <int rows, int columns, class Tile, class Vector>
    [[gnu::always_inline]] static void factorAndSolve(Tile& m, Vector& x) {
        Vector scales;
        factor<rows, columns>(m, scales);
        substitute<rows, columns>(m, scales, x);
    }
};

} // namespace bench
