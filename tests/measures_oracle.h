// Plain scalar model of determinant and inverse: one matrix, minors by recursion, rows exchanged in
// a table only. Tests compare the library with it bit by bit.
#pragma once

#include "harness/matrix.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <limits>
#include <numeric>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace measures_oracle {

using harness::Matrix;

template <class T>
constexpr T eps = std::numeric_limits<T>::epsilon();

// Some of the rows or columns 0 to 5, ascending.
class Set {
public:
    constexpr explicit Set(std::string_view digits) {
        for (const char digit : digits) bits_ |= 1U << (digit - '0');
    }
    static Set ofFirst(int n) { return Set(std::string_view("012345").substr(0, std::size_t(n))); }

    int size() const { return std::popcount(bits_); }
    std::size_t index() const { return bits_; }
    bool operator==(const Set&) const = default;

    int operator[](int k) const {
        unsigned fromK = bits_;
        for (; k > 0; --k) fromK &= fromK - 1;
        return std::countr_zero(fromK);
    }
    Set without(int k) const {
        Set others = *this;
        others.bits_ &= ~(1U << (*this)[k]);
        return others;
    }

private:
    unsigned bits_ = 0;
};

// Gaussian elimination with partial pivoting.
template <class T>
struct Elimination {
    T product = 1; // of all pivots but the last
    int sign = 1;  // of the order of rows
    bool failed = false;
    T last = 0; // what stands at the place of the last pivot when it ends

    explicit Elimination(Matrix<T> W) {
        const int n = W.n;
        std::vector<int> table(static_cast<std::size_t>(n));
        std::iota(table.begin(), table.end(), 0);
        const auto row = [&](int position) -> int& { return table.begin()[position]; };
        for (int k = 0; k < n - 1; ++k) {
            int best = k;
            T r = std::abs(W(row(k), k));
            for (int p = k + 1; p < n; ++p) {
                const T c = std::abs(W(row(p), k));
                if (c > r) best = p;
                r = r > c ? r : c;
            }
            if (row(best) != row(k)) {
                std::swap(row(best), row(k));
                sign = -sign;
            }
            const T pivot = W(row(k), k);
            failed = !(std::abs(pivot) >= eps<T>);
            if (failed) break;
            for (int p = k + 1; p < n; ++p) {
                const T f = W(row(p), k) / pivot;
                for (int c = k + 1; c < n; ++c) W(row(p), c) -= W(row(k), c) * f;
            }
            product = pivot * product;
        }
        last = W(row(n - 1), n - 1);
    }
};

inline bool isClosed(int n) {
    return n >= 3 && n <= 6;
}

// The minor of the first rows on the columns c, along its last row.
template <class T>
T minorOfFirstRows(const Matrix<T>& A, Set c) {
    const int k = c.size();
    if (k == 2) return A(0, c[0]) * A(1, c[1]) - A(0, c[1]) * A(1, c[0]);
    const auto a = [&](int j) { return A(k - 1, c[j]); };
    const auto m = [&](int j) { return minorOfFirstRows(A, c.without(j)); };
    if (k == 3) return a(2) * m(2) - a(1) * m(1) + a(0) * m(0);
    if (k == 4) return a(3) * m(3) - a(2) * m(2) + a(1) * m(1) + (0 - a(0)) * m(0);
    if (k == 5 && A.n == 6 && c == Set("01345")) {
        return a(4) * m(4) + a(2) * m(2) - a(3) * m(3) - a(1) * m(1) + a(0) * m(0);
    }
    if (k == 5) return a(4) * m(4) - a(3) * m(3) + a(2) * m(2) - a(1) * m(1) + a(0) * m(0);
    return a(5) * m(5) - a(4) * m(4) + a(3) * m(3) - a(2) * m(2) + (0 - a(0)) * m(0) + a(1) * m(1);
}

template <class T>
T determinant(const Matrix<T>& A, bool ofArray) {
    if (isClosed(A.n)) return minorOfFirstRows(A, Set::ofFirst(A.n));
    const Elimination<T> elimination(A);
    if (elimination.failed && !ofArray) return 0;
    if (eps<T> >= std::abs(elimination.last)) return 0;
    const int sign = elimination.failed ? 0 : elimination.sign;
    return elimination.product * (elimination.last * T(sign));
}

// Cofactors and determinant of sizes 3 to 6.
template <class T>
class Cofactors {
public:
    explicit Cofactors(const Matrix<T>& matrix) : A(matrix) {}

    T operator()(int i, int j) {
        const Set columns = Set::ofFirst(A.n).without(j);
        const T m = minorWithout(i, columns);
        const bool isNegative = columns.size() >= 4 && addsLastColumn(columns);
        return isNegative == ((i + j) % 2 == 1) ? m : 0 - m;
    }

    T determinant() {
        const Set D = Set::ofFirst(A.n).without(0);
        const auto a = [&](int i) { return A(i, 0); };
        const auto m = [&](int i) { return minorWithout(i, D); };
        switch (A.n) {
        case 3:
            return a(2) * m(2) - a(1) * m(1) + a(0) * m(0);
        case 4:
            return (0 - a(3)) * m(3) + a(2) * m(2) - a(1) * m(1) + a(0) * m(0);
        case 5:
            return a(4) * m(4) - a(3) * m(3) + a(2) * m(2) - a(1) * m(1) + a(0) * m(0);
        default:
            return (0 - a(5)) * m(5) + a(4) * m(4) - a(3) * m(3) + a(2) * m(2) - a(1) * m(1) +
                   a(0) * m(0);
        }
    }

private:
    const Matrix<T>& A;
    std::array<std::array<std::optional<T>, 64>, 64> known;

    // Whether minors on the columns K add the last of them to smaller minors, and not the first. If
    // there are four or five they come out with the opposite sign.
    static bool addsLastColumn(Set K) {
        static constexpr std::array all = {Set("012"),   Set("013"),   Set("0123"), Set("0124"),
                                           Set("01234"), Set("01235"), Set("01245")};
        return std::find(all.begin(), all.end(), K) != all.end();
    }

    T minorWithout(int i, Set K) { return minor(Set::ofFirst(A.n).without(i), K); }

    T minor(Set R, Set K) {
        std::optional<T>& value = known[R.index()][K.index()];
        if (!value) value = computedMinor(R, K);
        return *value;
    }

    T computedMinor(Set R, Set K) {
        const int k = R.size();
        if (k == 2) return A(R[0], K[0]) * A(R[1], K[1]) - A(R[0], K[1]) * A(R[1], K[0]);
        const int added = addsLastColumn(K) ? k - 1 : 0;
        const auto a = [&](int i) { return A(R[i], K[added]); };
        const auto m = [&](int i) { return minor(R.without(i), K.without(added)); };
        if (k == 3) return a(2) * m(2) - a(1) * m(1) + a(0) * m(0);
        if (k == 4) return a(0) * m(0) - a(3) * m(3) + a(2) * m(2) - a(1) * m(1);
        return a(4) * m(4) - a(3) * m(3) + a(2) * m(2) - a(1) * m(1) + a(0) * m(0);
    }
};

template <class T>
T minorByElimination(const Matrix<T>& A, int i, int j) {
    Matrix<T> rest{A.n - 1, {}};
    rest.elements.reserve(A.elements.size());
    for (int row = 0; row < A.n; ++row) {
        for (int column = 0; column < A.n; ++column) {
            if (row != i && column != j) rest.elements.push_back(A(row, column));
        }
    }
    const Elimination<T> elimination(std::move(rest));
    if (eps<T> >= std::abs(elimination.last)) return 0;
    const T product = elimination.failed ? 0 : elimination.product;
    return product * (elimination.last * T(elimination.sign));
}

// Empty if the matrix is singular.
template <class T>
std::optional<Matrix<T>> inverse(const Matrix<T>& A, bool ofArray) {
    const int n = A.n;
    Matrix<T> result = A;
    if (n == 1) {
        const T x = std::abs(A(0, 0));
        if (ofArray ? eps<T> >= x : !(x > eps<T>)) return {};
        result(0, 0) = 1 / A(0, 0);
        return result;
    }
    if (isClosed(n)) {
        Cofactors<T> cofactor(A);
        const T det = cofactor.determinant();
        if (ofArray ? std::abs(det) < eps<T> : !(std::abs(det) >= eps<T>)) return {};
        const T r = 1 / det;
        for (int i = 0; i < n; ++i) {
            for (int j = 0; j < n; ++j) result(j, i) = cofactor(i, j) * r;
        }
        return result;
    }
    const Elimination<T> elimination(A);
    if (elimination.failed || eps<T> >= std::abs(elimination.last)) return {};
    const T det = elimination.product * (elimination.last * T(elimination.sign));
    const T r = 1 / det;
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j) {
            const T f = (i + j) % 2 == 0 ? 1 : -1;
            result(j, i) = minorByElimination(A, i, j) * r * f;
        }
    }
    return result;
}

} // namespace measures_oracle
