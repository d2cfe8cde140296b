// What the three solvers share: which systems may be solved together.
#pragma once

#include "factorisations/objects.h"

namespace qorm::factorisations {

// Which systems may be read before the first solution is written.
template <class Matrix, class B, class X>
auto guardOfSystems(const Matrix& matrix, Extent extent, Sharing withMatrix, const B& b,
                    Sharing withB, const X& x, std::ptrdiff_t count) {
    constexpr int lanes = mostLanes<typename X::Element>;
    const Extent solution = {1, extent.columns};
    auto factors = readAheadOf(withMatrix, matrix, extent, x, solution, count, lanes);
    if (std::max(extent.rows, extent.columns) > mostLaneSize) factors.allowNever();
    return AllOf(factors, readAheadOf(withB, b, {1, extent.rows}, x, solution, count, lanes));
}

// A block has the lanes of its factors, or two registers where one matrix serves all blocks.
template <class Matrix, class X, class LanesOfFactors>
using LanesOfSystems = std::conditional_t<Matrix::holdsArray, LanesOfFactors,
                                          Pack<typename X::Element, mayFillRegisters<X> ? 2 : 1>>;

// work(n) with a constant for squares whose factors are loaded once if all systems have one matrix: those
// of a size that has a path of its own, and others where no solution is written over the matrix.
template <class Matrix, class X, class Work>
auto withSystemSize(const Matrix& matrix, Extent extent, const X& x, std::ptrdiff_t count,
                    const Work& work) {
    const std::ptrdiff_t n = extent.rows == extent.columns ? extent.rows : 0;
    const auto isApart = [&] {
        return areApart(spansOf(matrix, extent.rows, extent.columns), spansOf(x, 1, extent.columns),
                        count);
    };
    if (Matrix::holdsArray || isUnrolled(n) || isApart()) return withKnownSize<X>(n, work);
    return withStaticSize(n, work);
}

} // namespace qorm::factorisations
