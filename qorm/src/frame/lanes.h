// Lanes: a pack is one native register of values, one per object. A kernel that takes its value
// type as a parameter works on one object with a scalar and on as many objects as there are lanes
// with a pack; each lane does exactly the operations of the scalar, so the bits are the same.
//
// Conditions become masks: `select` in place of `? :`, `assignWhere` in place of `if`, and `any` to
// leave early. For scalars a mask is a bool and all three are what they replace.
//
// The packs wrap the compilers' vector extensions, which know all of arithmetic on GCC and Clang, on
// x86 and Arm. What these lack, roots and masks, is taken from the instruction set where it has
// something to give and written plainly elsewhere.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <type_traits>
#include <utility>

#if defined(__SSE2__)
#include <immintrin.h>
#endif

namespace qorm {

#if defined(__AVX512F__) && defined(__AVX512DQ__)
#define QORM_AVX512 1
inline constexpr int registerBytes = 64;
#elif defined(__AVX__)
inline constexpr int registerBytes = 32;
#else
inline constexpr int registerBytes = 16;
#endif

template <class T>
inline constexpr int laneCount = registerBytes / static_cast<int>(sizeof(T));

typedef float RegisterOfFloats __attribute__((vector_size(registerBytes)));
typedef double RegisterOfDoubles __attribute__((vector_size(registerBytes)));

template <class T>
using Register = std::conditional_t<sizeof(T) == 4, RegisterOfFloats, RegisterOfDoubles>;

// One condition per lane: a bit where there are mask registers, else an integer of all zeros or all
// ones of the width of T.
template <class T>
struct PackMask {
#if defined(QORM_AVX512)
    using Flags = std::conditional_t<sizeof(T) == 4, __mmask16, __mmask8>;
#else
    using Flags = decltype(Register<T>() < Register<T>());
#endif
    Flags flags;

    friend PackMask operator&(PackMask a, PackMask b) {
        return {static_cast<Flags>(a.flags & b.flags)};
    }
    friend PackMask operator|(PackMask a, PackMask b) {
        return {static_cast<Flags>(a.flags | b.flags)};
    }
    friend PackMask operator!(PackMask a) {
        return {static_cast<Flags>(~a.flags)};
    }
};

template <class T>
struct Pack {
    using Lane = T;

    Register<T> lanes;

    Pack() = default;
    Pack(Register<T> values) : lanes(values) {}
    // x - (+0) is x for every x, which x + 0 is not.
    Pack(T value) : lanes(value - Register<T>{}) {}

    friend Pack operator+(Pack a, Pack b) { return a.lanes + b.lanes; }
    friend Pack operator-(Pack a, Pack b) { return a.lanes - b.lanes; }
    friend Pack operator*(Pack a, Pack b) { return a.lanes * b.lanes; }
    friend Pack operator/(Pack a, Pack b) { return a.lanes / b.lanes; }
    friend Pack operator-(Pack a) { return -a.lanes; }

#if defined(QORM_AVX512)
    friend PackMask<T> operator>(Pack a, Pack b) {
        return compare<_CMP_GT_OQ>(a, b);
    }
    friend PackMask<T> operator<=(Pack a, Pack b) {
        return compare<_CMP_LE_OQ>(a, b);
    }
    friend PackMask<T> operator==(Pack a, Pack b) {
        return compare<_CMP_EQ_OQ>(a, b);
    }

private:
    template <int relation>
    static PackMask<T> compare(Pack a, Pack b) {
        if constexpr (sizeof(T) == 4)
            return {_mm512_cmp_ps_mask(a.lanes, b.lanes, relation)};
        else
            return {_mm512_cmp_pd_mask(a.lanes, b.lanes, relation)};
    }
#else
    friend PackMask<T> operator>(Pack a, Pack b) {
        return opaque(a.lanes > b.lanes);
    }
    friend PackMask<T> operator<=(Pack a, Pack b) {
        return opaque(a.lanes <= b.lanes);
    }
    friend PackMask<T> operator==(Pack a, Pack b) {
        return opaque(a.lanes == b.lanes);
    }

private:
    static PackMask<T> opaque(typename PackMask<T>::Flags flags) {
#if defined(__SSE2__) && !defined(__SSE4_1__)
        // Without blend instructions GCC 12 folds comparisons into conditionals that it then fails
        // to expand.
        __asm__("" : "+x"(flags));
#endif
        return {flags};
    }
#endif
};

template <class V>
inline constexpr bool isPack = !std::is_floating_point_v<V>;

template <class V>
using Mask = decltype(V() > V());

template <class V>
struct LaneTypeOf {
    using Type = typename V::Lane;
};
template <>
struct LaneTypeOf<float> {
    using Type = float;
};
template <>
struct LaneTypeOf<double> {
    using Type = double;
};

// float or double.
template <class V>
using LaneType = typename LaneTypeOf<V>::Type;

template <class T>
requires std::is_floating_point_v<T> T select(bool where, T chosen, T otherwise) {
    return where ? chosen : otherwise;
}

template <class T>
Pack<T> select(PackMask<T> where, Pack<T> chosen, Pack<T> otherwise) {
#if defined(QORM_AVX512)
    if constexpr (sizeof(T) == 4) {
        return Register<T>(_mm512_mask_mov_ps(otherwise.lanes, where.flags, chosen.lanes));
    } else {
        return Register<T>(_mm512_mask_mov_pd(otherwise.lanes, where.flags, chosen.lanes));
    }
#else
    using Bits = typename PackMask<T>::Flags;
    return (Register<T>)((where.flags & (Bits)chosen.lanes) |
                         (~where.flags & (Bits)otherwise.lanes));
#endif
}

template <class To, class T>
requires std::is_floating_point_v<T>
void assignWhere(bool where, To&& to, T value) {
    if (where) to = value;
}

template <class T>
void assignWhere(PackMask<T> where, Pack<T>& to, Pack<T> value) {
    to = select(where, value, to);
}

inline bool any(bool mask) {
    return mask;
}

template <class T>
bool any(PackMask<T> mask) {
    [[maybe_unused]] constexpr bool singles = sizeof(T) == 4;
#if defined(QORM_AVX512)
    return mask.flags != 0;
#elif defined(__AVX__)
    if constexpr (singles)
        return _mm256_movemask_ps((__m256)mask.flags) != 0;
    else
        return _mm256_movemask_pd((__m256d)mask.flags) != 0;
#elif defined(__SSE2__)
    if constexpr (singles)
        return _mm_movemask_ps((__m128)mask.flags) != 0;
    else
        return _mm_movemask_pd((__m128d)mask.flags) != 0;
#else
    bool found = false;
    for (int lane = 0; lane < laneCount<T>; ++lane) found |= mask.flags[lane] != 0;
    return found;
#endif
}

template <class T>
requires std::is_floating_point_v<T> T abs(T x) {
    return std::fabs(x);
}

template <class T>
Pack<T> abs(Pack<T> x) {
    using Bits = decltype(x.lanes < x.lanes);
    return (Register<T>)((Bits)x.lanes & ~(Bits)Pack<T>(T(-0.0)).lanes);
}

template <class T>
requires std::is_floating_point_v<T> T sqrt(T x) {
    return std::sqrt(x);
}

template <class T>
Pack<T> sqrt(Pack<T> x) {
    [[maybe_unused]] constexpr bool singles = sizeof(T) == 4;
#if defined(QORM_AVX512)
    // The unmasked intrinsic warns in GCC 12.
    if constexpr (singles)
        return Register<T>(_mm512_maskz_sqrt_ps(0xFFFF, x.lanes));
    else
        return Register<T>(_mm512_maskz_sqrt_pd(0xFF, x.lanes));
#elif defined(__AVX__)
    if constexpr (singles)
        return Register<T>(_mm256_sqrt_ps(x.lanes));
    else
        return Register<T>(_mm256_sqrt_pd(x.lanes));
#elif defined(__SSE2__)
    if constexpr (singles)
        return Register<T>(_mm_sqrt_ps(x.lanes));
    else
        return Register<T>(_mm_sqrt_pd(x.lanes));
#else
    for (int lane = 0; lane < laneCount<T>; ++lane) x.lanes[lane] = std::sqrt(x.lanes[lane]);
    return x;
#endif
}

// f(x), computed in 64-bit arithmetic and rounded to the type of x.
template <class F>
double in64(double x, F f) {
    return f(x);
}
template <class F>
float in64(float x, F f) {
    return static_cast<float>(f(double{x}));
}
template <class F>
Pack<double> in64(Pack<double> x, F f) {
    return f(x);
}
template <class F, int... lane>
Pack<float> in64(Pack<float> x, F f, std::integer_sequence<int, lane...>) {
    constexpr int half = laneCount<double>;
    typedef float HalfRegister __attribute__((vector_size(registerBytes / 2)));
    const auto rounded = [&](HalfRegister part) {
        const Pack<double> wide = f(Pack<double>(__builtin_convertvector(part, Register<double>)));
        return __builtin_convertvector(wide.lanes, HalfRegister);
    };
    const HalfRegister low = rounded(__builtin_shufflevector(x.lanes, x.lanes, lane...));
    const HalfRegister high = rounded(__builtin_shufflevector(x.lanes, x.lanes, (half + lane)...));
    return __builtin_shufflevector(low, high, lane..., (half + lane)...);
}
template <class F>
Pack<float> in64(Pack<float> x, F f) {
    return in64(x, f, std::make_integer_sequence<int, laneCount<double>>());
}

} // namespace qorm
