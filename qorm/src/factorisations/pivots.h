// The row numbers of pivots: 32-bit integers in memory, values of the element type in lanes.
#pragma once

#include "frame/lane_blocks.h"

#include <cstdint>

namespace qorm::factorisations {

// Whether rows of lanes change places in registers where their size has no path of its own: objects
// side by side are loaded and stored whole, but only element by element in another order.
template <class N, class Operand>
bool movesRowsInRegisters(const Operand& operand) {
    return isFixed<N> && Operand::layout == Layout::P && operand.hasObjectsSideBySide();
}

typedef std::int32_t RegisterOfIntegers __attribute__((vector_size(registerBytes)));
typedef std::int32_t HalfOfIntegers __attribute__((vector_size(registerBytes / 2)));

// Packs whose integers fill whole registers. These are then moved as the bits of floats.
template <class V>
inline constexpr int registersOfIntegers = 0;
template <int registers>
inline constexpr int registersOfIntegers<Pack<float, registers>> = registers;
template <>
inline constexpr int registersOfIntegers<Pack<double, 2>> = 1;

template <class V>
using IntegerBits = Pack<float, registersOfIntegers<V>>;

template <int registers>
IntegerBits<Pack<float, registers>> toIntegers(Pack<float, registers> numbers) {
    for (auto& lane : numbers.lanes) {
        lane = (RegisterOfFloats) __builtin_convertvector(lane, RegisterOfIntegers);
    }
    return numbers;
}

template <int registers>
void fromIntegers(const Pack<float, registers>& bits, Pack<float, registers>& numbers) {
    for (int r = 0; r < registers; ++r) {
        numbers.lanes[r] =
            __builtin_convertvector((RegisterOfIntegers)bits.lanes[r], RegisterOfFloats);
    }
}

inline Pack<float> toIntegers(const Pack<double, 2>& numbers) {
    const HalfOfIntegers halves[2] = {__builtin_convertvector(numbers.lanes[0], HalfOfIntegers),
                                      __builtin_convertvector(numbers.lanes[1], HalfOfIntegers)};
    Pack<float> bits;
    std::memcpy(&bits, halves, sizeof bits);
    return bits;
}

inline void fromIntegers(const Pack<float>& bits, Pack<double, 2>& numbers) {
    HalfOfIntegers halves[2];
    std::memcpy(halves, &bits, sizeof bits);
    for (int r = 0; r < 2; ++r) {
        numbers.lanes[r] = __builtin_convertvector(halves[r], RegisterOfDoubles);
    }
}

// The lanes of a pack, one after the other.
template <Scalar T, int registers>
void convertLanes(const Pack<T, registers>& numbers, std::int32_t* integers) {
    constexpr int lanes = laneCount<Pack<T>>;
    typedef std::int32_t Integers __attribute__((vector_size(lanes * sizeof(std::int32_t))));
    for (const Register<T> lane : numbers.lanes) {
        const Integers converted = __builtin_convertvector(lane, Integers);
        std::memcpy(integers, &converted, sizeof converted);
        integers += lanes;
    }
}

template <class V, class N>
inline constexpr bool areMovedAsBits = isFixed<N>&& registersOfIntegers<V> != 0;

template <class V, class N>
void loadPivots(const Plain<const std::int32_t>& pivots, std::ptrdiff_t first, int live, N n,
                V* numbers) {
    if constexpr (areMovedAsBits<V, N>) {
        if (live == laneCount<V>) {
            IntegerBits<V> bits[n];
            loadPacked<float, n>(reinterpret_cast<const float*>(pivots.object(first).base), bits);
            for (std::ptrdiff_t k = 0; k < n; ++k) fromIntegers(bits[k], numbers[k]);
            return;
        }
    }
    loadLanes(pivots, first, live, n, PackRun<V>{numbers});
}

template <class V, class N>
void storePivots(const Plain<std::int32_t>& pivots, std::ptrdiff_t first, int live, N n,
                 V* numbers) {
    if constexpr (areMovedAsBits<V, N>) {
        if (live == laneCount<V>) {
            IntegerBits<V> bits[n];
            for (std::ptrdiff_t k = 0; k < n; ++k) bits[k] = toIntegers(numbers[k]);
            storePacked<float, n, Belonging<Part::whole, 1, n>>(
                reinterpret_cast<float*>(pivots.object(first).base), bits);
            return;
        }
    }
    std::int32_t rows[largestSize<N>][laneCount<V>];
    for (std::ptrdiff_t k = 0; k < n; ++k) convertLanes(numbers[k], rows[k]);
    for (int lane = 0; lane < live; ++lane) {
        const Run<std::int32_t> index = pivots.object(first + lane);
        for (std::ptrdiff_t k = 0; k < n; ++k) index(k) = std::int32_t{rows[k][lane]};
    }
}

} // namespace qorm::factorisations
