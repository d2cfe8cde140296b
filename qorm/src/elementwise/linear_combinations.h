// Saxpy, dst[i] = a[i]·α + b[i], and LComb, dst[i] = a[i]·α + b[i]·β: each product is rounded, then
// the sum.
#pragma once

#include "elementwise/vectors.h"

// name, the operands' kinds, the destination's kind, type, layout
#define QORM_SAXPY(name, first, second, result, type, layout) \
    QORM_FUNCTION_##result##_##layout( \
        name, qorm::combinations::formOfSaxpy(qorm::Kind::first, qorm::Kind::second), \
        (qorm::combinations::runSaxpy<qorm::Kind::first, qorm::Kind::second>), \
        QORM_SAXPY_ARGUMENTS, QORM_TYPE_##type, first, second, result)

#define QORM_SAXPY_ARGUMENTS(PART, access, T, first, second, result) \
    PART##_##first##_##access(const T, Src1, src1), PART##_constant(T, val), \
        PART##_##second##_##access(const T, Src2, src2), PART##_##result##_##access(T, Dst, dst), \
        PART##_len_##result

#define QORM_LCOMB(name, first, second, result, type, layout) \
    QORM_FUNCTION_##result##_##layout( \
        name, \
        qorm::combinations::formOfLComb(qorm::Kind::first, qorm::Kind::second, \
                                        sizeof(QORM_TYPE_##type), qorm::Layout::layout), \
        (qorm::combinations::runLComb<qorm::Kind::first, qorm::Kind::second>), \
        QORM_LCOMB_ARGUMENTS, QORM_TYPE_##type, first, second, result)

#define QORM_LCOMB_ARGUMENTS(PART, access, T, first, second, result) \
    PART##_##first##_##access(const T, Src1, src1), PART##_constant(T, val1), \
        PART##_##second##_##access(const T, Src2, src2), PART##_constant(T, val2), \
        PART##_##result##_##access(T, Dst, dst), PART##_len_##result

namespace qorm::combinations {

using elementwise::VectorMeasure;

constexpr Form<VectorMeasure> formOf(Kind first, Kind second, std::int32_t contiguousThreshold,
                                     std::int32_t generalThreshold) {
    const bool withSingle = isArray(first) != isArray(second);
    const bool isSingle = !isArray(first) && !isArray(second);
    return {.checks = isSingle ? elementwise::checksOfSingles : elementwise::usualChecks,
            .measure = withSingle ? elementwise::measureWithSingle : elementwise::measureOfThree,
            .contiguousThreshold = contiguousThreshold,
            .generalThreshold = generalThreshold};
}

constexpr Form<VectorMeasure> formOfSaxpy(Kind first, Kind second) {
    return formOf(first, second, 40001, 40001);
}

constexpr Form<VectorMeasure> formOfLComb(Kind first, Kind second, std::size_t elementSize,
                                          Layout layout) {
    const bool staysLonger = layout == Layout::L && elementSize == 4;
    return formOf(first, second, staysLonger ? 40001 : 20001, 20001);
}

template <Kind first, Kind second, class A, class T, class B, class D>
qorStatus runSaxpy(const A& src1, const Constant<T>& alpha, const B& src2, const D& dst, Size len,
                   Count count = Count(1)) {
    const auto op = [factor = alpha.value](auto a, auto b) { return a * factor + b; };
    return elementwise::combineVectors<true>(op, dst, len, count,
                                             elementwise::sourceOf<first>(src1),
                                             elementwise::sourceOf<second>(src2));
}

template <Kind first, Kind second, class A, class T, class B, class D>
qorStatus runLComb(const A& src1, const Constant<T>& alpha, const B& src2, const Constant<T>& beta,
                   const D& dst, Size len, Count count = Count(1)) {
    const auto op = [factor1 = alpha.value, factor2 = beta.value](auto a, auto b) {
        return a * factor1 + b * factor2;
    };
    return elementwise::combineVectors<true>(op, dst, len, count,
                                             elementwise::sourceOf<first>(src1),
                                             elementwise::sourceOf<second>(src2));
}

} // namespace qorm::combinations
