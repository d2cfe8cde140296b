// What the three solvers share: the systems' operands, and how vectors go through lanes.
#pragma once

#include "factorisations/objects.h"

namespace qorm::factorisations {

// The elements of one matrix, or of a pack of them, loaded as W.
template <class W, class N>
struct Loaded {
    W elements[areaOf<N>];
    N columns;

    explicit Loaded(N width) : columns(width) {}

    const W& operator()(std::ptrdiff_t i, std::ptrdiff_t j) const {
        return elements[i * columns + j];
    }
    PackMatrix<W, N> matrix() { return {elements, columns}; }
};

// A right-hand side or solution in lanes.
template <class V, class N>
struct LoadedVector {
    V elements[largestSize<N>];

    V& operator()(std::ptrdiff_t i) { return elements[i]; }
    const V& operator()(std::ptrdiff_t i) const { return elements[i]; }

    template <class Operand>
    void load(const Operand& operand, std::ptrdiff_t first, int live, N n) {
        loadLanes(operand, first, live, Fixed<1>(), n, PackMatrix<V, N>{elements, n});
    }
    template <class Operand>
    void store(const Operand& operand, std::ptrdiff_t first, int live, N n) {
        storeLanes(operand, first, live, Fixed<1>(), n, PackMatrix<V, N>{elements, n});
    }
};

// Object n of an operand of vectors, where it lies.
template <class Operand>
auto vectorOf(const Operand& operand, std::ptrdiff_t n, std::ptrdiff_t length) {
    return OnlyRow{operand.object(n, length)};
}

// Which systems may be read before the first solution is written.
template <class Matrix, class B, class X>
auto guardOfSystems(const Matrix& matrix, Extent extent, Sharing withMatrix, const B& b,
                    Sharing withB, const X& x, std::ptrdiff_t count) {
    constexpr int lanes = laneCount<LanesOf<typename X::Element>>;
    const Extent solution = {1, extent.columns};
    auto factors = readAheadOf(withMatrix, matrix, extent, x, solution, count, lanes);
    if (std::max(extent.rows, extent.columns) > mostLaneSize) factors.allowNever();
    return AllOf(factors, readAheadOf(withB, b, {1, extent.rows}, x, solution, count, lanes));
}

} // namespace qorm::factorisations
