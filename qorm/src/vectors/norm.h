// Euclidean lengths, √Σₖ a(k)²: no scaling against overflow, no wider sum.
#pragma once

#include "frame/entry.h"
#include "vectors/scalar_products.h"

// name, the kind of the source, type, layout
#define QORM_NORM(name, kind, type, layout) \
    QORM_FUNCTION_##kind##_##layout(name, qorm::vectors::formOfNorm(), qorm::vectors::norms, \
                                    QORM_NORM_ARGUMENTS, QORM_TYPE_##type, kind)

#define QORM_NORM_ARGUMENTS(PART, access, T, kind) \
    PART##_##kind##_##access(const T, Src, src), PART##_value(T), PART##_len_##kind

namespace qorm::vectors {

using NormMeasure = std::uint32_t(std::uint32_t len, std::uint32_t count);

inline std::uint32_t measureOfNorm(std::uint32_t len, std::uint32_t c) {
    return len * c;
}

constexpr Form<NormMeasure> formOfNorm() {
    return {.checks = {Check::null, Check::count, Check::size, Check::stride, Check::shift},
            .measure = measureOfNorm,
            .contiguousThreshold = 20001,
            .generalThreshold = 20001};
}

// A single contiguous vector is summed in blocks, those of an array never are.
template <class A, class T>
qorStatus norms(const A& a, const Plain<T>& dst, Size size, Count count = Count(1)) {
    const std::ptrdiff_t len = size.value;
    const auto root = [](const auto& sum) { return sqrt(sum); };
    if constexpr (A::holdsArray) {
        return productsInLanes<Order::chain>(a, Itself(), dst, len, count.value, root);
    } else {
        dst.object(0)(0) = root(withStaticSize(len, [&](auto n) {
            if constexpr (A::hasContiguousRows) {
                if constexpr (!isFixed<decltype(n)>) return sumOfProducts<T>(a.base, a.base, len);
            }
            return productOfOne<Order::chain>(a, Itself(), 0, n);
        }));
        return qorStatusOk;
    }
}

} // namespace qorm::vectors
