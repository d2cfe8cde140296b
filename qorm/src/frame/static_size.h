// Sizes that a kernel may know at compile time.
#pragma once

#include <cstddef>
#include <type_traits>

namespace qorm {

template <std::ptrdiff_t value>
using Fixed = std::integral_constant<std::ptrdiff_t, value>;

template <class N>
inline constexpr bool isFixed = false;
template <std::ptrdiff_t value>
inline constexpr bool isFixed<Fixed<value>> = true;

template <std::ptrdiff_t width, std::ptrdiff_t height>
constexpr Fixed<width * height> area(Fixed<width>, Fixed<height>) {
    return {};
}
constexpr std::ptrdiff_t area(std::ptrdiff_t width, std::ptrdiff_t height) {
    return width * height;
}

template <std::ptrdiff_t value>
constexpr Fixed<value + 1> after(Fixed<value>) {
    return {};
}
constexpr std::ptrdiff_t after(std::ptrdiff_t value) {
    return value + 1;
}

template <std::ptrdiff_t value>
constexpr Fixed<value - 1> before(Fixed<value>) {
    return {};
}
constexpr std::ptrdiff_t before(std::ptrdiff_t value) {
    return value - 1;
}

// work(i) for begin .. end - 1: straight-line code with constants where both are constants.
template <class Begin, class End, class Work>
[[gnu::always_inline]] inline void forRange(Begin begin, End end, const Work& work) {
    if constexpr (isFixed<Begin> && isFixed<End>) {
        if constexpr (begin < end) {
            work(begin);
            forRange(after(begin), end, work);
        }
    } else {
        for (std::ptrdiff_t i = begin; i < end; ++i) work(i);
    }
}

// Calls work(n) with a constant for sizes 3 to 6.
template <class Work>
auto withStaticSize(std::ptrdiff_t n, const Work& work) {
    switch (n) {
    case 3:
        return work(Fixed<3>());
    case 4:
        return work(Fixed<4>());
    case 5:
        return work(Fixed<5>());
    case 6:
        return work(Fixed<6>());
    default:
        return work(n);
    }
}

// Calls work(width, height) with constants for the squares of 3 to 6.
template <class Work>
auto withStaticSquare(std::ptrdiff_t width, std::ptrdiff_t height, const Work& work) {
    return withStaticSize(width == height ? width : 0, [&](auto n) {
        if constexpr (isFixed<decltype(n)>)
            return work(n, n);
        else
            return work(width, height);
    });
}

// The largest size that lanes of a size known at run time are made for: two matrices of packs on
// the stack.
inline constexpr std::ptrdiff_t mostLaneSize = 16;

template <class N>
inline constexpr std::ptrdiff_t largestSize = mostLaneSize;
template <std::ptrdiff_t value>
inline constexpr std::ptrdiff_t largestSize<Fixed<value>> = value;

// Sizes that have a path of their own, with rules of its own.
constexpr bool isUnrolled(std::ptrdiff_t n) {
    return n >= 3 && n <= 6;
}
template <class N>
inline constexpr bool hasOwnPath = isUnrolled(isFixed<N> ? largestSize<N> : 0);

// Room for the elements of a square of N, or of a column.
template <class N>
inline constexpr std::ptrdiff_t areaOf = largestSize<N>* largestSize<N>;

constexpr bool isLaneSize(std::ptrdiff_t n) {
    return n >= 3 && n <= mostLaneSize;
}

} // namespace qorm
