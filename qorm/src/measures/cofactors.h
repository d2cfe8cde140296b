// Inverses by elimination: each cofactor is the determinant of a minor, eliminated on its own.
#pragma once

#include "measures/elimination.h"

namespace qorm::measures {

template <class V, class From, class To>
void copyWithoutRow(std::ptrdiff_t removed, const From& from, const To& to, std::ptrdiff_t n) {
    for (std::ptrdiff_t i = 0; i < n - 1; ++i) {
        for (std::ptrdiff_t j = 0; j < n; ++j) to(i, j) = V(from(i < removed ? i : i + 1, j));
    }
}

// The determinant of the n - 1 rows of `m` without column j, of which `done` elimination steps are
// done. A minor that fails a test is 0, however its last element looks.
template <class V, class Matrix>
V minorWithoutColumn(std::ptrdiff_t j, const Matrix& m, std::ptrdiff_t done, Pivots<V> pivots,
                     std::ptrdiff_t n) {
    for (std::ptrdiff_t k = done; k < n - 2; ++k) {
        eliminate(m, k, k < j ? k : k + 1, n - 1, n, pivots);
    }
    const bool lastIsRemoved = j == n - 1;
    const V lastWhereFailed = lastIsRemoved ? pivots.nextToLastWhereFailed : pivots.lastWhereFailed;
    const V last =
        select(pivots.failed, lastWhereFailed, V(m(n - 2, lastIsRemoved ? n - 2 : n - 1)));
    const V product = select(pivots.failed, V(0), pivots.product);
    return select(abs(last) <= epsilon<V>(), V(0), product * (last * pivots.sign));
}

// The inverse of a. Nothing is written where a lane is singular, which is returned.
//
// Each minor is a separate elimination, of fifth power all together. But minors without row i and
// without one of the columns j, j + 1, ... begin with the same j steps. Where there is room for
// `shared`, these are done once, which leaves a quarter of the work.
template <class V, class A, class Inverse, class Matrix>
[[gnu::noinline]] Mask<V> invertByCofactors(const A& a, const Inverse& inverse, const Matrix& work,
                                            const Matrix* shared, std::ptrdiff_t n) {
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        for (std::ptrdiff_t j = 0; j < n; ++j) work(i, j) = V(a(i, j));
    }
    Pivots<V> pivots;
    for (std::ptrdiff_t k = 0; k < n - 1; ++k) eliminate(work, k, k, n, n, pivots);
    const V last = work(n - 1, n - 1);
    const Mask<V> singular = pivots.failed | (abs(last) <= epsilon<V>());
    if (any(singular)) return singular;
    const V reciprocal = V(1) / (pivots.product * (last * pivots.sign));

    for (std::ptrdiff_t i = 0; i < n; ++i) {
        Pivots<V> sharedPivots;
        if (shared != nullptr) copyWithoutRow<V>(i, a, *shared, n);
        for (std::ptrdiff_t j = 0; j < n; ++j) {
            V minor;
            if (shared == nullptr) {
                copyWithoutRow<V>(i, a, work, n);
                minor = minorWithoutColumn(j, work, 0, Pivots<V>(), n);
            } else if (j >= n - 2) {
                minor = minorWithoutColumn(j, *shared, n - 2, sharedPivots, n);
            } else {
                for (std::ptrdiff_t p = j; p < n - 1; ++p) {
                    for (std::ptrdiff_t c = j + 1; c < n; ++c) work(p, c) = (*shared)(p, c);
                }
                minor = minorWithoutColumn(j, work, j, sharedPivots, n);
                eliminate(*shared, j, j, n - 1, n, sharedPivots);
            }
            const V sign((i + j) % 2 == 0 ? 1 : -1);
            inverse(j, i) = minor * reciprocal * sign;
        }
    }
    return singular;
}

} // namespace qorm::measures
