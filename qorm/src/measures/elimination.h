// Gaussian elimination with partial pivoting, for one matrix or one in each lane.
#pragma once

#include "frame/lanes.h"

#include <utility>

namespace qorm::measures {

// What the steps so far have found. A lane whose pivot fails its test takes no further part: its
// numbers stay, and so do those elements that it may still be asked for.
template <class V>
struct Pivots {
    V product = V(1);
    V sign = V(1);                  // -1 after an odd number of row exchanges
    Mask<V> failed = V(0) > V(0);   // a pivot was too small, or NaN
    V lastWhereFailed = V(0);       // the last row's last element then
    V nextToLastWhereFailed = V(0); // and the one before it
};

// Exchanges rows k and `best` from `column` on.
template <Scalar T, class Matrix>
void exchangeRows(const Matrix& a, std::ptrdiff_t k, T best, std::ptrdiff_t column,
                  std::ptrdiff_t /*rows*/, std::ptrdiff_t columns) {
    const auto p = static_cast<std::ptrdiff_t>(best);
    if (p == k) return;
    for (std::ptrdiff_t c = column; c < columns; ++c) {
        const T upper = a(k, c);
        a(k, c) = T(a(p, c));
        a(p, c) = upper;
    }
}

template <Scalar T, int registers, class Matrix>
void exchangeRows(const Matrix& a, std::ptrdiff_t k, const Pack<T, registers>& best,
                  std::ptrdiff_t column, std::ptrdiff_t rows, std::ptrdiff_t columns) {
    for (std::ptrdiff_t p = k + 1; p < rows; ++p) {
        const auto isBest = best == Pack<T, registers>(static_cast<T>(p));
        if (!any(isBest)) continue;
        for (std::ptrdiff_t c = column; c < columns; ++c) {
            const Pack<T, registers> upper = a(k, c);
            const Pack<T, registers> lower = a(p, c);
            a(k, c) = select(isBest, lower, upper);
            a(p, c) = select(isBest, upper, lower);
        }
    }
}

// The step that eliminates `column` from the rows behind row k. The column itself is not cleared.
template <class V, class Matrix>
void eliminate(const Matrix& a, std::ptrdiff_t k, std::ptrdiff_t column, std::ptrdiff_t rows,
               std::ptrdiff_t columns, Pivots<V>& pivots) {
    using T = LaneType<V>;
    const V eps = epsilon<V>();

    // The first of equal candidates wins, and NaN never does: it replaces `largest`, and the next
    // candidate replaces it in turn.
    V best(static_cast<T>(k));
    V largest = abs(V(a(k, column)));
    for (std::ptrdiff_t p = k + 1; p < rows; ++p) {
        const V candidate = abs(V(a(p, column)));
        assignWhere(candidate > largest, best, V(static_cast<T>(p)));
        largest = select(largest > candidate, largest, candidate);
    }
    exchangeRows(a, k, best, column, rows, columns);
    const V pivot = a(k, column);

    const Mask<V> stays = best == V(static_cast<T>(k));
    assignWhere(!(stays | pivots.failed), pivots.sign, -pivots.sign);

    const Mask<V> fails = !((eps <= abs(pivot)) | pivots.failed);
    assignWhere(fails, pivots.lastWhereFailed, V(a(rows - 1, columns - 1)));
    assignWhere(fails, pivots.nextToLastWhereFailed, V(a(rows - 1, columns - 2)));
    pivots.failed = pivots.failed | fails;
    if (!any(!pivots.failed)) return;

    const V divisor = select(pivots.failed, V(1), pivot);
    for (std::ptrdiff_t p = k + 1; p < rows; ++p) {
        const V factor = V(a(p, column)) / divisor;
        for (std::ptrdiff_t c = column + 1; c < columns; ++c) {
            a(p, c) = V(a(p, c)) - V(a(k, c)) * factor;
        }
    }
    pivots.product = select(pivots.failed, pivots.product, pivots.product * pivot);
}

} // namespace qorm::measures
