// What the vector forms of the elementwise families share.
#pragma once

#include "elementwise/combine.h"
#include "frame/entry.h"
#include "frame/loaded.h"

namespace qorm::elementwise {

using VectorMeasure = std::uint32_t(std::uint32_t len, std::uint32_t count);

// What a call reads and writes, in elements.
inline std::uint32_t measureOfTwo(std::uint32_t len, std::uint32_t c) {
    return 2 * len * c;
}
inline std::uint32_t measureWithSingle(std::uint32_t len, std::uint32_t c) {
    return len * (2 * c + 1);
}
inline std::uint32_t measureOfThree(std::uint32_t len, std::uint32_t c) {
    return 3 * len * c;
}

constexpr CheckOrder usualChecks = {Check::null, Check::count, Check::size, Check::stride,
                                    Check::shift};

// The forms on single vectors, or single matrices, have no count.
constexpr CheckOrder checksOfSingles = {Check::null, Check::size, Check::stride, Check::shift};

// combine() of two vectors. Where a path of its own holds a single vector for all objects, results
// may be written over it; elsewhere it is read again for each object.
template <bool holdsSingle, class Op, class D, class A, class B>
qorStatus combineVectors(const Op& op, const D& dst, Size len, Count count, const A& a,
                         const B& b) {
    const auto combineAll = [&](const A& first, const B& second) {
        return combine(op, dst, len.value, Fixed<1>(), count.value, first, second);
    };
    if constexpr (holdsSingle && isArray(A::kind) != isArray(B::kind)) {
        constexpr bool firstIsSingle = isArray(B::kind);
        const auto& single = std::get < firstIsSingle ? 0 : 1 > (std::tie(a, b));
        const auto isSingleApart = [&] {
            return areApart(spansOf(single.operand, 1, len.value), spansOf(dst, 1, len.value),
                            count.value);
        };
        if (isUnrolled(len.value) && !isSingleApart()) {
            const HeldVector held(single.operand, len.value);
            const auto source = sourceOf<Kind::v>(held.operand());
            if constexpr (firstIsSingle)
                return combineAll(source, b);
            else
                return combineAll(a, source);
        }
    }
    return combineAll(a, b);
}

} // namespace qorm::elementwise
