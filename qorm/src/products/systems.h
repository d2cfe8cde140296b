// What products of matrices and vectors are made of: the operands of a call, and the orders of sums.
#pragma once

#include "frame/loaded.h"
#include "frame/overlap.h"
#include "frame/summation.h"

namespace qorm::products {

// How sums are made: from left to right; squares of 4 to 6 with four terms in pairs; others in blocks.
enum class Sums { chain, pairs, blocks };

// Whether a size is ever summed so.
template <Sums sums, class N>
inline constexpr bool hasSums = sums == Sums::chain || hasOwnPath<N> == (sums == Sums::pairs);

// The matrices of a call as the shape's letter reads them. What is added to the products, if anything,
// is `addend`.
template <Kind matrixKind, class Matrix, class X, class Addend, class D>
struct Systems {
    static constexpr Kind kind = matrixKind;
    static constexpr bool hasMatrices = Matrix::holdsArray;
    static constexpr bool hasContiguousRows = Matrix::hasContiguousRows && D::hasContiguousRows;
    using T = typename D::Element;

    Matrix matrix;
    Extent stored;
    X x;
    Addend addend;
    D dst;

    std::ptrdiff_t rows() const { return isTransposed(kind) ? stored.columns : stored.rows; }
    std::ptrdiff_t terms() const { return isTransposed(kind) ? stored.rows : stored.columns; }
    auto matrixOf(std::ptrdiff_t n) const { return asRead<kind>(matrix.object(n, stored.columns)); }
};

// In place of an addend.
struct Nothing {};

template <class Addend>
inline constexpr bool isAdded = !std::is_same_v<Addend, Nothing>;

// What is read of each object: work(spans...).
template <class S, class Work>
auto withReads(const S& s, const Work& work) {
    const Spans matrix = spansOf(s.matrix, s.stored.rows, s.stored.columns);
    const Spans x = spansOf(s.x, 1, s.terms());
    if constexpr (isAdded<decltype(s.addend)>)
        return work(matrix, x, spansOf(s.addend, 1, s.rows()));
    else
        return work(matrix, x);
}

// A number, or one in each lane.
template <Sums sums, class V, class Term, class N>
[[gnu::always_inline]] inline V sumInLanes(const Term& p, N terms) {
    if constexpr (sums == Sums::pairs && largestSize<N> != 3)
        return sumOfPairs<V>(p, terms);
    else if constexpr (sums == Sums::blocks)
        return sumOfBlocksOf8<V>(p, terms);
    else
        return sumOfChain<hasOwnPath<N>, V>(p, terms);
}

} // namespace qorm::products
