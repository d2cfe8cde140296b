// Solution of A·x = b from the factors of P·A = L·U, whose rows were not moved.
#pragma once

#include "factorisations/lu.h"
#include "factorisations/solving.h"
#include "frame/entry.h"

// name, the kinds of the matrix and of the vectors, type, layout
#define QORM_LU_SOLVE(name, matrix, vectors, type, layout) \
    QORM_FUNCTION_##vectors##_##layout(name, \
                                       qorm::factorisations::formOfLuSolve(qorm::Kind::matrix), \
                                       QORM_ON_OBJECTS(qorm::factorisations::solveLu), \
                                       QORM_LU_SOLVE_ARGUMENTS, QORM_TYPE_##type, matrix, vectors)

#define QORM_LU_SOLVE_ARGUMENTS(PART, access, T, matrix, vectors) \
    PART##_##matrix##_##access(const T, Src1, src1), \
        PART##_pivots_##matrix(const std::int32_t, pSrcIndex), \
        PART##_##vectors##_##access(const T, Src2, src2), \
        PART##_##vectors##_##access(T, Dst, dst), PART##_widthHeight_##vectors

namespace qorm::factorisations {

using LuSolveMeasure = std::uint32_t(std::uint32_t n, std::uint32_t count);

inline std::uint32_t measureOfLuSolve(std::uint32_t n, std::uint32_t c) {
    return n * (n + 2) * c;
}
inline std::uint32_t measureOfSharedLuSolve(std::uint32_t n, std::uint32_t c) {
    return (n + 2 * c) * n;
}

constexpr Form<LuSolveMeasure> formOfLuSolve(Kind matrix) {
    return {.checks = {Check::null, Check::count, Check::size, Check::stride, Check::shift},
            .measure = isArray(matrix) ? measureOfLuSolve : measureOfSharedLuSolve,
            .contiguousThreshold = 1701,
            .generalThreshold = 1701};
}

// The factors and right-hand sides of one matrix as its index orders their rows.
template <class Matrix>
struct OrderedRows {
    Matrix matrix;
    Run<const std::int32_t> index;

    decltype(auto) operator()(std::ptrdiff_t i, std::ptrdiff_t j) const {
        return matrix(std::int32_t{index(i)}, j);
    }
};
template <class Vector>
struct OrderedElements {
    Vector vector;
    Run<const std::int32_t> index;

    decltype(auto) operator()(std::ptrdiff_t i) const { return vector(std::int32_t{index(i)}); }
};
template <class Matrix>
OrderedRows(Matrix, Run<const std::int32_t>) -> OrderedRows<Matrix>;
template <class Vector>
OrderedElements(Vector, Run<const std::int32_t>) -> OrderedElements<Vector>;

// Element i in the order of the index, where each lane has an index of its own.
template <class V, class Elements, class N>
V inOrder(const Elements& elements, const LoadedVector<V, N>& index, std::ptrdiff_t i, N n) {
    V chosen = elements(0);
    for (std::ptrdiff_t k = 1; k < n; ++k) {
        assignWhere(index(i) == V(static_cast<LaneType<V>>(k)), chosen, V(elements(k)));
    }
    return chosen;
}

// Fixed sizes: each term is subtracted as it comes, the highest column first, and the reciprocals of
// the pivots are multiplied.
template <class V, class Factors, class Reciprocals, class B, class X, class N>
void substituteByTerms(const Factors& lu, const Reciprocals& reciprocals, const B& b, X& x, N n) {
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        V s = V(b(i));
        for (std::ptrdiff_t j = i - 1; j >= 0; --j) s = s - V(lu(i, j)) * V(x(j));
        x(i) = s;
    }
    for (std::ptrdiff_t i = n - 1; i >= 0; --i) {
        V s = V(x(i));
        for (std::ptrdiff_t j = n - 1; j > i; --j) s = s - V(lu(i, j)) * V(x(j));
        x(i) = s * V(reciprocals(i));
    }
}

// Other sizes: the terms are summed first, the lowest column first, and the pivots divide.
template <class V, class Factors, class B, class X, class N>
void substituteBySums(const Factors& lu, const B& b, X& x, N n) {
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        V sum(0);
        for (std::ptrdiff_t j = 0; j < i; ++j) sum = sum + V(lu(i, j)) * V(x(j));
        x(i) = V(b(i)) - sum;
    }
    for (std::ptrdiff_t i = n - 1; i >= 0; --i) {
        V sum(0);
        for (std::ptrdiff_t j = i + 1; j < n; ++j) sum = sum + V(lu(i, j)) * V(x(j));
        x(i) = (V(x(i)) - sum) / V(lu(i, i));
    }
}

// Factors with their rows in order, which is kept if they are those of one matrix, and the reciprocals
// of the pivots at fixed sizes.
template <class W, class N>
struct LuFactors : Loaded<W, N> {
    LoadedVector<W, N> reciprocals;
    std::int32_t order[largestSize<N>];

    using Loaded<W, N>::Loaded;

    void invertPivots(N n) {
        for (std::ptrdiff_t i = 0; i < n; ++i) reciprocals(i) = W(1) / (*this)(i, i);
    }
};

template <class V, class Factors, class B, class X, class N>
void substituteLu(const Factors& factors, const B& b, X& x, N n) {
    if constexpr (hasOwnPath<N>)
        substituteByTerms<V>(factors, factors.reciprocals, b, x, n);
    else
        substituteBySums<V>(factors, b, x, n);
}

// The factors of one matrix.
template <class T, class Matrix, class N>
LuFactors<T, N> loadFactors(const Matrix& matrix, Run<const std::int32_t> index, N n) {
    const OrderedRows rows{matrix, index};
    LuFactors<T, N> factors(n);
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        factors.order[i] = index(i);
        for (std::ptrdiff_t j = 0; j < n; ++j) factors.matrix()(i, j) = rows(i, j);
    }
    if constexpr (hasOwnPath<N>) factors.invertPivots(n);
    return factors;
}

// The systems in the lanes of a block, whose factors' rows are where they were stored.
template <class V, class N>
void solveUnorderedLanes(const Loaded<V, N>& unordered, const LoadedVector<V, N>& index,
                         const LoadedVector<V, N>& right, LoadedVector<V, N>& solution, N n) {
    LuFactors<V, N> factors(n);
    LoadedVector<V, N> ordered;
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        for (std::ptrdiff_t j = 0; j < n; ++j) {
            const auto column = [&](std::ptrdiff_t k) { return unordered(k, j); };
            factors.matrix()(i, j) = inOrder<V>(column, index, i, n);
        }
        ordered(i) = inOrder<V>(right, index, i, n);
    }
    if constexpr (hasOwnPath<N>) factors.invertPivots(n);
    substituteLu<V>(factors, ordered, solution, n);
}

// The same where rows are loaded in the order of each lane's index.
template <class V, class N>
void solveOrderedLanes(const Loaded<V, N>& factors, const LoadedVector<V, N>& index,
                       const LoadedVector<V, N>& right, LoadedVector<V, N>& solution, N n) {
    LoadedVector<V, N> ordered;
    for (std::ptrdiff_t i = 0; i < n; ++i) ordered(i) = inOrder<V>(right, index, i, n);
    substituteBySums<V>(factors, ordered, solution, n);
}

// Systems first .. first + live - 1. `shared` holds the factors of all systems if there is but one
// matrix of a fixed size.
template <class V, class Matrix, class B, class X, class N, class Shared>
[[gnu::flatten]] qorStatus solveLuBlock(const Matrix matrix, const Plain<const std::int32_t> pivots,
                                        const B b, const X x, std::ptrdiff_t first, int live, N n,
                                        const Shared& shared) {
    constexpr bool isOneByOne = laneCount<V> == 1;
    if constexpr (isOneByOne && !hasOwnPath<N>) {
        const Run<const std::int32_t> index = pivots.object(first);
        auto solution = vectorOf(x, first, n);
        substituteBySums<V>(OrderedRows{matrix.object(first, n), index},
                            OrderedElements{vectorOf(b, first, n), index}, solution, n);
        return qorStatusOk;
    } else {
        LoadedVector<V, N> right;
        LoadedVector<V, N> solution;
        right.load(b, first, live, n);
        if constexpr (!Matrix::holdsArray || isOneByOne) {
            const Run<const std::int32_t> index = pivots.object(first);
            const OrderedElements ordered{right, index};
            if constexpr (Matrix::holdsArray) {
                substituteLu<V>(loadFactors<V>(matrix.object(first, n), index, n), ordered,
                                solution, n);
            } else if constexpr (isFixed<N>) {
                const Run<const std::int32_t> order = {shared.order};
                substituteLu<V>(shared, OrderedElements{right, order}, solution, n);
            } else {
                substituteLu<V>(OrderedRows{matrix.object(0, n), index}, ordered, solution, n);
            }
        } else {
            LoadedVector<V, N> index;
            loadPivots(pivots, first, live, n, index.elements);
            Loaded<V, N> factors(n);
            if (hasOwnPath<N> || movesRowsInRegisters<N>(matrix)) {
                loadLanes(matrix, first, live, n, n, factors.matrix());
                runFor<solveUnorderedLanes<V, N>>(matrix, factors, index, right, solution, n);
            } else {
                const auto rowOf = [&](int lane, std::ptrdiff_t i) {
                    return static_cast<std::ptrdiff_t>(laneOf(index(i), lane));
                };
                loadLanesInOrder(matrix, first, live, n, rowOf, factors.matrix());
                runFor<solveOrderedLanes<V, N>>(matrix, factors, index, right, solution, n);
            }
        }
        solution.store(x, first, live, n);
        return qorStatusOk;
    }
}

template <class Matrix, class B, class X>
qorStatus solveLu(const Matrix& matrix, const Plain<const std::int32_t>& pivots, const B& b,
                  const X& x, Size size, Count count = Count(1)) {
    using T = typename X::Element;
    const std::ptrdiff_t n = size.value;
    const auto guard = [&] {
        return guardOfSystems(matrix, {n, n}, sharingOf(n, Sharing::none), b,
                              sharingOf(n, Sharing::none), x, count.value);
    };
    return withSystemSize(matrix, {n, n}, x, count.value, [&](auto fixed) {
        const auto solveAll = [&](const auto& shared) {
            return onAllObjects<LanesOfSystems<Matrix, X, LuLanes<X, decltype(fixed)>>,
                                X::holdsArray>(
                guard, count.value, [&]<class V>(std::ptrdiff_t first, int live) {
                    return solveLuBlock<V>(matrix, pivots, b, x, first, live, fixed, shared);
                });
        };
        if constexpr (!Matrix::holdsArray && isFixed<decltype(fixed)>)
            return solveAll(loadFactors<T>(matrix.object(0, n), pivots.object(0), fixed));
        else
            return solveAll(nullptr);
    });
}

} // namespace qorm::factorisations
