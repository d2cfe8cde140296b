// Vector products of vectors of three elements, dst = a × b.
#pragma once

#include "frame/entry.h"
#include "frame/loaded.h"
#include "frame/overlap.h"

// name, the kinds of the operands and of the destination, type, layout
#define QORM_CROSS(name, first, second, result, type, layout) \
    QORM_FUNCTION_##result##_##layout( \
        name, \
        (qorm::vectors::formOfCross(qorm::Kind::first, qorm::Kind::second, \
                                    sizeof(QORM_TYPE_##type), qorm::Layout::layout)), \
        qorm::vectors::vectorProducts, QORM_CROSS_ARGUMENTS, QORM_TYPE_##type, first, second, \
        result)

#define QORM_CROSS_ARGUMENTS(PART, access, T, first, second, result) \
    PART##_##first##_##access(const T, Src1, src1), \
        PART##_##second##_##access(const T, Src2, src2), \
        PART##_##result##_##access(T, Dst, dst) PART##_count_##result

namespace qorm::vectors {

using CrossMeasure = std::uint32_t(std::uint32_t count);

inline std::uint32_t measureOfCrossWithSingle(std::uint32_t c) {
    return 2 * c + 1;
}
inline std::uint32_t measureOfCrossOfArrays(std::uint32_t c) {
    return 3 * c;
}

// An array with a single second vector tests its count behind the strides, in list layout behind the
// shifts, too. 64f products of a single vector and an array in pointer layout stay on the calling
// thread.
constexpr Form<CrossMeasure> formOfCross(Kind first, Kind second, std::size_t elementSize,
                                         Layout layout) {
    const bool isSingleWithArray = !isArray(first) && isArray(second);
    CheckOrder checks = {Check::null, Check::count, Check::stride, Check::shift};
    if (isArray(first) && !isArray(second)) {
        checks = layout == Layout::L
                     ? CheckOrder{Check::null, Check::stride, Check::shift, Check::count}
                     : CheckOrder{Check::null, Check::stride, Check::count, Check::shift};
    }
    const std::int32_t threshold = layout == Layout::L && elementSize == 4 ? 40001 : 20001;
    return {.checks = checks,
            .measure = isArray(first) && isArray(second) ? measureOfCrossOfArrays
                                                         : measureOfCrossWithSingle,
            .contiguousThreshold = threshold,
            .generalThreshold = threshold,
            .fansOut = !(isSingleWithArray && layout == Layout::P && elementSize == 8)};
}

// Element i.
template <class V, class A, class B>
V elementOfProduct(const A& a, const B& b, std::ptrdiff_t i) {
    const std::ptrdiff_t j = (i + 1) % 3;
    const std::ptrdiff_t k = (i + 2) % 3;
    return V(a(j)) * V(b(k)) - V(a(k)) * V(b(j));
}

// Objects first .. first + live - 1 of arrays, all of an object read before it is written.
template <class V, class A, class B, class D>
[[gnu::flatten]] qorStatus multiplyBlock(const A src1, const B src2, const D dst,
                                         std::ptrdiff_t first, int live) {
    constexpr Fixed<3> len;
    const auto load = [&]<class Operand>(const Operand& operand) {
        using X = std::conditional_t<Operand::holdsArray, V, LaneType<V>>;
        LoadedVector<X, Fixed<3>> vector;
        vector.load(operand, first, Operand::holdsArray ? live : 1, len);
        return vector;
    };
    const auto a = load(src1);
    const auto b = load(src2);
    LoadedVector<V, Fixed<3>> product;
    for (std::ptrdiff_t i = 0; i < len; ++i) product(i) = elementOfProduct<V>(a, b, i);
    product.store(dst, first, live, len);
    return qorStatusOk;
}

template <class A, class B, class D>
qorStatus vectorProducts(const A& src1, const B& src2, const D& dst, Count countOf = Count(1)) {
    using T = typename D::Element;
    if constexpr (D::holdsArray) {
        const std::ptrdiff_t count = countOf.value;
        const auto guardOf = [&](const auto& operand) {
            return readAheadOf(Sharing::any, operand, {1, 3}, dst, {1, 3}, count,
                               laneCount<Pack<T>>);
        };
        return inLanes<Pack<T>>(AllOf(guardOf(src1), guardOf(src2)), count,
                                [&]<class V>(std::ptrdiff_t first, int live) {
                                    return multiplyBlock<V>(src1, src2, dst, first, live);
                                });
    } else {
        const auto a = vectorOf(src1, 0, 3);
        const auto b = vectorOf(src2, 0, 3);
        const auto d = vectorOf(dst, 0, 3);
        for (std::ptrdiff_t i = 0; i < 3; ++i) d(i) = elementOfProduct<T>(a, b, i);
        return qorStatusOk;
    }
}

} // namespace qorm::vectors
