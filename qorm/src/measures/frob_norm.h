// Frobenius norms, √Σᵢⱼ a(i,j)². Members differ in whether sums below the threshold count as zero.
#pragma once

#include "frame/entry.h"
#include "frame/known_sizes.h"
#include "frame/light_blocks.h"
#include "frame/summation.h"
#include "measures/blocks.h"

// name, the source's kind, type, layout
#define QORM_FROBNORM(name, kind, type, layout) \
    QORM_FROBNORM_##kind##_##layout( \
        name, qorm::measures::formOfFrobNorm(sizeof(QORM_TYPE_##type), qorm::Layout::layout), \
        qorm::measures::norms, QORM_FROBNORM_ARGUMENTS, QORM_TYPE_##type, kind)

// The core of a single matrix takes rows of any element stride.
#define QORM_FROBNORM_m_S QORM_GENERAL_m_S
#define QORM_FROBNORM_m_P QORM_FUNCTION_m_P
#define QORM_FROBNORM_ma_S QORM_FUNCTION_ma_S
#define QORM_FROBNORM_ma_P QORM_FUNCTION_ma_P
#define QORM_FROBNORM_ma_L QORM_FUNCTION_ma_L

#define QORM_FROBNORM_ARGUMENTS(PART, access, T, kind) \
    PART##_##kind##_##access(const T, Src, src), PART##_width_height_m, \
        PART##_value(T) PART##_count_##kind

namespace qorm::measures {

using FrobNormMeasure = std::uint32_t(std::uint32_t w, std::uint32_t h, std::uint32_t count);

inline std::uint32_t measureOfFrobNorm(std::uint32_t w, std::uint32_t h, std::uint32_t c) {
    return w * h * c;
}

constexpr Form<FrobNormMeasure> formOfFrobNorm(std::size_t elementSize, Layout layout) {
    const bool staysLonger = elementSize == 4 && layout == Layout::L;
    return {.checks = {Check::null, Check::count, Check::size, Check::stride, Check::shift},
            .measure = measureOfFrobNorm,
            .contiguousThreshold = staysLonger ? 40001 : 20001,
            .generalThreshold = 20001};
}

// How the squares of a matrix are summed, and whether the sum has to reach the threshold.
enum class Squares { chain, pairs };

struct FrobNormRule {
    Squares squares;
    bool isTested;
};

template <class Src>
FrobNormRule ruleOf(std::ptrdiff_t width, std::ptrdiff_t height) {
    constexpr bool is64f = sizeof(typename Src::Element) == 8;
    const bool isThree = width == 3 && height == 3;
    if constexpr (Src::layout == Layout::P) {
        const bool hasOwnSum = Src::holdsArray && isThree;
        return {hasOwnSum ? Squares::chain : Squares::pairs, !hasOwnSum};
    } else if constexpr (Src::holdsArray) {
        return {Squares::chain, !(isThree || (width >= 4 && width <= 6))};
    } else {
        return {Squares::chain, !is64f};
    }
}

// A root of what reaches the threshold, so NaN has none.
template <class V>
V rootOf(const V& sum, bool isTested) {
    if (!isTested) return sqrt(sum);
    return select(epsilon<V>() <= sum, sqrt(sum), V(0));
}

// Goes on from `sum` with the squares of x(0) .. x(terms - 1).
template <class V, class X, class N>
[[gnu::always_inline]] inline V withSquares(V sum, Squares squares, const X& x, N terms) {
    if (squares == Squares::chain) {
        for (std::ptrdiff_t k = 0; k < terms; ++k) sum = sum + x(k) * x(k);
        return sum;
    }
    std::ptrdiff_t k = 0;
    for (; k + 1 < terms; k += 2) sum = sum + (x(k) * x(k) + x(k + 1) * x(k + 1));
    return k < terms ? sum + x(k) * x(k) : sum;
}

// Of one object, where it lies: row by row, or in pairs of positions.
template <class Src>
auto sumOfOne(const Src& src, std::ptrdiff_t object, std::ptrdiff_t width, std::ptrdiff_t height,
              Squares squares) {
    using T = std::remove_const_t<typename Src::Element>;
    const auto a = src.object(object, width);
    if constexpr (Src::layout == Layout::P) {
        const auto x = [&](std::ptrdiff_t k) { return T(a(0, k)); };
        return withSquares<T>(T(0), squares, x, width * height);
    } else {
        T sum(0);
        for (std::ptrdiff_t i = 0; i < height; ++i) {
            const auto x = [&](std::ptrdiff_t j) { return T(a(i, j)); };
            sum = withSquares<T>(sum, squares, x, width);
        }
        return sum;
    }
}

// Long packed runs have no order of their own, and are summed in blocks.
inline constexpr std::ptrdiff_t longestChain = 6 * 6;

template <class Src>
bool isSummedInBlocks(const Src& src, std::ptrdiff_t width, std::ptrdiff_t height,
                      const FrobNormRule& rule) {
    return Src::layout != Layout::P && rule.isTested && src.isContiguous() &&
           src.contiguous().hasAdjacentRows(width) && width * height > longestChain;
}

// Of an object in each lane.
template <class V, class Src, class N, class M>
[[gnu::always_inline]] inline V sumOfBlock(const Src& src, std::ptrdiff_t first, int live, N width,
                                           M height, Squares squares) {
    const auto elements = area(width, height);
    if constexpr (Src::layout == Layout::P) {
        if (live == laneCount<V> && src.hasObjectsSideBySide()) {
            const auto a = lanesInPlace<V>(src.object(first, width));
            return withSquares(
                V(0), squares, [&](std::ptrdiff_t k) { return a(0, k); }, elements);
        }
    }
    V block[largestSize<N> * largestSize<M>];
    loadLanes(src, first, live, height, width, PackMatrix<V, N>{block, width});
    return withSquares(
        V(0), squares, [&](std::ptrdiff_t k) { return block[k]; }, elements);
}

template <class V, class Src, class T, class N, class M>
QORM_KERNEL void normsOfBlocks(const Src src, const Plain<T> dst, std::ptrdiff_t first, int live,
                               std::ptrdiff_t blocks, N width, M height, FrobNormRule rule) {
    const auto normsOfBlock = [&](std::ptrdiff_t object, int liveLanes)
        __attribute__((always_inline)) {
        if constexpr (laneCount<V> == 1) {
            dst.object(object)(0) =
                rootOf(sumOfOne(src, object, width, height, rule.squares), rule.isTested);
        } else {
            V root = rootOf(sumOfBlock<V>(src, object, liveLanes, width, height, rule.squares),
                            rule.isTested);
            storeLanes(dst, object, liveLanes, Fixed<1>(), PackRun<V>{&root});
        }
    };
    forEachBlock<V>(first, live, blocks, normsOfBlock);
}

template <class Src, class T>
qorStatus norms(const Src& src, Size widthOf, Size heightOf, const Plain<T>& dst,
                Count countOf = Count(1)) {
    const std::ptrdiff_t width = widthOf.value;
    const std::ptrdiff_t height = heightOf.value;
    const std::ptrdiff_t count = countOf.value;
    const FrobNormRule rule = ruleOf<Src>(width, height);
    if constexpr (Src::layout != Layout::P) {
        if (isSummedInBlocks(src, width, height, rule)) {
            for (std::ptrdiff_t n = 0; n < count; ++n) {
                const T* const run = src.object(n, width)(0, 0).address();
                dst.object(n)(0) = rootOf(sumOfBlocks(run, run, width * height, 0), true);
            }
            return qorStatusOk;
        }
    }
    if constexpr (Src::holdsArray) {
        if (std::max(width, height) <= mostLaneSize) {
            const auto spans = spansOf(src, height, width);
            ReadAhead guard(spans, spansOf(dst), count);
            const bool apart = areApart(spans, spansOf(dst), count);
            return withKnownSquare<Src>(width, height, [&](auto columns, auto rows) {
                return inManyLanes<Pack<T>>(
                    apart, guard, count,
                    [&]<class V>(std::ptrdiff_t first, int live, std::ptrdiff_t blocks) {
                        normsOfBlocks<V>(src, dst, first, live, blocks, columns, rows, rule);
                    });
            });
        }
    }
    for (std::ptrdiff_t n = 0; n < count; ++n) {
        dst.object(n)(0) = rootOf(sumOfOne(src, n, width, height, rule.squares), rule.isTested);
    }
    return qorStatusOk;
}

} // namespace qorm::measures
