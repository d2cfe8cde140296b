// Orders of summation. p(0), p(1), ... are the terms, each rounded to the element type.
//
// The chain adds them from left to right, starting with the first, or with +0. In blocks, each lane
// adds its own terms of every block, and then the lanes are added.
#pragma once

#include "frame/elements.h"
#include "frame/vectors.h"

#include <cstddef>
#include <cstdint>

namespace qorm {

// begin: p(0), or +0 and then p(0). The first term has to be there.
template <bool beginsWithTerm, class V, class Term, class N>
[[gnu::always_inline]] inline V sumOfChain(const Term& p, N terms) {
    V sum = beginsWithTerm ? p(0) : V{} + p(0);
    for (std::ptrdiff_t k = 1; k < terms; ++k) sum = sum + p(k);
    return sum;
}

// Four terms in two pairs, each added to +0, and the others one at a time. Only -0 differs from +0 + -0,
// so that one zero serves all four.
template <class V, class Term, class N>
[[gnu::always_inline]] inline V sumOfPairs(const Term& p, N terms) {
    V sum = V{} + ((p(0) + p(1)) + (p(2) + p(3)));
    for (std::ptrdiff_t k = 4; k < terms; ++k) sum = sum + p(k);
    return sum;
}

// The blocks of a type: 8 lanes of 32f, or 4 of 64f that take two terms of each block.
template <class T>
inline constexpr int lanesOfBlock = sizeof(T) == 4 ? 8 : 4;
inline constexpr std::ptrdiff_t termsOfBlock = 8;

// The least number of terms that are summed in blocks where some may have to be peeled.
template <class T>
inline constexpr std::ptrdiff_t leastForBlocks = sizeof(T) == 4 ? 11 : 9;

// How many terms stand before the first multiple of 16 bytes; none can be peeled to get there if the
// address is no multiple of the element size.
template <class T>
bool canBePeeled(const T* address) {
    return reinterpret_cast<std::uintptr_t>(address) % sizeof(T) == 0;
}
template <class T>
std::ptrdiff_t peelOf(const T* address) {
    return static_cast<std::ptrdiff_t>((16 - reinterpret_cast<std::uintptr_t>(address) % 16) % 16 /
                                       sizeof(T));
}

template <class Lanes>
[[gnu::always_inline]] inline auto sumOfEight(const Lanes& l) {
    return ((l[0] + l[4]) + (l[1] + l[5])) + ((l[2] + l[6]) + (l[3] + l[7]));
}

template <class T, class Vector>
T sumOfLanes(const Vector& l) {
    if constexpr (sizeof(T) == 4)
        return sumOfEight(l);
    else
        return (l[0] + l[2]) + (l[1] + l[3]);
}

// At least a block of terms, each of them a number or a pack, summed in blocks of 8 lanes. One zero
// serves them all, as above.
template <class V, class Term, class N>
[[gnu::always_inline]] inline V sumOfBlocksOf8(const Term& p, N terms) {
    V l[8];
    for (int lane = 0; lane < 8; ++lane) l[lane] = p(lane);
    std::ptrdiff_t k = 8;
    for (; k + 8 <= terms; k += 8) {
        for (int lane = 0; lane < 8; ++lane) l[lane] = l[lane] + p(k + lane);
    }
    V sum = V{} + sumOfEight(l);
    for (; k < terms; ++k) sum = sum + p(k);
    return sum;
}

// The products of two runs, summed in blocks behind `peel` products, whose sum lane 0 begins with.
template <class T>
T sumOfBlocks(const T* a, const T* b, std::ptrdiff_t terms, std::ptrdiff_t peel) {
    constexpr int lanes = lanesOfBlock<T>;
    const auto p = [&](std::ptrdiff_t k) {
        const Run<const T> x = {a};
        const Run<const T> y = {b};
        return T(x(k)) * T(y(k));
    };
    Vector<T, lanes> sums{};
    if (peel > 0) sums[0] = sumOfChain<sizeof(T) == 8, T>(p, peel);
    std::ptrdiff_t k = peel;
    for (; k + termsOfBlock <= terms; k += termsOfBlock) {
        for (int t = 0; t < termsOfBlock; t += lanes) {
            sums += loadVector<T, lanes, lanes>(a + k + t) * loadVector<T, lanes, lanes>(b + k + t);
        }
    }
    T sum = sumOfLanes<T>(sums);
    for (; k < terms; ++k) sum = sum + p(k);
    return sum;
}

// The sum of products as contiguous runs have it that may begin anywhere.
template <class T>
T sumOfProducts(const T* a, const T* b, std::ptrdiff_t terms) {
    if (terms < leastForBlocks<T> || !canBePeeled(b)) {
        const Run<const T> x = {a};
        const Run<const T> y = {b};
        return sumOfChain<false, T>([&](std::ptrdiff_t k) { return T(x(k)) * T(y(k)); }, terms);
    }
    return sumOfBlocks(a, b, terms, peelOf(b));
}

} // namespace qorm
