// Packs of adjacent elements, from memory and back. With fewer than all lanes live, no byte behind
// the live ones is touched.
#pragma once

#include "frame/elements.h"
#include "frame/lanes.h"

#include <cstring>

namespace qorm {

// All lanes of V, a pack or a number, from memory and back. Register by register: compilers keep in
// registers what they don't see moved as a block.
template <class V, Scalar T>
V loadWhole(const T* from) {
    V whole;
    if constexpr (laneCount<V> == 1) {
        std::memcpy(&whole, from, sizeof whole);
    } else {
        for (auto& lanes : whole.lanes) {
            Register<T> loaded;
            std::memcpy(&loaded, from, sizeof loaded);
            lanes = loaded;
            from += laneCount<Pack<T>>;
        }
    }
    return whole;
}

template <class V, Scalar T>
void storeWhole(T* to, const V& whole) {
    if constexpr (laneCount<V> == 1) {
        std::memcpy(to, &whole, sizeof whole);
    } else {
        for (const Register<T> lanes : whole.lanes) {
            std::memcpy(to, &lanes, sizeof lanes);
            to += laneCount<Pack<T>>;
        }
    }
}

template <Scalar T>
Pack<T> loadRun(const T* from) {
    return loadWhole<Pack<T>>(from);
}

template <Scalar T>
void storeRun(T* to, const Pack<T>& run) {
    storeWhole(to, run);
}

#if defined(QORM_AVX512)

template <Scalar T>
Flags<T> firstLanes(int live) {
    return static_cast<Flags<T>>((1U << live) - 1);
}

template <Scalar T>
Pack<T> loadRun(const T* from, int live) {
    Pack<T> run;
    if constexpr (sizeof(T) == 4)
        run.lanes[0] = _mm512_maskz_loadu_ps(firstLanes<T>(live), from);
    else
        run.lanes[0] = _mm512_maskz_loadu_pd(firstLanes<T>(live), from);
    return run;
}

template <Scalar T>
void storeRun(T* to, const Pack<T>& run, int live) {
    if constexpr (sizeof(T) == 4)
        _mm512_mask_storeu_ps(to, firstLanes<T>(live), run.lanes[0]);
    else
        _mm512_mask_storeu_pd(to, firstLanes<T>(live), run.lanes[0]);
}

#elif defined(__AVX2__)

template <Scalar T>
__m256i firstLanes(int live) {
    if constexpr (sizeof(T) == 4) {
        return _mm256_cmpgt_epi32(_mm256_set1_epi32(live),
                                  _mm256_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7));
    } else {
        return _mm256_cmpgt_epi64(_mm256_set1_epi64x(live), _mm256_setr_epi64x(0, 1, 2, 3));
    }
}

template <Scalar T>
Pack<T> loadRun(const T* from, int live) {
    Pack<T> run;
    if constexpr (sizeof(T) == 4)
        run.lanes[0] = _mm256_maskload_ps(from, firstLanes<T>(live));
    else
        run.lanes[0] = _mm256_maskload_pd(from, firstLanes<T>(live));
    return run;
}

template <Scalar T>
void storeRun(T* to, const Pack<T>& run, int live) {
    if constexpr (sizeof(T) == 4)
        _mm256_maskstore_ps(to, firstLanes<T>(live), run.lanes[0]);
    else
        _mm256_maskstore_pd(to, firstLanes<T>(live), run.lanes[0]);
}

#else

template <Scalar T>
Pack<T> loadRun(const T* from, int live) {
    Pack<T> run(T(0));
    for (int lane = 0; lane < live; ++lane) run.lanes[0][lane] = Element(from + lane);
    return run;
}

template <Scalar T>
void storeRun(T* to, const Pack<T>& run, int live) {
    for (int lane = 0; lane < live; ++lane) Element(to + lane) = run.lanes[0][lane];
}

#endif

// With the number of live lanes as a constant.
template <int live, Scalar T>
Pack<T> loadRun(const T* from) {
    if constexpr (live == laneCount<Pack<T>>)
        return loadRun(from);
    else
        return loadRun(from, live);
}

template <int live, Scalar T>
void storeRun(T* to, const Pack<T>& run) {
    if constexpr (live == laneCount<Pack<T>>)
        storeRun(to, run);
    else
        storeRun(to, run, live);
}

} // namespace qorm
