// Plain scalar model of the symmetric eigenproblem: one matrix, direct loops, the two directions of
// sweep written out. Tests compare the library with it bit by bit.
#pragma once

#include "harness/matrix.h"
#include "qorm/types.h"

#include <cmath>
#include <limits>
#include <utility>
#include <vector>

namespace eigen_oracle {

using harness::Matrix;

// In what the functions of the two families differ.
struct Rules {
    bool vectors;             // eigenvectors as well as values
    bool skipsSmallColumns;   // no reflection where the column's sum of squares is within eps
    bool skipsReducedColumns; // no reflection where norm - a is within eps
    bool signsShiftAtZero;    // from the top, the sign of the shift follows t > 0 and not t > eps
    bool sortsSingular;       // a singular matrix comes out sorted
};

inline Rules rulesOf(const harness::Function& function) {
    const bool is32f = function.elementSize == 4;
    const bool isP = function.layout == harness::Layout::P;
    const bool isM32f = !function.array && is32f && !isP;
    if (function.operation == "EigenValuesVectorsSym") {
        return {true, false, true, isM32f, !function.array && !isM32f};
    }
    return {false, function.array && (is32f || !isP), function.array, false, false};
}

// solve() overwrites W. Of a singular matrix of size 2 nothing is written; of one that does not
// converge the values are meaningless and V is the product of reflectors and rotations so far.
template <class T>
class Eigen {
public:
    std::vector<T> values;
    Matrix<T> V;

    Eigen(const Matrix<T>& source, const Rules& functionRules)
        : values(static_cast<std::size_t>(source.n)),
          V{source.n, std::vector<T>(source.elements.size())},
          n(source.n),
          rules(functionRules),
          W(source),
          v(values) {}

    qorStatus solve() {
        if (n == 2) return solveSize2();
        for (int i = 0; i < n; ++i) V(i, i) = 1;
        if (n == 1) {
            values[0] = W(0, 0);
            return qorStatusOk;
        }
        for (int k = 1; k <= n - 2; ++k) reduce(k);
        const bool fromTop = std::abs(d(n - 1)) > std::abs(d(0));
        if (!(fromTop ? sweepTopDown() : sweepBottomUp())) return qorStatusNoConvergence;
        if (fromTop || rules.vectors) {
            product = 1;
            for (int i = 0; i < n; ++i) {
                value(i) = d(i);
                product *= d(i);
            }
        }
        const bool singular = std::abs(product) <= eps;
        if (!singular || rules.sortsSingular) sort();
        return singular ? qorStatusSingular : qorStatusOk;
    }

private:
    static constexpr bool is32f = sizeof(T) == 4;
    static constexpr T eps = std::numeric_limits<T>::epsilon();

    int n;
    Rules rules;
    Matrix<T> W;
    std::vector<T> v;
    T product = 1;

    T& d(int i) { return W(i, i); }
    T& e(int i) { return W(i + 1, i); }
    T& value(int i) { return values.begin()[i]; }
    T& u(int i) { return v.begin()[i]; }

    static T reciprocalRoot(T x) { return is32f ? T(1 / std::sqrt(double{x})) : 1 / std::sqrt(x); }

    qorStatus solveSize2() {
        const T det = W(0, 0) * W(1, 1) - W(0, 1) * W(0, 1);
        if (std::abs(det) <= eps) return qorStatusSingular;
        const T diff = W(0, 0) - W(1, 1);
        const T trace = W(1, 1) + W(0, 0);
        const T tb = 2 * W(0, 1);
        const T r = std::sqrt(diff * diff + tb * tb);
        const bool negative = trace < -eps;
        if (trace > eps || negative) {
            value(0) = negative ? T(0.5) * (trace - r) : (r + trace) * T(0.5);
            value(1) = det / value(0);
        } else {
            value(0) = T(0.5) * r;
            value(1) = T(-0.5) * r;
        }
        const int sign1 = negative ? -1 : 1;
        const int sign2 = diff >= -eps ? 1 : -1;
        const T cs = sign2 > 0 ? diff + r : diff - r;
        T cosine = 1;
        T sine = 0;
        if (std::abs(cs) > std::abs(tb)) {
            const T ct = -tb / cs;
            sine = reciprocalRoot(ct * ct + 1);
            cosine = ct * sine;
        } else if (!(std::abs(tb) <= eps)) {
            const T tn = -cs / tb;
            cosine = reciprocalRoot(tn * tn + 1);
            sine = tn * cosine;
        }
        V.elements = sign1 != sign2 ? std::vector<T>{cosine, -sine, sine, cosine}
                                    : std::vector<T>{-sine, -cosine, cosine, -sine};
        return qorStatusOk;
    }

    void reduce(int k) {
        T sigma = 0;
        for (int i = k; i < n; ++i) sigma += W(i, k - 1) * W(i, k - 1);
        if (rules.skipsSmallColumns && !(sigma > eps)) return;
        const T norm = std::sqrt(sigma);
        const T a = W(k, k - 1);
        for (int i = k + 1; i < n; ++i) u(i) = W(i, k - 1);
        if (rules.skipsReducedColumns && std::abs(norm - a) <= eps) return;
        T beta;
        if (a > eps) {
            u(k) = a + norm;
            beta = (sigma + norm * a) * 2;
        } else if (std::abs(a) <= eps) {
            u(k) = norm;
            beta = sigma + sigma;
        } else {
            u(k) = a - norm;
            beta = (sigma - norm * a) * 2;
        }
        if (!(beta > eps)) return;
        const T c = 2 / beta;
        for (int j = k - 1; j < n; ++j) {
            T sum = 0;
            for (int i = k; i < n; ++i) sum += W(i, j) * u(i);
            const T t = c * sum;
            for (int i = k; i < n; ++i) W(i, j) -= u(i) * t;
        }
        for (int row = k - 1; row < n; ++row) reflectRow(W, row, k, c);
        for (int row = 1; k > 1 && row < n; ++row) reflectRow(V, row, k, c);
        for (int i = 1; k == 1 && i < n; ++i) {
            V(i, i) = 1 - c * u(i) * u(i);
            for (int j = i + 1; j < n; ++j) V(i, j) = V(j, i) = u(i) * -c * u(j);
        }
    }

    void reflectRow(Matrix<T>& matrix, int row, int k, T c) {
        T sum = 0;
        for (int i = k; i < n; ++i) sum += matrix(row, i) * u(i);
        const T t = c * sum;
        for (int i = k; i < n; ++i) matrix(row, i) -= u(i) * t;
    }

    static bool splits(T element) { return !(std::abs(0.5 * double{element}) > double{eps}); }

    T shiftOf(T dOwn, T dNext, T e0, T dFar, T threshold) {
        const T t = (dNext - dOwn) / (2 * e0);
        const T square = t * t;
        const T q =
            is32f && rules.vectors ? T(std::sqrt(double{square} + 1)) : std::sqrt(square + 1);
        return (dFar - dOwn) + e0 / (t > threshold ? t + q : t - q);
    }

    // The rotation at hand of a sweep.
    struct Rotation {
        T g, s = 1, c = 1, p = 0, w = 0;

        // False if it vanishes. `eBehind` is where its length goes, if anywhere.
        bool turn(T eHere, T* eBehind, T& dHere, T& dNext) {
            const T f = s * eHere;
            const T b = eHere * c;
            const T r = std::sqrt(f * f + g * g);
            if (eBehind) *eBehind = r;
            if (!(std::abs(r) > eps)) {
                dHere -= p;
                return false;
            }
            s = f / r;
            c = g / r;
            const T h = dHere - p;
            w = (dNext - h) * s + (c + c) * b;
            p = w * s;
            dHere = h + p;
            g = w * c - b;
            return true;
        }
    };

    bool sweepBottomUp() {
        for (int last = n - 1; last >= 0; --last) {
            for (int sweeps = 0;; ++sweeps) {
                int m = last;
                while (m > 0 && !splits(e(m - 1))) --m;
                if (m > 0) {
                    value(m) = d(m);
                    product *= d(m);
                }
                if (m == last) break;
                if (sweeps == 30) return false;
                Rotation R{shiftOf(d(last), d(last - 1), e(last - 1), d(m), eps)};
                bool stalled = false;
                for (int i = m; i < last && !stalled; ++i) {
                    if (!R.turn(e(i), i != m ? &e(i - 1) : nullptr, d(i), d(i + 1))) {
                        e(m) = 0;
                        stalled = true;
                        continue;
                    }
                    for (int row = 0; row < n; ++row) {
                        const T x = V(row, i);
                        const T y = V(row, i + 1);
                        V(row, i) = R.c * x + y * R.s;
                        V(row, i + 1) = y * R.c - x * R.s;
                    }
                }
                if (!stalled && std::abs(R.w) > eps) {
                    e(last - 1) = R.g;
                    d(last) -= R.p;
                }
            }
        }
        value(0) = d(0);
        product *= d(0);
        return true;
    }

    bool sweepTopDown() {
        const T threshold = rules.signsShiftAtZero ? 0 : eps;
        for (int first = 0; first < n; ++first) {
            for (int sweeps = 0;; ++sweeps) {
                int m = first;
                while (m < n - 1 && !splits(e(m))) ++m;
                if (m == first) break;
                if (sweeps == 30) return false;
                Rotation R{shiftOf(d(first), d(first + 1), e(first), d(m), threshold)};
                bool stalled = false;
                for (int i = m - 1; i >= first && !stalled; --i) {
                    if (!R.turn(e(i), i != m - 1 ? &e(i + 1) : nullptr, d(i + 1), d(i))) {
                        e(m - 1) = 0;
                        stalled = true;
                        continue;
                    }
                    for (int row = 0; row < n; ++row) {
                        const T x = V(row, i);
                        const T y = V(row, i + 1);
                        V(row, i) = R.c * x - y * R.s;
                        V(row, i + 1) = x * R.s + y * R.c;
                    }
                }
                if (!stalled && (std::abs(R.w) > eps || first == 0)) {
                    d(first) -= R.p;
                    e(first) = R.g;
                }
            }
        }
        return true;
    }

    void sort() {
        for (int i = 0; i < n - 1; ++i) {
            int best = i;
            for (int j = i + 1; j < n; ++j) {
                if (value(j) > value(best)) best = j;
            }
            if (best == i) continue;
            std::swap(value(i), value(best));
            for (int row = 0; row < n; ++row) std::swap(V(row, i), V(row, best));
        }
    }
};

} // namespace eigen_oracle
