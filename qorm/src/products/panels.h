// Products of any size: registers run along a row of the result, and a block of rows shares what is
// loaded of the second operand.
#pragma once

#include "frame/lane_runs.h"
#include "products/shape.h"

#include <algorithm>

namespace qorm::products {

template <class Matrix>
inline constexpr bool rowsAreRuns = false;
template <class T>
inline constexpr bool rowsAreRuns<StridedMatrix<T, true>> = true;

template <class Matrix>
inline constexpr bool columnsAreRuns = false;
template <class Matrix>
inline constexpr bool columnsAreRuns<Transposed<Matrix>> = rowsAreRuns<Matrix>;

// `live` elements of row i from column j on.
template <class V, class Matrix>
V loadRow(const Matrix& matrix, std::ptrdiff_t i, std::ptrdiff_t j, int live) {
    using T = LaneType<V>;
    if constexpr (rowsAreRuns<Matrix>) {
        const T* const from = matrix(i, j).address();
        return live == laneCount<V> ? loadRun(from) : loadRun(from, live);
    } else {
        T row[laneCount<V>] = {};
        for (int lane = 0; lane < live; ++lane) row[lane] = matrix(i, j + lane);
        return loadRun<T>(row);
    }
}

template <class V, class Matrix>
void storeRow(const Matrix& matrix, std::ptrdiff_t i, std::ptrdiff_t j, int live, const V& values) {
    using T = LaneType<V>;
    if constexpr (rowsAreRuns<Matrix>) {
        T* const to = matrix(i, j).address();
        if (live == laneCount<V>)
            storeRun(to, values);
        else
            storeRun(to, values, live);
    } else {
        T row[laneCount<V>];
        storeRun<T>(row, values);
        for (int lane = 0; lane < live; ++lane) matrix(i, j + lane) = row[lane];
    }
}

// Rows i .. i + rows - 1 of a register's columns from j on, by the terms firstTerm .. endTerm - 1,
// whose rows of the second operand b(k) gives.
template <int rows, class V, class A, class B, class D>
void addTerms(const A& a, const B& b, const D& d, std::ptrdiff_t i, std::ptrdiff_t j, int live,
              std::ptrdiff_t firstTerm, std::ptrdiff_t endTerm) {
    V sums[rows];
    for (int r = 0; r < rows; ++r) {
        sums[r] = firstTerm == 0 ? V(LaneType<V>(0)) : loadRow<V>(d, i + r, j, live);
    }
    for (std::ptrdiff_t k = firstTerm; k < endTerm; ++k) {
        const V row = b(k);
        for (int r = 0; r < rows; ++r) sums[r] = sums[r] + V(a(i + r, k)) * row;
    }
    for (int r = 0; r < rows; ++r) storeRow(d, i + r, j, live, sums[r]);
}

template <class V, class A, class B, class D>
void addTermsOfAllRows(const A& a, const B& b, const D& d, std::ptrdiff_t rows, std::ptrdiff_t j,
                       int live, std::ptrdiff_t firstTerm, std::ptrdiff_t endTerm) {
    std::ptrdiff_t i = 0;
    for (; i + 4 <= rows; i += 4) addTerms<4, V>(a, b, d, i, j, live, firstTerm, endTerm);
    if (i + 2 <= rows) {
        addTerms<2, V>(a, b, d, i, j, live, firstTerm, endTerm);
        i += 2;
    }
    if (i < rows) addTerms<1, V>(a, b, d, i, j, live, firstTerm, endTerm);
}

// Rows first .. end - 1 of the second operand, `live` elements of each from column j on.
template <class V, class B>
void collectPanel(const B& b, std::ptrdiff_t first, std::ptrdiff_t end, std::ptrdiff_t j, int live,
                  V* panel) {
    if constexpr (columnsAreRuns<B>) {
        loadRuns<LaneType<V>>(
            [&](int lane) { return b(first, j + std::min(lane, live - 1)).address(); },
            static_cast<int>(end - first),
            [&](std::ptrdiff_t k) -> auto& { return panel[k].lanes[0]; });
    } else {
        for (std::ptrdiff_t k = first; k < end; ++k) panel[k - first] = loadRow<V>(b, k, j, live);
    }
}

// One product, whose destination is apart from both operands.
template <class T, class A, class B, class D>
void multiplyByPanels(const A& a, const B& b, const D& d, const Shape& shape) {
    using V = Pack<T>;
    constexpr std::ptrdiff_t lanes = laneCount<V>;
    for (std::ptrdiff_t j = 0; j < shape.columns; j += lanes) {
        const int live = static_cast<int>(std::min(lanes, shape.columns - j));
        if constexpr (rowsAreRuns<B>) {
            const auto row = [&](std::ptrdiff_t k) { return loadRow<V>(b, k, j, live); };
            addTermsOfAllRows<V>(a, row, d, shape.rows, j, live, 0, shape.inner);
        } else {
            // A panel of the second operand is collected once for all rows.
            constexpr std::ptrdiff_t length = 64;
            V panel[length];
            for (std::ptrdiff_t first = 0; first < shape.inner; first += length) {
                const std::ptrdiff_t end = std::min(first + length, shape.inner);
                collectPanel(b, first, end, j, live, panel);
                const auto row = [&](std::ptrdiff_t k) { return panel[k - first]; };
                addTermsOfAllRows<V>(a, row, d, shape.rows, j, live, first, end);
            }
        }
    }
}

} // namespace qorm::products
