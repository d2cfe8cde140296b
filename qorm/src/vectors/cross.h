// Vector products of vectors of three elements, dst = a × b.
#pragma once

#include "frame/entry.h"
#include "frame/gathering.h"
#include "frame/known_sizes.h"
#include "frame/light_blocks.h"
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
[[gnu::always_inline]] inline void multiplyBlock(const A& src1, const B& src2, const D& dst,
                                                 std::ptrdiff_t first, int live) {
    constexpr Fixed<3> len;
    const auto load = [&]<class Operand>(const Operand& operand) __attribute__((always_inline)) {
        using X = std::conditional_t<Operand::holdsArray, V, LaneType<V>>;
        return loadVectors<X>(operand, first, live, len);
    };
    const auto a = load(src1);
    const auto b = load(src2);
    LoadedVector<V, Fixed<3>> product;
    for (std::ptrdiff_t i = 0; i < len; ++i) product(i) = elementOfProduct<V>(a, b, i);
    product.store(dst, first, live, len);
}

template <class V, class A, class B, class D>
QORM_KERNEL void multiplyBlocks(const A src1, const B src2, const D dst, std::ptrdiff_t first,
                                int live, std::ptrdiff_t blocks) {
    forEachBlock<V>(
        first, live,
        blocks, [&](std::ptrdiff_t object, int liveLanes) __attribute__((always_inline)) {
            multiplyBlock<V>(src1, src2, dst, object, liveLanes);
        });
}

template <class A, class B, class D>
qorStatus multiplyVectors(const A& src1, const B& src2, const D& dst, std::ptrdiff_t count) {
    using T = typename D::Element;
    constexpr int lanes = laneCount<Pack<T>>;
    const auto multiply = [&]<class V>(std::ptrdiff_t first, int live, std::ptrdiff_t blocks) {
        multiplyBlocks<V>(src1, src2, dst, first, live, blocks);
    };
    if (costOfLanes(src1, 1, 3) + costOfLanes(src2, 1, 3) + costOfLanes(dst, 1, 3) >=
        leastForScalars) {
        return inScalars<T>(count, multiply);
    }
    const auto guardOf = [&](const auto& operand) {
        return readAheadOf(Sharing::any, operand, {1, 3}, dst, {1, 3}, count, lanes);
    };
    const auto isApart = [&](const auto& operand) {
        return areApart(spansOf(operand, 1, 3), spansOf(dst, 1, 3), count);
    };
    const bool apart = isApart(src1) && isApart(src2) && hasDistinctElements(dst, 1, 3, lanes);
    return inManyLanes<Pack<T>>(apart, AllOf(guardOf(src1), guardOf(src2)), count, multiply);
}

// Gap-free vectors: registers run along the elements of the result, as many objects to a block as a
// register has lanes. Each factor is a permutation of what lies in memory; a single vector's are
// permuted once.
template <class T>
struct PackedProducts {
    using V = Pack<T>;
    static constexpr int lanes = laneCount<V>;
    static constexpr int registers = 3;

    static constexpr auto wantedIn(int which, int step, bool fromArray) {
        std::array<int, lanes> wanted{};
        for (int lane = 0; lane < lanes; ++lane) {
            const int element = which * lanes + lane;
            const int begin = fromArray ? element / 3 * 3 : 0;
            wanted[static_cast<std::size_t>(lane)] = begin + (element + step) % 3;
        }
        return wanted;
    }

    // Elements i + 1 or i + 2, cyclically, of each vector's place i.
    struct Factors {
        V next[registers];
        V afterNext[registers];
    };

    template <bool array>
    [[gnu::always_inline]] static Factors factorsOf(const T* vectors) {
        constexpr int all = array ? registers * lanes : 3;
        Factors factors;
        forEachConstant(
            upTo<registers>, [&](auto which) __attribute__((always_inline)) {
                factors.next[which] = gatherElements<T, wantedIn(which, 1, array), all>(vectors);
                factors.afterNext[which] =
                    gatherElements<T, wantedIn(which, 2, array), all>(vectors);
            });
        return factors;
    }

    template <bool firstIsArray, bool secondIsArray>
    static void multiply(const T* first, const T* second, T* dst, std::ptrdiff_t blocks) {
        constexpr std::ptrdiff_t elements = registers * lanes;
        const auto blocksOf = []<bool array>(const T* vectors, std::bool_constant<array>)
            __attribute__((always_inline)) {
            if constexpr (array) return [=](std::ptrdiff_t block) __attribute__((always_inline)) {
                    return factorsOf<true>(vectors + block * elements);
                };
            else
                return [factors = factorsOf<false>(vectors)](std::ptrdiff_t) { return factors; };
        };
        const auto a = blocksOf(first, std::bool_constant<firstIsArray>());
        const auto b = blocksOf(second, std::bool_constant<secondIsArray>());
        for (std::ptrdiff_t block = 0; block < blocks; ++block) {
            const Factors x = a(block);
            const Factors y = b(block);
            forEachConstant(
                upTo<registers>, [&](auto r) __attribute__((always_inline)) {
                    storeRun(dst + block * elements + r * lanes,
                             x.next[r] * y.afterNext[r] - x.afterNext[r] * y.next[r]);
                });
        }
    }
};

// How many objects have been done, gap-free ones that lie apart.
template <class A, class B, class D>
std::ptrdiff_t multiplyPacked(const A& src1, const B& src2, const D& dst, std::ptrdiff_t count) {
    if constexpr (hasGathering && isFastest<A> && isFastest<B> && isFastest<D>) {
        using Products = PackedProducts<typename D::Element>;
        const auto isPackedApart = [&](const auto& src) {
            return (!src.holdsArray || src.hasAdjacentObjects(3)) &&
                   areApart(spansOf(src, 1, 3), spansOf(dst, 1, 3), count);
        };
        if (!dst.hasAdjacentObjects(3) || !isPackedApart(src1) || !isPackedApart(src2)) return 0;
        const std::ptrdiff_t blocks = count / Products::lanes;
        Products::template multiply<A::holdsArray, B::holdsArray>(src1.base, src2.base, dst.base,
                                                                  blocks);
        return blocks * Products::lanes;
    } else {
        return 0;
    }
}

template <class A, class B, class D>
qorStatus vectorProducts(const A& src1, const B& src2, const D& dst, Count countOf = Count(1)) {
    if constexpr (D::holdsArray) {
        const std::ptrdiff_t done = multiplyPacked(src1, src2, dst, countOf.value);
        if (done == countOf.value) return qorStatusOk;
        const Share rest = {0, static_cast<int>(done), 0, nullptr};
        return multiplyVectors(src1.share(rest), src2.share(rest), dst.share(rest),
                               countOf.value - done);
    } else {
        using T = typename D::Element;
        const auto a = vectorOf(src1, 0, 3);
        const auto b = vectorOf(src2, 0, 3);
        const auto d = vectorOf(dst, 0, 3);
        for (std::ptrdiff_t i = 0; i < 3; ++i) d(i) = elementOfProduct<T>(a, b, i);
        return qorStatusOk;
    }
}

} // namespace qorm::vectors
