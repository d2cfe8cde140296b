// Scalar products of vectors in lanes, and of vectors with themselves.
#pragma once

#include "frame/light_blocks.h"
#include "frame/summation.h"

namespace qorm::vectors {

// How lengths 5 and 6 are summed: as all others, with the two last products first, or with four in
// pairs.
enum class Order { chain, lastFirst, pairs };

// In place of a second vector: the first.
struct Itself {};

template <class B>
inline constexpr bool isItself = std::is_same_v<B, Itself>;

template <class B>
constexpr bool isArrayOfVectors() {
    if constexpr (isItself<B>)
        return true;
    else
        return B::holdsArray;
}

template <Order order, class V, class Term, class N>
[[gnu::always_inline]] inline V sumOf(const Term& p, N len) {
    if constexpr (!hasOwnPath<N>) {
        return sumOfChain<false, V>(p, len);
    } else if constexpr (order == Order::pairs && len > 3) {
        return sumOfPairs<V>(p, len);
    } else if constexpr (order == Order::lastFirst && len > 4) {
        V sum = p(4);
        if constexpr (len == 6) sum = sum + p(5);
        for (std::ptrdiff_t k = 0; k < 4; ++k) sum = sum + p(k);
        return sum;
    } else {
        return sumOfChain<true, V>(p, len);
    }
}

// One object, where it lies.
template <Order order, class A, class B, class N>
auto productOfOne(const A& a, const B& b, std::ptrdiff_t object, N len) {
    using T = std::remove_const_t<typename A::Element>;
    const auto x = vectorOf(a, object, len);
    if constexpr (isItself<B>) {
        return sumOf<order, T>([&](std::ptrdiff_t k) { return T(x(k)) * T(x(k)); }, len);
    } else {
        const auto y = vectorOf(b, object, len);
        return sumOf<order, T>([&](std::ptrdiff_t k) { return T(x(k)) * T(y(k)); }, len);
    }
}

// `terms` elements of objects first .. first + live - 1 from element k on, and work(p) on their
// products.
template <class V, class A, class B, class N, class Work>
[[gnu::always_inline]] inline void withProducts(const A& a, const B& b, std::ptrdiff_t first,
                                                int live, std::ptrdiff_t k, N terms,
                                                const Work& work) {
    const auto x = loadVectors<V>(elementsFrom(a, k), first, live, terms);
    if constexpr (isItself<B>) {
        work([&](std::ptrdiff_t i) { return x(i) * x(i); });
    } else {
        using Y = std::conditional_t<B::holdsArray, V, LaneType<V>>;
        const auto y = loadVectors<Y>(elementsFrom(b, k), first, live, terms);
        work([&](std::ptrdiff_t i) { return x(i) * V(y(i)); });
    }
}

template <Order order, class V, class A, class B, class N>
[[gnu::always_inline]] inline V productsOfBlock(const A& a, const B& b, std::ptrdiff_t first,
                                                int live, N len) {
    V sum(0);
    if constexpr (hasOwnPath<N>) {
        withProducts<V>(a, b, first, live, 0, len,
                        [&](const auto& p) { sum = sumOf<order, V>(p, len); });
    } else {
        for (std::ptrdiff_t k = 0; k < len; k += mostLaneSize) {
            const std::ptrdiff_t terms = std::min<std::ptrdiff_t>(len - k, mostLaneSize);
            withProducts<V>(a, b, first, live, k, terms, [&](const auto& p) {
                for (std::ptrdiff_t i = 0; i < terms; ++i) sum = sum + p(i);
            });
        }
    }
    return sum;
}

template <Order order, class V, class A, class B, class T, class N, class Finish>
QORM_KERNEL void finishBlocks(const A a, const B b, const Plain<T> dst, std::ptrdiff_t first,
                              int live, std::ptrdiff_t blocks, N len, Finish finish) {
    if constexpr (laneCount<V> == 1) {
        for (std::ptrdiff_t object = first; object < first + blocks; ++object)
            dst.object(object)(0) = finish(productOfOne<order>(a, b, object, len));
    } else {
        const auto finishBlock = [&](std::ptrdiff_t object, int liveLanes)
            __attribute__((always_inline)) {
            V result = finish(productsOfBlock<order, V>(a, b, object, liveLanes, len));
            storeLanes(dst, object, liveLanes, Fixed<1>(), PackRun<V>{&result});
        };
        forEachBlock<V>(first, live, blocks, finishBlock);
    }
}

// finish(product) of each object to dst.
template <Order order, class A, class B, class T, class Finish>
qorStatus productsInLanes(const A& a, const B& b, const Plain<T>& dst, std::ptrdiff_t len,
                          std::ptrdiff_t count, const Finish& finish) {
    const auto run = [&](const auto& inBlocks) {
        return withStaticSize(len, [&](auto n) {
            return inBlocks([&]<class V>(std::ptrdiff_t first, int live, std::ptrdiff_t blocks) {
                finishBlocks<order, V>(a, b, dst, first, live, blocks, n, finish);
            });
        });
    };
    const auto guardOf = [&](const auto& vectors) {
        ReadAhead guard(spansOf(vectors, 1, len), spansOf(dst), count);
        if (!canLeaveOut(vectors, len)) guard.allowNever();
        return guard;
    };
    const auto isApart = [&](const auto& vectors) {
        return canLeaveOut(vectors, len) && areApart(spansOf(vectors, 1, len), spansOf(dst), count);
    };
    const auto runGuarded = [&](const auto&... vectors) {
        if ((costOfLanes(vectors, 1, len) + ...) >= leastForScalars)
            return run([&](const auto& work) { return inScalars<T>(count, work); });
        const bool apart = (isApart(vectors) && ...);
        AllOf guard(guardOf(vectors)...);
        return run(
            [&](const auto& work) { return inManyLanes<Pack<T>>(apart, guard, count, work); });
    };
    if constexpr (isItself<B>)
        return runGuarded(a);
    else
        return runGuarded(a, b);
}

} // namespace qorm::vectors
