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

} // namespace qorm::factorisations
