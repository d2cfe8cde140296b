// Solution of A·x = b from L and the reciprocals of its diagonal: nothing is divided.
#pragma once

#include "factorisations/solving.h"
#include "frame/entry.h"

// name, the kinds of the matrix and of the vectors, type, layout
#define QORM_CHOLESKY_SOLVE(name, matrix, vectors, type, layout) \
    QORM_FUNCTION_##vectors##_##layout(name, \
                                       (qorm::factorisations::formOfCholeskySolve( \
                                           qorm::Kind::matrix, qorm::Kind::vectors, \
                                           sizeof(QORM_TYPE_##type), qorm::Layout::layout)), \
                                       QORM_ON_OBJECTS(qorm::factorisations::solveCholesky), \
                                       QORM_CHOLESKY_SOLVE_ARGUMENTS, QORM_TYPE_##type, matrix, \
                                       vectors)

#define QORM_CHOLESKY_SOLVE_ARGUMENTS(PART, access, T, matrix, vectors) \
    PART##_##matrix##_##access(const T, Src1, src1), \
        PART##_##vectors##_##access(const T, Src2, src2), \
        PART##_##vectors##_##access(T, Dst, dst), PART##_widthHeight_##vectors

namespace qorm::factorisations {

// x = L⁻ᵀ·(L⁻¹·b). Both sweeps multiply by what the diagonal holds.
template <class V, class D, class B, class X, class N>
void substituteCholesky(const D& d, const B& b, X& x, N n) {
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        V s = V(b(i));
        for (std::ptrdiff_t j = 0; j < i; ++j) s = s - V(d(i, j)) * V(x(j));
        x(i) = s * V(d(i, i));
    }
    for (std::ptrdiff_t i = n - 1; i >= 0; --i) {
        V s = V(x(i));
        for (std::ptrdiff_t j = n - 1; j > i; --j) s = s - V(d(j, i)) * V(x(j));
        x(i) = s * V(d(i, i));
    }
}

template <class V, class N>
void substituteLanes(const Loaded<V, N>& factors, LoadedVector<V, N>& x, N n) {
    substituteCholesky<V>(factors, x, x, n);
}

template <class W, class Matrix, class N>
Loaded<W, N> loadLowerTriangle(const Matrix& matrix, std::ptrdiff_t first, int live, N n) {
    Loaded<W, N> factors(n);
    loadLanes<Part::lowerTriangle>(matrix, first, live, n, n, factors.matrix());
    return factors;
}

// Systems first .. first + live - 1. `shared` holds the factors of all systems if there is but one
// matrix of a fixed size.
template <class V, class Matrix, class B, class X, class N, class Shared>
[[gnu::flatten]] qorStatus solveCholeskyBlock(const Matrix matrix, const B b, const X x,
                                              std::ptrdiff_t first, int live, N n,
                                              const Shared& shared) {
    if constexpr (laneCount<V> == 1 && !hasOwnPath<N>) {
        auto solution = vectorOf(x, first, n);
        substituteCholesky<V>(matrix.object(first, n), vectorOf(b, first, n), solution,
                              sizeOfOne(n));
    } else {
        LoadedVector<V, N> solution;
        solution.load(b, first, live, n);
        if constexpr (!Matrix::holdsArray && isFixed<N>) {
            substituteCholesky<V>(shared, solution, solution, n);
        } else if constexpr (!Matrix::holdsArray) {
            substituteCholesky<V>(matrix.object(0, n), solution, solution, n);
        } else {
            const Loaded<V, N> factors = loadLowerTriangle<V>(matrix, first, live, n);
            runFor<substituteLanes<V, N>>(matrix, factors, solution, n);
        }
        solution.store(x, first, live, n);
    }
    return qorStatusOk;
}

template <class Matrix, class B, class X>
qorStatus solveCholesky(const Matrix& matrix, const B& b, const X& x, Size size,
                        Count count = Count(1)) {
    using T = typename X::Element;
    const std::ptrdiff_t n = size.value;
    const auto guard = [&] {
        return guardOfSystems(matrix, {n, n}, sharingOf(n, Sharing::none), b,
                              sharingOf(n, Sharing::places), x, count.value);
    };
    return withSystemSize(matrix, {n, n}, x, count.value, [&](auto fixed) {
        const auto solveAll = [&](const auto& shared) {
            return onAllObjects<LanesOfSystems<Matrix, X, LanesOf<X, decltype(fixed)>>,
                                X::holdsArray>(
                guard, count.value, [&]<class V>(std::ptrdiff_t first, int live) {
                    return solveCholeskyBlock<V>(matrix, b, x, first, live, fixed, shared);
                });
        };
        if constexpr (!Matrix::holdsArray && isFixed<decltype(fixed)>)
            return solveAll(loadLowerTriangle<T>(matrix, 0, 1, fixed));
        else
            return solveAll(nullptr);
    });
}

using CholeskySolveMeasure = std::uint32_t(std::uint32_t n, std::uint32_t count);

inline std::uint32_t measureOfCholeskySolve(std::uint32_t n, std::uint32_t c) {
    return n * (n + 2) * c;
}
inline std::uint32_t measureOfSharedCholeskySolve(std::uint32_t n, std::uint32_t c) {
    return (n + 2 * c) * n;
}

struct CholeskySolveForm : Form<CholeskySolveMeasure> {
    // A single system in pointer layout is solved in the entry.
    template <class T>
    std::optional<qorStatus> answer(const Pointers<const T, false>& matrix,
                                    const Pointers<const T, false>& b, const Pointers<T, false>& x,
                                    Size n) const {
        return solveCholesky(matrix, b, x, n);
    }
};

constexpr CholeskySolveForm formOfCholeskySolve(Kind matrix, Kind vectors, std::size_t elementSize,
                                                Layout layout) {
    constexpr CheckOrder usual = {Check::null, Check::count, Check::size, Check::stride,
                                  Check::shift};
    constexpr CheckOrder stridesFirst = {Check::null, Check::stride, Check::shift, Check::size,
                                         Check::count};
    const bool is32f = elementSize == 4;
    if (isArray(matrix)) {
        const bool staysLonger = is32f ? layout == Layout::S : layout == Layout::P;
        const std::int32_t threshold = staysLonger ? 2051 : 1701;
        return {{.checks = usual,
                 .measure = measureOfCholeskySolve,
                 .contiguousThreshold = threshold,
                 .generalThreshold = layout == Layout::P ? threshold : 1701}};
    }
    const std::int32_t threshold = is32f && layout == Layout::S ? 1201 : 721;
    return {{.checks = isArray(vectors) && layout == Layout::L ? stridesFirst : usual,
             .measure = measureOfSharedCholeskySolve,
             .contiguousThreshold = threshold,
             .generalThreshold = threshold}};
}

} // namespace qorm::factorisations
