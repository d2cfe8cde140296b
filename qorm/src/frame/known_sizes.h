// Sizes that lanes know at compile time, beyond those that have a path of their own.
#pragma once

#include "frame/operands.h"
#include "frame/static_size.h"

namespace qorm {

// Contiguous rows by strides.
template <class Operand>
inline constexpr bool isFastest = Operand::layout == Layout::S&& Operand::hasContiguousRows;

// Layouts whose objects may fill whole registers as they lie: without gaps, or side by side.
template <class Operand>
inline constexpr bool mayFillRegisters = isFastest<Operand> || Operand::layout == Layout::P;

// work(n) with a constant for sizes 3 to 6, and for 8 where blocks are loaded fast enough to gain by
// it.
template <class Operand, class Work>
auto withKnownSize(std::ptrdiff_t n, const Work& work) {
    if constexpr (mayFillRegisters<Operand> && Operand::holdsArray) {
        if (n == 8) return work(Fixed<8>());
    }
    return withStaticSize(n, work);
}
template <class Operand, class Work>
auto withKnownSquare(std::ptrdiff_t width, std::ptrdiff_t height, const Work& work) {
    if constexpr (mayFillRegisters<Operand> && Operand::holdsArray) {
        if (width == 8 && height == 8) return work(Fixed<8>(), Fixed<8>());
    }
    return withStaticSquare(width, height, work);
}

// Sizes that only lanes know are not known to one object.
template <class N>
constexpr auto sizeOfOne(N n) {
    if constexpr (hasOwnPath<N>)
        return n;
    else
        return std::ptrdiff_t{n};
}

} // namespace qorm
