// Scalar products, Σₖ a(k)·b(k). How the products are summed depends on the core, the length and, where
// vectors are contiguous, the addresses; all of it is contract.
#pragma once

#include "frame/entry.h"
#include "vectors/scalar_products.h"

// name, the kinds of the operands, what the results are like, type, layout
#define QORM_DOT(name, first, second, results, type, layout) \
    QORM_FUNCTION_##results##_##layout( \
        name, \
        (qorm::vectors::formOfDot(qorm::Kind::second, sizeof(QORM_TYPE_##type), \
                                  qorm::Layout::layout)), \
        qorm::vectors::scalarProducts, QORM_DOT_ARGUMENTS, QORM_TYPE_##type, first, second, \
        results)

#define QORM_DOT_ARGUMENTS(PART, access, T, first, second, results) \
    PART##_##first##_##access(const T, Src1, src1), \
        PART##_##second##_##access(const T, Src2, src2), PART##_value(T), PART##_len_##results

namespace qorm::vectors {

using DotMeasure = std::uint32_t(std::uint32_t len, std::uint32_t count);

inline std::uint32_t measureWithSingle(std::uint32_t len, std::uint32_t c) {
    return len * (c + 1);
}
inline std::uint32_t measureOfArrays(std::uint32_t len, std::uint32_t c) {
    return 2 * len * c;
}

constexpr Form<DotMeasure> formOfDot(Kind second, std::size_t elementSize, Layout layout) {
    const bool staysLonger = layout == Layout::P && elementSize == 8;
    return {.checks = {Check::null, Check::count, Check::size, Check::stride, Check::shift},
            .measure = isArray(second) ? measureOfArrays : measureWithSingle,
            .contiguousThreshold = layout == Layout::P && elementSize == 4 ? 20001 : 40001,
            .generalThreshold = staysLonger ? 40001 : 20001};
}

template <class Operand>
bool isAligned(const Operand& vectors) {
    return reinterpret_cast<std::uintptr_t>(vectors.base) % 16 == 0 && vectors.stride0 % 16 == 0;
}

// Two arrays of 32f, contiguous by strides.
template <class A, class B>
qorStatus productsByAlignment(const A& a, const B& b, const Plain<float>& dst, std::ptrdiff_t len,
                              std::ptrdiff_t count) {
    const auto asIs = [](auto product) { return product; };
    const bool aligned = isAligned(a) && isAligned(b);
    if (isUnrolled(len) && aligned)
        return productsInLanes<Order::pairs>(a, b, dst, len, count, asIs);
    if (isUnrolled(len) || len < (aligned ? termsOfBlock : leastForBlocks<float>))
        return productsInLanes<Order::chain>(a, b, dst, len, count, asIs);
    for (std::ptrdiff_t n = 0; n < count; ++n) {
        const float* const x = vectorOf(a, n, len)(0).address();
        const float* const y = vectorOf(b, n, len)(0).address();
        dst.object(n)(0) = aligned ? sumOfBlocks(x, y, len, 0) : sumOfProducts(x, y, len);
    }
    return qorStatusOk;
}

template <Order order, class A, class B, class T>
qorStatus productOfTwo(const A& a, const B& b, const Plain<T>& dst, std::ptrdiff_t len) {
    dst.object(0)(0) = withStaticSize(len, [&](auto n) {
        if constexpr (A::hasContiguousRows && B::hasContiguousRows) {
            if constexpr (!isFixed<decltype(n)>) return sumOfProducts<T>(a.base, b.base, len);
        }
        return productOfOne<order>(a, b, 0, n);
    });
    return qorStatusOk;
}

template <class A, class B, class T>
qorStatus scalarProducts(const A& a, const B& b, const Plain<T>& dst, Size size,
                         Count countOf = Count(1)) {
    constexpr bool isContiguous = A::hasContiguousRows && B::hasContiguousRows;
    constexpr Order order =
        isContiguous || A::layout == Layout::P ? Order::chain : Order::lastFirst;
    const std::ptrdiff_t len = size.value;
    const std::ptrdiff_t count = countOf.value;
    const auto asIs = [](auto product) { return product; };
    if constexpr (!A::holdsArray) {
        return productOfTwo<order>(a, b, dst, len);
    } else if constexpr (isContiguous && A::layout == Layout::S && B::holdsArray &&
                         sizeof(T) == 4) {
        return productsByAlignment(a, b, dst, len, count);
    } else {
        // Lengths 3 to 6 read a single vector once for all objects.
        if constexpr (!B::holdsArray) {
            if (isUnrolled(len)) {
                const HeldVector held(b, len);
                return productsInLanes<order>(a, held.operand(), dst, len, count, asIs);
            }
        }
        return productsInLanes<order>(a, b, dst, len, count, asIs);
    }
}

} // namespace qorm::vectors
