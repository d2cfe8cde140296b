// Products of small square matrices with contiguous rows: a register holds a row.
#pragma once

#include "frame/held_rows.h"
#include "products/shape.h"

namespace qorm::products {

// The stride of adjacent rows as a constant, which saves the registers that hold its multiples.
template <std::ptrdiff_t n, class T>
StridedMatrix<T, true> withAdjacentRows(const StridedMatrix<T, true>& matrix) {
    return {matrix.base, n * std::ptrdiff_t{sizeof(T)}, matrix.stride2};
}
template <std::ptrdiff_t n, class Matrix>
Transposed<Matrix> withAdjacentRows(const Transposed<Matrix>& matrix) {
    return {withAdjacentRows<n>(matrix.matrix)};
}

// One product. The second operand is read before the first element is written.
template <int n, class A, class B, class D>
[[gnu::always_inline]] inline void multiplyRows(const A& a, const B& b, const D& d) {
    using T = typename std::remove_cvref_t<decltype(d(0, 0))>::Value;
    const HeldRows<T, n> second(b);
    for (int i = 0; i < n; ++i) {
        auto sums = T(a(i, 0)) * second.rows[0];
        if constexpr (!beginsWithProduct(n)) sums += T(0);
        for (int k = 1; k < n; ++k) sums += T(a(i, k)) * second.rows[k];
        storeVector<T, lanesFor(n), n>(sums, d(i, 0).address());
    }
}

} // namespace qorm::products
