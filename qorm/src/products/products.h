// Products of matrices: dst(i,j) = Σ A(i,k)·B(k,j), each operand a matrix or an array, as stored or
// transposed.
#pragma once

#include "frame/entry.h"
#include "products/choice.h"

// name, the operands' kinds, the destination's kind, type, layout
#define QORM_PRODUCT(name, first, second, result, type, layout) \
    QORM_FUNCTION_##result##_##layout( \
        name, \
        (qorm::products::formOf<qorm::Kind::first, qorm::Kind::second>(qorm::Layout::layout)), \
        QORM_ON_OBJECTS(qorm::products::run<qorm::Kind::first, qorm::Kind::second>), \
        QORM_PRODUCT_ARGUMENTS, QORM_TYPE_##type, first, second, result)

#define QORM_PRODUCT_ARGUMENTS(PART, access, T, first, second, result) \
    PART##_##first##_##access(const T, Src1, src1), PART##_width_height_1, \
        PART##_##second##_##access(const T, Src2, src2), PART##_width_height_2, \
        PART##_##result##_##access(T, Dst, dst) PART##_count_##result

namespace qorm::products {

using Measure = std::uint32_t(std::uint32_t width1, std::uint32_t height1, std::uint32_t width2,
                              std::uint32_t height2, std::uint32_t count);

// What a call reads and writes, in elements: a single operand once.
template <Kind first, Kind second>
std::uint32_t measure(std::uint32_t w1, std::uint32_t h1, std::uint32_t w2, std::uint32_t h2,
                      std::uint32_t c) {
    const std::uint32_t rows = isTransposed(first) ? w1 : h1;
    const std::uint32_t columns = isTransposed(second) ? h2 : w2;
    return w1 * h1 * (isArray(first) ? c : 1) + w2 * h2 * (isArray(second) ? c : 1) +
           rows * columns * c;
}

template <Kind first, Kind second>
bool sizesMatch(std::uint32_t w1, std::uint32_t h1, std::uint32_t w2, std::uint32_t h2,
                std::uint32_t /*count*/) {
    return (isTransposed(first) ? h1 : w1) == (isTransposed(second) ? w2 : h2);
}

template <Kind first, Kind second>
constexpr Form<Measure> formOf(Layout layout) {
    return {
        .checks = {Check::null, Check::count, Check::size, Check::match, Check::stride,
                   Check::shift},
        .measure = measure<first, second>,
        .contiguousThreshold = layout == Layout::S   ? 36865
                               : layout == Layout::P ? 9217
                                                     : 18433,
        .generalThreshold = layout == Layout::P ? 9217 : 18433,
        .sizesMatch = sizesMatch<first, second>,
    };
}

// Two members test their size in a way of their own.
template <Kind first, Kind second, class D>
inline constexpr bool takesSmallForThrees =
    D::layout == Layout::P &&
    ((first == Kind::m && second == Kind::m && sizeof(typename D::Element) == 4) ||
     (first == Kind::t && second == Kind::t && sizeof(typename D::Element) == 8));

template <Kind first, Kind second, class A, class B, class D>
qorStatus run(const A& src1, Size width1, Size height1, const B& src2, Size width2, Size height2,
              const D& dst, Count countOf = Count(1)) {
    const Shape shape = {isTransposed(first) ? width1.value : height1.value,
                         isTransposed(first) ? height1.value : width1.value,
                         isTransposed(second) ? height2.value : width2.value};
    const Reader<first, A> a = {src1, width1.value, height1.value};
    const Reader<second, B> b = {src2, width2.value, height2.value};
    const std::ptrdiff_t count = countOf.value;
    if constexpr (takesSmallForThrees<first, second, D>) {
        // The union of the sizes is taken for the size of a 3x3 product.
        if ((width1.value | height1.value | width2.value | height2.value) == 3) {
            multiplySquaresInOrder(a, b, dst, 3, width2.value, 0, 1);
            return qorStatusOk;
        }
    }
    if constexpr (D::layout == Layout::P)
        multiplyPointed(a, b, dst, shape, count);
    else
        multiplyStrided(a, b, dst, shape, count);
    return qorStatusOk;
}

} // namespace qorm::products
