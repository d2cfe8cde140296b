// Square matrices of the oracles, from operands and back.
#pragma once

#include "harness/call.h"

namespace harness {

template <class T>
struct Matrix {
    int n;
    std::vector<T> elements;

    const T& operator()(int i, int j) const { return elements.begin()[i * n + j]; }
    T& operator()(int i, int j) { return elements.begin()[i * n + j]; }
};

template <class T>
void setMatrix(const Operand& operand, int n, const Matrix<T>& matrix) {
    for (int i = 0; i < matrix.n; ++i) {
        for (int j = 0; j < matrix.n; ++j) operand.set<T>(n, i, j, matrix(i, j));
    }
}

template <class T>
Matrix<T> expectedMatrix(const Operand& operand, int n) {
    Matrix<T> matrix{operand.rows, {}};
    for (int i = 0; i < matrix.n; ++i) {
        for (int j = 0; j < matrix.n; ++j) {
            matrix.elements.push_back(operand.expected<T>(n, i, j));
        }
    }
    return matrix;
}

} // namespace harness
