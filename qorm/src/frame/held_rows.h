// Small squares of contiguous rows, a register to each row as the matrix is read.
#pragma once

#include "frame/elements.h"
#include "frame/gathering.h"
#include "frame/transposition.h"
#include "frame/vectors.h"

namespace qorm {

// Whether rows of n elements are loaded and stored whole, or by masks.
template <Scalar T, int n>
inline constexpr bool rowsFitRegisters = lanesFor(n) <= laneCount<Pack<T>> &&
                                         (hasGathering || n == lanesFor(n));

template <Scalar T, int n>
struct HeldRows {
    static constexpr int lanes = lanesFor(n);

    Vector<T, lanes> rows[lanes];

    template <class Matrix>
    explicit HeldRows(const Matrix& matrix) {
        for (int k = 0; k < n; ++k) rows[k] = loadVector<T, lanes, n>(matrix(k, 0).address());
    }
    template <class Matrix>
    explicit HeldRows(const Transposed<Matrix>& transposed) : HeldRows(transposed.matrix) {
        for (int k = n; k < lanes; ++k) rows[k] = Vector<T, lanes>{};
        transpose(rows);
    }
};

} // namespace qorm
