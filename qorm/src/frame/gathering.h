// Registers of elements that lie anywhere among adjacent ones: whole runs are loaded, and their lanes
// permuted.
#pragma once

#include "frame/runs.h"
#include "frame/transposition.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace qorm {

// That takes permutations of any lanes of two registers, as AVX-512 has them.
#if defined(QORM_AVX512)
inline constexpr bool hasGathering = true;
#else
inline constexpr bool hasGathering = false;
#endif

// Lane l of the result is that of number sources[l] in x and, behind it, y.
#if defined(QORM_AVX512)
[[gnu::always_inline]] inline Pack<float> permuted(Pack<float> x, const Pack<float>& y,
                                                   const std::int32_t* sources) {
    x.lanes[0] = _mm512_permutex2var_ps(x.lanes[0], _mm512_loadu_si512(sources), y.lanes[0]);
    return x;
}
[[gnu::always_inline]] inline Pack<double> permuted(Pack<double> x, const Pack<double>& y,
                                                    const std::int64_t* sources) {
    x.lanes[0] = _mm512_permutex2var_pd(x.lanes[0], _mm512_loadu_si512(sources), y.lanes[0]);
    return x;
}
#endif

// Where the lanes of a register come from: of each lane the run in memory and its place therein.
template <int lanes>
struct Origin {
    static constexpr int mostRuns = 5;

    int runs[mostRuns];
    int count;
    std::array<int, lanes> runOf;
    std::array<int, lanes> placeOf;
};

// The origin of wanted elements out of `all`, in as few runs as can be. Two runs at whole registers
// are preferred, since other terms share them.
template <int lanes>
constexpr Origin<lanes> originOf(const std::array<int, lanes>& wanted, int all) {
    const int lastRun = std::max(all - lanes, 0);
    const int lowest = *std::min_element(wanted.begin(), wanted.end());
    const int highest = *std::max_element(wanted.begin(), wanted.end());
    const bool isAligned = highest < lowest / lanes * lanes + 2 * lanes;
    Origin<lanes> origin{};
    for (int next = lowest; next < all;) {
        int& run = origin.runs[origin.count];
        run = std::min(isAligned ? next / lanes * lanes : next, lastRun);
        next = all;
        for (std::size_t lane = 0; lane < lanes; ++lane) {
            const int element = wanted[lane];
            if (element >= run + lanes) next = std::min(next, element);
            if (element < run || element >= run + lanes) continue;
            origin.runOf[lane] = origin.count;
            origin.placeOf[lane] = element - run;
        }
        ++origin.count;
    }
    return origin;
}

// The lanes that come from run `index`, put to what is gathered from the runs before it.
template <auto origin, int index, class V>
[[gnu::always_inline]] inline V gatherFromRun(const V& before, const V& run) {
    constexpr int lanes = laneCount<V>;
    constexpr auto sourceOf = [](int l) {
        const auto lane = static_cast<std::size_t>(l);
        if (origin.runOf[lane] == index)
            return index == 0 ? origin.placeOf[lane] : lanes + origin.placeOf[lane];
        return index == 1 ? origin.placeOf[lane] : l;
    };
    V gathered;
    gathered.lanes[0] = shuffled<sourceOf>(before.lanes[0], run.lanes[0], upTo<lanes>);
    return gathered;
}

// The wanted elements out of the `all` that begin at `from`; no byte behind these is read.
template <Scalar T, auto wanted, int all>
[[gnu::always_inline]] inline Pack<T> gatherElements(const T* from) {
    constexpr int lanes = laneCount<Pack<T>>;
    constexpr Origin<lanes> origin = originOf<lanes>(wanted, all);
    const auto run = [&](auto index) __attribute__((always_inline)) {
        return loadRun<std::min(all, lanes)>(from + origin.runs[index]);
    };
    Pack<T> gathered = run(std::integral_constant<int, 0>());
    if constexpr (origin.count == 1) gathered = gatherFromRun<origin, 0>(gathered, gathered);
    forEachConstant(
        upTo<origin.count - 1>, [&](auto before) __attribute__((always_inline)) {
            constexpr int next = before + 1;
            gathered =
                gatherFromRun<origin, next>(gathered, run(std::integral_constant<int, next>()));
        });
    return gathered;
}

} // namespace qorm
