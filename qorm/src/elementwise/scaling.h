// Products by a constant: dst(i,j) = A(i,j)·c, of matrices as stored or transposed and of vectors.
#pragma once

#include "elementwise/vectors.h"

// name, the source's kind, the destination's kind, type, layout
#define QORM_SCALED_MATRIX(name, kind, result, type, layout) \
    QORM_FUNCTION_##result##_##layout( \
        name, \
        qorm::scaling::formOfMatrices(qorm::Kind::kind, sizeof(QORM_TYPE_##type), \
                                      qorm::Layout::layout), \
        qorm::scaling::runMatrices<qorm::Kind::kind>, QORM_SCALED_MATRIX_ARGUMENTS, \
        QORM_TYPE_##type, kind, result)

#define QORM_SCALED_MATRIX_ARGUMENTS(PART, access, T, kind, result) \
    PART##_##kind##_##access(const T, Src, src), PART##_constant(T, val), \
        PART##_##result##_##access(T, Dst, dst), PART##_width_height_##result

// name, the kind of source and destination, type, layout
#define QORM_SCALED_VECTOR(name, kind, type, layout) \
    QORM_FUNCTION_##kind##_##layout( \
        name, qorm::scaling::formOfVectors(qorm::Kind::kind, qorm::Layout::layout), \
        qorm::scaling::runVectors<qorm::Kind::kind>, QORM_SCALED_VECTOR_ARGUMENTS, \
        QORM_TYPE_##type, kind)

#define QORM_SCALED_VECTOR_ARGUMENTS(PART, access, T, kind) \
    PART##_##kind##_##access(const T, Src, src), PART##_constant(T, val), \
        PART##_##kind##_##access(T, Dst, dst), PART##_len_##kind

namespace qorm::scaling {

using MatrixMeasure = std::uint32_t(std::uint32_t width, std::uint32_t height, std::uint32_t count);

inline std::uint32_t measureOfMatrices(std::uint32_t w, std::uint32_t h, std::uint32_t c) {
    return 2 * w * h * c;
}

constexpr Form<MatrixMeasure> formOfMatrices(Kind kind, std::size_t elementSize, Layout layout) {
    const bool leavesSooner = layout == Layout::L && elementSize == 4;
    const std::int32_t threshold = layout == Layout::P ? 17001 : 35001;
    return {.checks = isArray(kind) ? elementwise::usualChecks : elementwise::checksOfSingles,
            .measure = measureOfMatrices,
            .contiguousThreshold = threshold,
            .generalThreshold = leavesSooner ? 15001 : threshold};
}

constexpr Form<elementwise::VectorMeasure> formOfVectors(Kind kind, Layout layout) {
    const std::int32_t general = layout == Layout::P ? 9217 : 18433;
    return {.checks = isArray(kind) ? elementwise::usualChecks : elementwise::checksOfSingles,
            .measure = elementwise::measureOfTwo,
            .contiguousThreshold = layout == Layout::S ? 36865 : general,
            .generalThreshold = general};
}

template <class T>
auto timesConstant(const Constant<T>& constant) {
    return [c = constant.value](auto a) { return a * c; };
}

template <Kind kind, class A, class T, class D>
qorStatus runMatrices(const A& src, const Constant<T>& constant, const D& dst, Size width,
                      Size height, Count count = Count(1)) {
    return elementwise::combine(timesConstant(constant), dst, width.value, height.value,
                                count.value, elementwise::sourceOf<kind>(src));
}

template <Kind kind, class A, class T, class D>
qorStatus runVectors(const A& src, const Constant<T>& constant, const D& dst, Size len,
                     Count count = Count(1)) {
    return elementwise::combine(timesConstant(constant), dst, len.value, Fixed<1>(), count.value,
                                elementwise::sourceOf<kind>(src));
}

} // namespace qorm::scaling
