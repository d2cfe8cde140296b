// Sums and differences of vectors, and of vectors and a constant: dst[i] = a[i] ± b[i], each operand
// a vector, an array or a constant.
#pragma once

#include "elementwise/vectors.h"

#include <functional>

// name, Add or Sub, the operands' kinds, the destination's kind, type, layout
#define QORM_VECTOR_SUM(name, sign, first, second, result, type, layout) \
    QORM_FUNCTION_##result##_##layout( \
        name, \
        (qorm::sums::formOfVectors(qorm::Kind::first, qorm::Kind::second, \
                                   sizeof(QORM_TYPE_##type), qorm::Layout::layout)), \
        (qorm::sums::runVectors<qorm::sums::sign##Values, qorm::Kind::first, qorm::Kind::second>), \
        QORM_VECTOR_SUM_ARGUMENTS, QORM_TYPE_##type, first, second, result)

#define QORM_VECTOR_SUM_ARGUMENTS(PART, access, T, first, second, result) \
    PART##_##first##_##access(const T, Src1, src1), \
        PART##_##second##_##access(const T, Src2, src2), PART##_##result##_##access(T, Dst, dst), \
        PART##_len_##result

// name, AddConstant, SubConstant or SubFromConstant, the source's kind, type, layout
#define QORM_CONSTANT_SUM(name, operation, kind, type, layout) \
    QORM_FUNCTION_##kind##_##layout( \
        name, \
        (qorm::sums::formWithConstant<qorm::sums::operation>( \
            qorm::Kind::kind, sizeof(QORM_TYPE_##type), qorm::Layout::layout)), \
        (qorm::sums::runWithConstant<qorm::sums::operation, qorm::Kind::kind>), \
        QORM_CONSTANT_SUM_ARGUMENTS, QORM_TYPE_##type, kind)

#define QORM_CONSTANT_SUM_ARGUMENTS(PART, access, T, kind) \
    PART##_##kind##_##access(const T, Src, src), PART##_constant(T, val), \
        PART##_##kind##_##access(T, Dst, dst), PART##_len_##kind

namespace qorm::sums {

using AddValues = std::plus<>;
using SubValues = std::minus<>;

struct AddConstant {
    template <class V, class T>
    static auto of(V a, T constant) {
        return a + constant;
    }
};
struct SubConstant {
    template <class V, class T>
    static auto of(V a, T constant) {
        return a - constant;
    }
};
struct SubFromConstant {
    template <class V, class T>
    static auto of(V a, T constant) {
        return constant - a;
    }
};

using elementwise::VectorMeasure;

constexpr std::int32_t thresholdOfVectors(std::size_t elementSize, Layout layout) {
    return layout == Layout::L && elementSize == 4 ? 40001 : 20001;
}

// An array with a single second vector tests its count last. 64f differences of a single vector and
// an array in pointer layout stay on the calling thread.
constexpr Form<VectorMeasure> formOfVectors(Kind first, Kind second, std::size_t elementSize,
                                            Layout layout) {
    const bool withSingle = isArray(first) != isArray(second);
    CheckOrder checks = elementwise::usualChecks;
    if (!isArray(first) && !isArray(second)) {
        checks = elementwise::checksOfSingles;
    } else if (!isArray(second)) {
        checks =
            layout == Layout::L
                ? CheckOrder{Check::null, Check::size, Check::stride, Check::shift, Check::count}
                : CheckOrder{Check::null, Check::size, Check::stride, Check::count, Check::shift};
    }
    const std::int32_t threshold = thresholdOfVectors(elementSize, layout);
    return {.checks = checks,
            .measure = withSingle ? elementwise::measureWithSingle : elementwise::measureOfThree,
            .contiguousThreshold = threshold,
            .generalThreshold = threshold,
            .fansOut =
                !(!isArray(first) && isArray(second) && layout == Layout::P && elementSize == 8)};
}

// The measure of a constant less an array has no regard to the length.
inline std::uint32_t measureOfConstantFirst(std::uint32_t /*len*/, std::uint32_t c) {
    return 2 * c + 1;
}

template <class Operation>
constexpr Form<VectorMeasure> formWithConstant(Kind kind, std::size_t elementSize, Layout layout) {
    const std::int32_t threshold = thresholdOfVectors(elementSize, layout);
    return {.checks = isArray(kind) ? elementwise::usualChecks : elementwise::checksOfSingles,
            .measure = std::is_same_v<Operation, SubFromConstant> ? measureOfConstantFirst
                                                                  : elementwise::measureWithSingle,
            .contiguousThreshold = threshold,
            .generalThreshold = threshold};
}

// Paths of their own at lengths 3 to 6, which hold a single vector: arrays by strides, but for the
// differences of a single vector and an array of 64f.
template <Kind first, class D>
inline constexpr bool holdsSingle = D::layout == Layout::S &&
                                    (isArray(first) || sizeof(typename D::Element) == 4);

template <class Sign, Kind first, Kind second, class A, class B, class D>
qorStatus runVectors(const A& src1, const B& src2, const D& dst, Size len, Count count = Count(1)) {
    return elementwise::combineVectors<holdsSingle<first, D>>(Sign(), dst, len, count,
                                                              elementwise::sourceOf<first>(src1),
                                                              elementwise::sourceOf<second>(src2));
}

template <class Operation, Kind kind, class A, class T, class D>
qorStatus runWithConstant(const A& src, const Constant<T>& constant, const D& dst, Size len,
                          Count count = Count(1)) {
    const auto op = [c = constant.value](auto a) { return Operation::of(a, c); };
    return elementwise::combine(op, dst, len.value, Fixed<1>(), count.value,
                                elementwise::sourceOf<kind>(src));
}

} // namespace qorm::sums
