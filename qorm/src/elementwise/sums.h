// Sums and differences of matrices: dst(i,j) = A(i,j) ± B(i,j), each operand a matrix or an array,
// as stored or transposed.
#pragma once

#include "elementwise/combine.h"
#include "frame/entry.h"

#include <functional>

// name, Add or Sub, the operands' kinds, the destination's kind, type, layout
#define QORM_SUM(name, sign, first, second, result, type, layout) \
    QORM_FUNCTION_##result##_##layout( \
        name, qorm::sums::form(qorm::Kind::first, qorm::Kind::second, qorm::Layout::layout), \
        (qorm::sums::run<qorm::sums::sign, qorm::Kind::first, qorm::Kind::second>), \
        QORM_SUM_ARGUMENTS, QORM_TYPE_##type, first, second, result)

#define QORM_SUM_ARGUMENTS(PART, access, T, first, second, result) \
    PART##_##first##_##access(const T, Src1, src1), \
        PART##_##second##_##access(const T, Src2, src2), PART##_##result##_##access(T, Dst, dst), \
        PART##_width_height_##result

namespace qorm::sums {

using Add = std::plus<>;
using Sub = std::minus<>;

using Measure = std::uint32_t(std::uint32_t width, std::uint32_t height, std::uint32_t count);

// What a call reads and writes, in elements.
inline std::uint32_t measureWithSingle(std::uint32_t w, std::uint32_t h, std::uint32_t c) {
    return w * h * (2 * c + 1);
}
inline std::uint32_t measureOfArrays(std::uint32_t w, std::uint32_t h, std::uint32_t c) {
    return 3 * w * h * c;
}

// An array with a single matrix, both as stored, tests its strides before the size in the standard
// layout; all other forms test the size first.
constexpr Form<Measure> form(Kind first, Kind second, Layout layout) {
    const bool asStored = !isTransposed(first) && !isTransposed(second);
    const bool withSingle = isArray(first) != isArray(second);
    const bool stridesFirst = asStored && withSingle && layout == Layout::S;
    return {
        .checks = stridesFirst ? CheckOrder{Check::null, Check::count, Check::stride, Check::size}
                               : CheckOrder{Check::null, Check::count, Check::size, Check::stride,
                                            Check::shift},
        .measure = withSingle ? measureWithSingle : measureOfArrays,
        .contiguousThreshold = layout == Layout::S   ? 36864
                               : layout == Layout::P ? 9216
                                                     : 18432,
        .generalThreshold = layout == Layout::P ? 9216 : 18432,
    };
}

template <class Sign, Kind first, Kind second, class A, class B, class D>
qorStatus run(const A& src1, const B& src2, const D& dst, Size width, Size height,
              Count count = Count(1)) {
    return elementwise::combine(Sign(), dst, width.value, height.value, count.value,
                                elementwise::sourceOf<first>(src1),
                                elementwise::sourceOf<second>(src2));
}

} // namespace qorm::sums
