// Transposition in registers.
#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

namespace qorm {

// The constants 0 .. end - 1.
template <int end>
inline constexpr std::make_integer_sequence<int, end> upTo{};

// work(i) for each. One function deep: what is inlined is copied at each level.
template <int... i, class Work>
[[gnu::always_inline]] inline void forEachConstant(std::integer_sequence<int, i...>,
                                                   const Work& work) {
    (work(std::integral_constant<int, i>()), ...);
}

// Lane l of the result is that of number sourceOf(l) in x and, behind it, y.
template <auto sourceOf, class Vector, int... lane>
[[gnu::always_inline]] inline Vector shuffled(const Vector& x, const Vector& y,
                                              std::integer_sequence<int, lane...>) {
    return __builtin_shufflevector(x, y, sourceOf(lane)...);
}

// The lower or upper halves of each group of `width` lanes of x and y, interleaved: within 16 bytes
// one cheap instruction.
template <bool upper, int width, class Vector>
[[gnu::always_inline]] inline Vector interleaved(const Vector& x, const Vector& y) {
    constexpr int lanes = sizeof x / sizeof x[0];
    constexpr auto sourceOf = [](int lane) {
        const int group = lane / width * width;
        const int element = group + lane % width / 2 + (upper ? width / 2 : 0);
        return lane % 2 == 0 ? element : lanes + element;
    };
    return shuffled<sourceOf>(x, y, upTo<lanes>);
}

// In each group of `count` lanes, lane i of vector j becomes lane j of vector i.
template <class Vector, int count, int stages = count>
[[gnu::always_inline]] inline void transpose(Vector (&vectors)[count]) {
    if constexpr (stages > 1) {
        Vector next[count];
        forEachConstant(
            upTo<count / 2>, [&](auto i) __attribute__((always_inline)) {
                next[2 * i] = interleaved<false, count>(vectors[i], vectors[i + count / 2]);
                next[2 * i + 1] = interleaved<true, count>(vectors[i], vectors[i + count / 2]);
            });
        forEachConstant(
            upTo<count>, [&](auto i) __attribute__((always_inline)) { vectors[i] = next[i]; });
        transpose<Vector, count, stages / 2>(vectors);
    }
}

// The even or the odd blocks of 16 bytes of x, and behind them those of y.
template <bool odd, class Vector>
[[gnu::always_inline]] inline Vector blocksOf(const Vector& x, const Vector& y) {
    constexpr int lanes = sizeof x / sizeof x[0];
    constexpr int width = 16 / sizeof x[0];
    constexpr auto sourceOf = [](int lane) {
        return (2 * (lane / width) + (odd ? 1 : 0)) * width + lane % width;
    };
    return shuffled<sourceOf>(x, y, upTo<lanes>);
}

// Block i of vector j becomes block j of vector i.
template <class Vector, int blocks>
[[gnu::always_inline]] inline void transposeBlocks(Vector (&x)[blocks]) {
    static_assert(blocks == 1 || blocks == 2 || blocks == 4);
    if constexpr (blocks == 2) {
        const Vector even = blocksOf<false>(x[0], x[1]);
        x[1] = blocksOf<true>(x[0], x[1]);
        x[0] = even;
    } else if constexpr (blocks == 4) {
        const Vector even01 = blocksOf<false>(x[0], x[1]);
        const Vector odd01 = blocksOf<true>(x[0], x[1]);
        const Vector even23 = blocksOf<false>(x[2], x[3]);
        const Vector odd23 = blocksOf<true>(x[2], x[3]);
        x[0] = blocksOf<false>(even01, even23);
        x[1] = blocksOf<false>(odd01, odd23);
        x[2] = blocksOf<true>(even01, even23);
        x[3] = blocksOf<true>(odd01, odd23);
    }
}

// As many registers as they have lanes: first inside blocks of 16 bytes, then the blocks. Each step is
// one instruction that needs no table of lanes.
template <class Vector, int lanes>
[[gnu::always_inline]] inline void transposeRegisters(Vector (&registers)[lanes]) {
    constexpr int width = 16 / sizeof registers[0][0];
    constexpr int blocks = lanes / width;
    Vector byPlace[width][blocks];
    forEachConstant(
        upTo<blocks>, [&](auto block) __attribute__((always_inline)) {
            Vector group[width];
            forEachConstant(
                upTo<width>, [&](auto i) __attribute__((always_inline)) {
                    group[i] = registers[block * width + i];
                });
            transpose(group);
            forEachConstant(
                upTo<width>, [&](auto i)
                                 __attribute__((always_inline)) { byPlace[i][block] = group[i]; });
        });
    forEachConstant(
        upTo<width>, [&](auto i) __attribute__((always_inline)) {
            transposeBlocks(byPlace[i]);
            forEachConstant(
                upTo<blocks>, [&](auto block) __attribute__((always_inline)) {
                    registers[block * width + i] = byPlace[i][block];
                });
        });
}

// Objects one behind the other, in as many registers as each has elements: lane l of register p
// becomes element p of object l (gather), or the other way round (scatter).
//
// An odd number of elements. Let W be the number of lanes. Lane c of register r holds element p = (Wr + c) mod elements of its
// object. For each lane that is a rotation of the registers by s(c) = c/W, taken modulo `elements`,
// which is done bit by bit; what is left is a permutation of each register's lanes.
template <int elements, int lanes>
struct OddTransposition {
    static_assert(elements % 2 == 1 && elements < 16);

    static constexpr int inverseOfLanes = [] {
        int inverse = 1;
        while (inverse * lanes % elements != 1) ++inverse;
        return inverse;
    }();

    static constexpr int rotationOf(int lane) { return lane * inverseOfLanes % elements; }
    static constexpr int rotated(int which, int by) {
        return ((which + by) % elements + elements) % elements;
    }

    // The register that holds element p after the rotations, and the lane that object l has there.
    static constexpr int registerOf(int p) { return p * inverseOfLanes % elements; }
    static constexpr int laneOf(int p, int l) { return (elements * l + p) % lanes; }
    static constexpr int objectIn(int p, int lane) {
        int l = 0;
        while (laneOf(p, l) != lane) ++l;
        return l;
    }

    // In the lanes whose rotation has this bit, register r takes what register r - bit has, or for
    // the way back r + bit.
    template <int bit, int sign, class Vector>
    [[gnu::always_inline]] static void rotate(Vector (&x)[elements]) {
        constexpr auto sourceOf = [](int lane) {
            return (rotationOf(lane) & bit) != 0 ? lanes + lane : lane;
        };
        Vector next[elements];
        forEachConstant(
            upTo<elements>, [&](auto r) __attribute__((always_inline)) {
                next[r] = shuffled<sourceOf>(x[r], x[rotated(r, -sign * bit)], upTo<lanes>);
            });
        forEachConstant(
            upTo<elements>, [&](auto r) __attribute__((always_inline)) { x[r] = next[r]; });
    }

    template <class Vector>
    [[gnu::always_inline]] static void gather(Vector (&x)[elements]) {
        rotate<1, 1>(x);
        rotate<2, 1>(x);
        rotate<4, 1>(x);
        rotate<8, 1>(x);
        Vector gathered[elements];
        forEachConstant(
            upTo<elements>, [&](auto p) __attribute__((always_inline)) {
                constexpr int element = p;
                constexpr auto sourceOf = [](int l) { return laneOf(element, l); };
                const Vector& from = x[registerOf(p)];
                gathered[p] = shuffled<sourceOf>(from, from, upTo<lanes>);
            });
        forEachConstant(
            upTo<elements>, [&](auto p) __attribute__((always_inline)) { x[p] = gathered[p]; });
    }

    template <class Vector>
    [[gnu::always_inline]] static void scatter(Vector (&x)[elements]) {
        Vector scattered[elements];
        forEachConstant(
            upTo<elements>, [&](auto p) __attribute__((always_inline)) {
                constexpr int element = p;
                constexpr auto sourceOf = [](int lane) { return objectIn(element, lane); };
                scattered[registerOf(p)] = shuffled<sourceOf>(x[p], x[p], upTo<lanes>);
            });
        forEachConstant(
            upTo<elements>, [&](auto p) __attribute__((always_inline)) { x[p] = scattered[p]; });
        rotate<8, -1>(x);
        rotate<4, -1>(x);
        rotate<2, -1>(x);
        rotate<1, -1>(x);
    }
};

// A power of two. Each round of gathering parts the even from the odd lanes of neighbouring registers,
// which moves the lowest bit of an element's place to the top.
template <int elements, int lanes>
struct HalvingTransposition {
    static constexpr int half = elements / 2;

    template <bool odd, class Vector>
    [[gnu::always_inline]] static Vector parted(const Vector& x, const Vector& y) {
        constexpr auto sourceOf = [](int lane) { return 2 * lane + (odd ? 1 : 0); };
        return shuffled<sourceOf>(x, y, upTo<lanes>);
    }

    template <class Vector, int rounds = elements>
    [[gnu::always_inline]] static void gather(Vector (&x)[elements]) {
        if constexpr (rounds > 1) {
            Vector next[elements];
            forEachConstant(
                upTo<half>, [&](auto r) __attribute__((always_inline)) {
                    next[r] = parted<false>(x[2 * r], x[2 * r + 1]);
                    next[r + half] = parted<true>(x[2 * r], x[2 * r + 1]);
                });
            forEachConstant(
                upTo<elements>, [&](auto r) __attribute__((always_inline)) { x[r] = next[r]; });
            gather<Vector, rounds / 2>(x);
        }
    }

    template <class Vector, int rounds = elements>
    [[gnu::always_inline]] static void scatter(Vector (&x)[elements]) {
        if constexpr (rounds > 1) {
            Vector next[elements];
            forEachConstant(
                upTo<half>, [&](auto r) __attribute__((always_inline)) {
                    next[2 * r] = interleaved<false, lanes>(x[r], x[r + half]);
                    next[2 * r + 1] = interleaved<true, lanes>(x[r], x[r + half]);
                });
            forEachConstant(
                upTo<elements>, [&](auto r) __attribute__((always_inline)) { x[r] = next[r]; });
            scatter<Vector, rounds / 2>(x);
        }
    }
};

// Lengths for which this pays.
template <int elements>
inline constexpr bool hasPackedTransposition = elements == 4 ||
                                               (elements % 2 == 1 && elements < 16);

template <int elements, int lanes>
using PackedTransposition = std::conditional_t<elements % 2 == 1, OddTransposition<elements, lanes>,
                                               HalvingTransposition<elements, lanes>>;

} // namespace qorm
