// What determinants and inverses share: sizes, and blocks of objects.
#pragma once

#include "frame/lane_blocks.h"
#include "frame/overlap.h"
#include "frame/static_size.h"

namespace qorm::measures {

// Sizes that need no elimination.
template <class N>
inline constexpr bool hasClosedForm = false;
template <std::ptrdiff_t n>
inline constexpr bool hasClosedForm<Fixed<n>> = n >= 3 && n <= 6;

// Calls work(n) with a constant for sizes 2 to 6.
template <class Work>
auto withSmallSize(std::ptrdiff_t n, const Work& work) {
    return n == 2 ? work(Fixed<2>()) : withStaticSize(n, work);
}

// Objects side by side are in lanes as they lie.
template <class V, class Matrix>
auto lanesInPlace(const Matrix& object) {
    return [object](std::ptrdiff_t i, std::ptrdiff_t j) {
        return loadWhole<V>(object(i, j).address());
    };
}

} // namespace qorm::measures
