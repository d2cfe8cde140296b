// Solution of R·x = Qᵀ·b from the factors of A = Q·R: that of A·x = b, or of least squares.
#pragma once

#include "factorisations/qr.h"
#include "factorisations/solving.h"
#include "frame/entry.h"

// name, the kinds of the matrix and of the vectors, type, layout
#define QORM_QR_SOLVE(name, matrix, vectors, type, layout) \
    QORM_FUNCTION_##vectors##_##layout( \
        name, qorm::factorisations::formOfQrSolve(qorm::Kind::matrix, qorm::Layout::layout), \
        QORM_ON_OBJECTS(qorm::factorisations::solveQr), QORM_QR_SOLVE_ARGUMENTS, QORM_TYPE_##type, \
        matrix, vectors)

#define QORM_QR_SOLVE_ARGUMENTS(PART, access, T, matrix, vectors) \
    PART##_##matrix##_##access(const T, Src1, src1), PART##_columnBuffer(T), \
        PART##_##vectors##_##access(const T, Src2, src2), \
        PART##_##vectors##_##access(T, Dst, dst), PART##_width_height_##vectors

namespace qorm::factorisations {

inline std::uint32_t measureOfQrSolve(std::uint32_t w, std::uint32_t h, std::uint32_t c) {
    return (w * (h + 1) + h) * c;
}
inline std::uint32_t measureOfSharedQrSolve(std::uint32_t w, std::uint32_t h, std::uint32_t c) {
    return w * h + (w + h) * c;
}

constexpr Form<QrMeasure> formOfQrSolve(Kind matrix, Layout layout) {
    Form<QrMeasure> form = formOfQr(layout);
    form.measure = isArray(matrix) ? measureOfQrSolve : measureOfSharedQrSolve;
    return form;
}

// -β of H = I - β·v·vᵀ, from the tail of v that column k holds.
template <class W, class A, class Height>
W reflectorScale(const A& a, std::ptrdiff_t k, Height height) {
    W norm(1);
    for (std::ptrdiff_t i = k + 1; i < height; ++i) norm = norm + W(a(i, k)) * W(a(i, k));
    return W(-2) / norm;
}

// The factors of one matrix, or of a pack of them, whose scales are computed when they are asked for.
template <class W, class A, class Height>
struct Factors {
    A a;
    Height height;

    decltype(auto) operator()(std::ptrdiff_t i, std::ptrdiff_t j) const { return a(i, j); }
    W scale(std::ptrdiff_t k) const { return reflectorScale<W>(a, k, height); }
};

// The factors of a square matrix with its scales.
template <class T, class N>
struct FactorsAndScales : Loaded<T, N> {
    LoadedVector<T, N> scales;

    template <class Matrix>
    FactorsAndScales(const Matrix& matrix, N n) : Loaded<T, N>(n) {
        loadLanes(matrix, 0, 1, n, n, this->matrix());
        for (std::ptrdiff_t k = 0; k < n - 1; ++k) scales(k) = reflectorScale<T>(*this, k, n);
    }

    T scale(std::ptrdiff_t k) const { return scales(k); }
};

// t ← Qᵀ·t, one reflector after the other.
template <class V, class QrFactors, class Column, class Width, class Height>
void reflect(const QrFactors& factors, Column& t, Width width, Height height) {
    for (std::ptrdiff_t k = 0; k < reflectorsOf(width, height); ++k) {
        V s = V(t(k));
        for (std::ptrdiff_t i = k + 1; i < height; ++i) s = s + V(t(i)) * V(factors(i, k));
        s = s * V(factors.scale(k));
        t(k) = V(t(k)) + s;
        for (std::ptrdiff_t i = k + 1; i < height; ++i) {
            t(i) = V(t(i)) + V(factors(i, k)) * s;
        }
    }
}

// R·x = t. Squares of fixed size subtract each term as it comes, the highest column first, but for
// row 0, which sums them; others sum them, the lowest column first.
template <class V, class R, class Column, class X, class Width>
void substituteBack(const R& r, const Column& t, X& x, Width width) {
    for (std::ptrdiff_t i = width - 1; i >= 0; --i) {
        V remainder = V(t(i));
        if (hasOwnPath<Width> && i > 0) {
            for (std::ptrdiff_t j = width - 1; j > i; --j) {
                remainder = remainder - V(r(i, j)) * V(x(j));
            }
        } else if (hasOwnPath<Width>) {
            V sum = V(r(0, width - 1)) * V(x(width - 1));
            for (std::ptrdiff_t j = width - 2; j > 0; --j) sum = sum + V(r(0, j)) * V(x(j));
            remainder = remainder - sum;
        } else {
            V sum(0);
            for (std::ptrdiff_t j = i + 1; j < width; ++j) sum = sum + V(r(i, j)) * V(x(j));
            remainder = remainder - sum;
        }
        x(i) = remainder / V(r(i, i));
    }
}

template <class V, class QrFactors, class Column, class X, class Width, class Height>
void solveFactored(const QrFactors& factors, Column& t, X& x, Width width, Height height) {
    reflect<V>(factors, t, width, height);
    substituteBack<V>(factors, t, x, width);
}

// The systems in the lanes of a block.
template <class V, class Width, class Height>
void solveLanes(const Loaded<V, Width>& a, LoadedVector<V, Height>& column,
                LoadedVector<V, Width>& solution, Width width, Height height) {
    solveFactored<V>(Factors<V, const Loaded<V, Width>&, Height>{a, height}, column, solution,
                     width, height);
}

// Systems first .. first + live - 1. `shared` holds the factors of all systems if there is but one
// matrix of a fixed size.
template <class V, class Matrix, class T, class B, class X, class Width, class Height, class Shared>
[[gnu::flatten]] qorStatus solveQrBlock(const Matrix matrix, const Scratch<T> scratch, const B b,
                                        const X x, std::ptrdiff_t first, int live, Width width,
                                        Height height, const Shared& shared) {
    if constexpr (laneCount<V> == 1 && !hasOwnPath<Width>) {
        const Run<T> column = {scratch.base};
        const auto right = vectorOf(b, first, height);
        for (std::ptrdiff_t i = 0; i < height; ++i) column(i) = T(right(i));
        const auto a = matrix.object(first, width);
        const auto solution = vectorOf(x, first, width);
        const auto columns = sizeOfOne(width);
        const auto rows = sizeOfOne(height);
        solveFactored<T>(Factors<T, decltype(a), decltype(rows)>{a, rows}, column, solution,
                         columns, rows);
    } else {
        LoadedVector<V, Height> column;
        LoadedVector<V, Width> solution;
        column.load(b, first, live, height);
        if constexpr (!Matrix::holdsArray && isFixed<Width>) {
            solveFactored<V>(shared, column, solution, width, height);
        } else if constexpr (!Matrix::holdsArray) {
            const auto a = matrix.object(0, width);
            solveFactored<V>(Factors<T, decltype(a), Height>{a, height}, column, solution, width,
                             height);
        } else {
            Loaded<V, Width> a(width);
            loadLanes(matrix, first, live, height, width, a.matrix());
            runFor<solveLanes<V, Width, Height>>(matrix, a, column, solution, width, height);
        }
        solution.store(x, first, live, width);
    }
    return qorStatusOk;
}

template <class Matrix, class T, class B, class X>
qorStatus solveQr(const Matrix& matrix, const Scratch<T>& scratch, const B& b, const X& x,
                  Size width, Size height, Count count = Count(1)) {
    const Extent extent = {height.value, width.value};
    const bool isSquare = extent.rows == extent.columns;
    const auto guard = [&] {
        return guardOfSystems(matrix, extent, sharingOf(isSquare ? extent.rows : 0, Sharing::none),
                              b, Sharing::any, x, count.value);
    };
    const auto solveSized = [&](auto columns, auto rows) {
        const auto solveAll = [&](const auto& shared) {
            return onAllObjects<LanesOfSystems<Matrix, X, LanesOf<X, decltype(rows)>>,
                                X::holdsArray>(
                guard, count.value, [&]<class V>(std::ptrdiff_t first, int live) {
                    return solveQrBlock<V>(matrix, scratch, b, x, first, live, columns, rows,
                                           shared);
                });
        };
        if constexpr (!Matrix::holdsArray && isFixed<decltype(rows)>)
            return solveAll(FactorsAndScales<T, decltype(rows)>(matrix, rows));
        else
            return solveAll(nullptr);
    };
    return withSystemSize(matrix, extent, x, count.value, [&](auto n) {
        if constexpr (isFixed<decltype(n)>)
            return solveSized(n, n);
        else
            return solveSized(extent.columns, extent.rows);
    });
}

} // namespace qorm::factorisations
