// Determinant and inverse by cofactors, for elements of any kind of value: a(i, j) gives one, and
// to d(i, j) one is assigned. Always part of the loop over objects, of which compilers then make
// vectors.
#pragma once

namespace bench {

constexpr int largestClosedForm = 4;

// Of two rows of a 4x4 matrix, the minors on each pair of columns.
template <class Value>
struct PairMinors {
    Value of01, of02, of03, of12, of13, of23;
};

template <class Matrix>
[[gnu::always_inline]] inline auto pairMinors(const Matrix& a, int i, int j) {
    const auto minor = [&](int k, int l) { return a(i, k) * a(j, l) - a(i, l) * a(j, k); };
    return PairMinors<decltype(minor(0, 1))>{minor(0, 1), minor(0, 2), minor(0, 3),
                                             minor(1, 2), minor(1, 3), minor(2, 3)};
}

// Of the matrix with the minors s of the two upper rows and t of the two lower ones.
template <class Value>
[[gnu::always_inline]] inline Value determinantOf(const PairMinors<Value>& s,
                                                  const PairMinors<Value>& t) {
    return s.of01 * t.of23 - s.of02 * t.of13 + s.of03 * t.of12 + s.of12 * t.of03 - s.of13 * t.of02 +
           s.of23 * t.of01;
}

template <int n, class Matrix>
[[gnu::always_inline]] inline auto closedDeterminant(const Matrix& a) {
    if constexpr (n == 2) {
        return a(0, 0) * a(1, 1) - a(0, 1) * a(1, 0);
    } else if constexpr (n == 3) {
        return a(0, 0) * (a(1, 1) * a(2, 2) - a(1, 2) * a(2, 1)) -
               a(0, 1) * (a(1, 0) * a(2, 2) - a(1, 2) * a(2, 0)) +
               a(0, 2) * (a(1, 0) * a(2, 1) - a(1, 1) * a(2, 0));
    } else {
        return determinantOf(pairMinors(a, 0, 1), pairMinors(a, 2, 3));
    }
}

template <int n, class Matrix, class Inverse>
[[gnu::always_inline]] inline void closedInverse(const Matrix& a, const Inverse& d) {
    using Value = decltype(a(0, 0) * a(0, 0));
    if constexpr (n == 2) {
        const Value r = 1 / closedDeterminant<2>(a);
        d(0, 0) = a(1, 1) * r;
        d(0, 1) = -a(0, 1) * r;
        d(1, 0) = -a(1, 0) * r;
        d(1, 1) = a(0, 0) * r;
    } else if constexpr (n == 3) {
        // With its sign, which the cyclic order of rows and columns brings.
        const auto cofactor = [&](int i, int j) {
            const int i1 = (i + 1) % 3, i2 = (i + 2) % 3, j1 = (j + 1) % 3, j2 = (j + 2) % 3;
            return Value(a(i1, j1) * a(i2, j2) - a(i1, j2) * a(i2, j1));
        };
        const Value c0 = cofactor(0, 0), c1 = cofactor(0, 1), c2 = cofactor(0, 2);
        const Value r = 1 / (a(0, 0) * c0 + a(0, 1) * c1 + a(0, 2) * c2);
        d(0, 0) = c0 * r;
        d(1, 0) = c1 * r;
        d(2, 0) = c2 * r;
        for (int i = 0; i < 3; ++i) {
            for (int j = 1; j < 3; ++j) d(i, j) = cofactor(j, i) * r;
        }
    } else {
        const auto s = pairMinors(a, 0, 1);
        const auto t = pairMinors(a, 2, 3);
        const Value r = 1 / determinantOf(s, t);
        // Column j, the cofactors of row j: from row i, the other one of its pair, and the minors
        // of the other pair.
        const auto setColumn = [&](int j, int i, const auto& m) {
            const Value even = j % 2 == 0 ? r : -r;
            const Value odd = -even;
            d(0, j) = (a(i, 1) * m.of23 - a(i, 2) * m.of13 + a(i, 3) * m.of12) * even;
            d(1, j) = (a(i, 0) * m.of23 - a(i, 2) * m.of03 + a(i, 3) * m.of02) * odd;
            d(2, j) = (a(i, 0) * m.of13 - a(i, 1) * m.of03 + a(i, 3) * m.of01) * even;
            d(3, j) = (a(i, 0) * m.of12 - a(i, 1) * m.of02 + a(i, 2) * m.of01) * odd;
        };
        setColumn(0, 1, t);
        setColumn(1, 0, t);
        setColumn(2, 3, s);
        setColumn(3, 2, s);
    }
}

} // namespace bench
