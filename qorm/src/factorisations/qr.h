// QR factorisation by Householder reflections: R on and above the diagonal, below it the tails of the
// reflectors v, whose first elements are 1.
#pragma once

#include "factorisations/objects.h"
#include "frame/entry.h"

// name, the kind of source and destination, type, layout
#define QORM_QR(name, kind, type, layout) \
    QORM_FUNCTION_##kind##_##layout(name, qorm::factorisations::formOfQr(qorm::Layout::layout), \
                                    QORM_ON_OBJECTS(qorm::factorisations::factoriseQr), \
                                    QORM_QR_ARGUMENTS, QORM_TYPE_##type, kind)

#define QORM_QR_ARGUMENTS(PART, access, T, kind) \
    PART##_##kind##_##access(const T, Src, src), PART##_columnBuffer(T), \
        PART##_##kind##_##access(T, Dst, dst), PART##_width_height_##kind

namespace qorm::factorisations {

using QrMeasure = std::uint32_t(std::uint32_t width, std::uint32_t height, std::uint32_t count);

inline std::uint32_t measureOfQr(std::uint32_t w, std::uint32_t h, std::uint32_t c) {
    return 2 * w * h * c;
}

// No more unknowns than equations.
inline bool isOverdetermined(std::uint32_t width, std::uint32_t height, std::uint32_t /*count*/) {
    return width <= height;
}

// Sizes are tested for themselves before the strides, and against each other at the end.
inline constexpr CheckOrder orderOfQr = {Check::null,   Check::count, Check::size,
                                         Check::stride, Check::shift, Check::match};

constexpr Form<QrMeasure> formOfQr(Layout layout) {
    const std::int32_t threshold = layout == Layout::S ? 2801 : 1801;
    return {.checks = orderOfQr,
            .measure = measureOfQr,
            .contiguousThreshold = threshold,
            .generalThreshold = threshold,
            .sizesMatch = isOverdetermined};
}

// The last column of a square matrix is not reduced.
constexpr std::ptrdiff_t reflectorsOf(std::ptrdiff_t width, std::ptrdiff_t height) {
    return width == height ? width - 1 : width;
}

// In place, one reflector after the other, each in `v` first. Returns qorStatusDivideByZero before
// the first column, of a matrix in any lane, that is too small.
template <class V, class A, class Reflector, class Width, class Height>
qorStatus reduce(const A& a, const Reflector& v, Width width, Height height) {
    for (std::ptrdiff_t k = 0; k < reflectorsOf(width, height); ++k) {
        V sigma(0);
        for (std::ptrdiff_t i = k; i < height; ++i) sigma = sigma + V(a(i, k)) * V(a(i, k));
        if (any(epsilon<V>() > sigma)) return qorStatusDivideByZero;

        const V diagonal = V(a(k, k));
        const V root = sqrt(sigma);
        const V q = V(1) / (diagonal + select(diagonal > V(0), root, -root));
        v(k) = V(1);
        V norm(1);
        for (std::ptrdiff_t i = k + 1; i < height; ++i) {
            const V element = V(a(i, k)) * q;
            v(i) = element;
            norm = norm + element * element;
        }
        const V scale = V(-2) / norm;

        // A ← A + scale·v·(vᵀA), on column k too: it leaves R(k,k) there, and noise below it.
        for (std::ptrdiff_t j = k; j < width; ++j) {
            V s = V(a(k, j));
            for (std::ptrdiff_t i = k + 1; i < height; ++i) s = s + V(a(i, j)) * V(v(i));
            s = s * scale;
            for (std::ptrdiff_t i = k; i < height; ++i) a(i, j) = V(a(i, j)) + V(v(i)) * s;
        }
        for (std::ptrdiff_t i = k + 1; i < height; ++i) a(i, k) = V(v(i));
    }
    return qorStatusOk;
}

// The matrices in the lanes of a block, in place.
template <class V, class Width, class Height>
[[gnu::noinline, gnu::flatten]] qorStatus factoriseQrLanes(const PackMatrix<V, Width> block,
                                                           Width width, Height height) {
    V reflector[largestSize<Height>];
    return reduce<V>(block, PackRun<V>{reflector}, width, height);
}

// Objects first .. first + live - 1. Lanes write nothing if one of them fails; one matrix is worked
// on in the destination, down to the state that a failure leaves.
template <class V, class Src, class T, class Dst, class Width, class Height>
[[gnu::flatten]] qorStatus factoriseQrBlock(const Src src, const Scratch<T> scratch, const Dst dst,
                                            std::ptrdiff_t first, int live, Width width,
                                            Height height) {
    if constexpr (laneCount<V> == 1) {
        const auto from = src.object(first, width);
        const auto to = dst.object(first, width);
        for (std::ptrdiff_t i = 0; i < sizeOfOne(height); ++i) {
            for (std::ptrdiff_t j = 0; j < sizeOfOne(width); ++j) to(i, j) = T(from(i, j));
        }
        return reduce<T>(to, Run<T>{scratch.base}, sizeOfOne(width), sizeOfOne(height));
    } else {
        V elements[areaOf<Width>];
        const PackMatrix<V, Width> work = {elements, width};
        loadLanes(src, first, live, height, width, work);
        if (const qorStatus status = factoriseQrLanes(work, width, height)) return status;
        storeLanes(dst, first, live, height, width, work);
        return qorStatusOk;
    }
}

template <class Src, class T, class Dst>
qorStatus factoriseQr(const Src& src, const Scratch<T>& scratch, const Dst& dst, Size width,
                      Size height, Count count = Count(1)) {
    const Extent extent = {height.value, width.value};
    const auto guard = [&] { return guardOf(Sharing::places, src, dst, extent, count.value); };
    return withKnownSquare<Src>(extent.columns, extent.rows, [&](auto columns, auto rows) {
        return onAllObjects<LanesOf<Src, decltype(rows), hasOwnPath<decltype(rows)> ? 2 : 1>,
                            Src::holdsArray>(
            guard, count.value, [&]<class V>(std::ptrdiff_t first, int live) {
                return factoriseQrBlock<V>(src, scratch, dst, first, live, columns, rows);
            });
    });
}

} // namespace qorm::factorisations
