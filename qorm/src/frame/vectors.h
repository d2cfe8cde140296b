// Vectors of any power of two of elements. Where one is wider than a register, compilers split it.
#pragma once

#include "frame/elements.h"
#include "frame/lanes.h"

#include <bit>
#include <cstring>

namespace qorm {

template <Scalar T, int lanes>
struct VectorOf {
    typedef T Type __attribute__((vector_size(lanes * sizeof(T))));
};

template <Scalar T, int lanes>
using Vector = typename VectorOf<T, lanes>::Type;

// The lanes of a vector for so many elements.
constexpr int lanesFor(int elements) {
    return static_cast<int>(std::bit_ceil(static_cast<unsigned>(elements)));
}

constexpr unsigned firstLanesOf(int live) {
    return (1U << live) - 1;
}

// The first `live` lanes from memory, zeros in the others.
template <Scalar T, int lanes, int live>
[[gnu::always_inline]] inline Vector<T, lanes> loadVector(const T* from) {
    Vector<T, lanes> vector{};
    if constexpr (live == lanes) {
        std::memcpy(&vector, from, sizeof vector);
    } else {
#if defined(QORM_AVX512)
        constexpr bool singles = sizeof(T) == 4;
        constexpr unsigned mask = firstLanesOf(live);
        if constexpr (singles && lanes == 4)
            vector = _mm_maskz_loadu_ps(mask, from);
        else if constexpr (singles && lanes == 8)
            vector = _mm256_maskz_loadu_ps(mask, from);
        else if constexpr (singles)
            vector = _mm512_maskz_loadu_ps(mask, from);
        else if constexpr (lanes == 4)
            vector = _mm256_maskz_loadu_pd(mask, from);
        else
            vector = _mm512_maskz_loadu_pd(mask, from);
#else
        for (int lane = 0; lane < live; ++lane) vector[lane] = Element(from + lane);
#endif
    }
    return vector;
}

// The lanes whose bit is set to memory; no other byte is touched.
template <Scalar T, int lanes, unsigned mask>
[[gnu::always_inline]] inline void storeLanesOf(const Vector<T, lanes>& vector, T* to) {
    if constexpr (mask == firstLanesOf(lanes)) {
        std::memcpy(to, &vector, sizeof vector);
    } else {
#if defined(QORM_AVX512)
        constexpr bool singles = sizeof(T) == 4;
        if constexpr (singles && lanes == 4)
            _mm_mask_storeu_ps(to, mask, vector);
        else if constexpr (singles && lanes == 8)
            _mm256_mask_storeu_ps(to, mask, vector);
        else if constexpr (singles)
            _mm512_mask_storeu_ps(to, mask, vector);
        else if constexpr (lanes == 4)
            _mm256_mask_storeu_pd(to, mask, vector);
        else
            _mm512_mask_storeu_pd(to, mask, vector);
#else
        for (int lane = 0; lane < lanes; ++lane) {
            if ((mask >> lane & 1) != 0) Element(to + lane) = vector[lane];
        }
#endif
    }
}

// The first `live` lanes to memory.
template <Scalar T, int lanes, int live>
[[gnu::always_inline]] inline void storeVector(const Vector<T, lanes>& vector, T* to) {
    storeLanesOf<T, lanes, firstLanesOf(live)>(vector, to);
}

} // namespace qorm
