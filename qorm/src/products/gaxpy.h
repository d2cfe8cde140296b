// One matrix times each vector, plus a vector: dst(i) = (Σₖ A(i,k)·x(k)) + y(i). What is added comes last.
//
// Squares of 3 to 6 read all of an object before they write any of it; other shapes read y(i) when
// the sum stands in dst(i).
#pragma once

#include "products/matrix_vector.h"

// name, the kind of the vectors, type, layout
#define QORM_GAXPY(name, vectors, type, layout) \
    QORM_REORDERED_##vectors##_##layout(name, qorm::products::formOfGaxpy(), \
                                        qorm::products::updateVectors, QORM_GAXPY_ARGUMENTS, \
                                        QORM_GAXPY_CORE_ARGUMENTS, QORM_TYPE_##type, vectors)

#define QORM_GAXPY_ARGUMENTS(PART, access, T, vectors) \
    PART##_m_##access(const T, Src1, src1), PART##_lateSizes_1, \
        PART##_##vectors##_##access(const T, Src2, src2), PART##_checkedLen(src2), \
        PART##_##vectors##_##access(const T, Src3, src3), PART##_checkedLen(src3), \
        PART##_##vectors##_##access(T, Dst, dst) PART##_count_##vectors

#define QORM_GAXPY_CORE_ARGUMENTS(PART, access, T, vectors) \
    PART##_m_##access(const T, Src1, src1), PART##_##vectors##_##access(const T, Src2, src2), \
        PART##_##vectors##_##access(const T, Src3, src3), \
        PART##_##vectors##_##access(T, Dst, dst), PART##_width_height_1 PART##_count_##vectors

namespace qorm::products {

using GaxpyMeasure = std::uint32_t(std::uint32_t width, std::uint32_t height, std::uint32_t len2,
                                   std::uint32_t len3, std::uint32_t count);

// The matrix does not count.
inline std::uint32_t measureOfGaxpy(std::uint32_t /*w*/, std::uint32_t /*h*/, std::uint32_t len2,
                                    std::uint32_t len3, std::uint32_t c) {
    return (len2 + 2 * len3) * c;
}

inline bool bothVectorsFit(std::uint32_t w, std::uint32_t h, std::uint32_t len2, std::uint32_t len3,
                           std::uint32_t /*count*/) {
    return w == len2 && h == len3;
}

constexpr Form<GaxpyMeasure> formOfGaxpy() {
    return {.checks = {Check::null, Check::count, Check::size, Check::match, Check::stride,
                       Check::shift},
            .measure = measureOfGaxpy,
            .contiguousThreshold = 5001,
            .generalThreshold = 5001,
            .sizesMatch = bothVectorsFit};
}

template <class Matrix, class X, class D>
qorStatus updateVectors(const Matrix& matrix, const X& x, const X& y, const D& dst, Size width,
                        Size height, Count count = Count(1)) {
    const Systems<Kind::m, Matrix, X, X, D> systems = {
        matrix, {height.value, width.value}, x, y, dst};
    return multiplySystems(systems, count.value);
}

} // namespace qorm::products
