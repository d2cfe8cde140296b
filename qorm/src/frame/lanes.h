// Lanes: a pack holds one value of each of several objects. A kernel that takes its value type as a
// parameter works on one object with a scalar and on as many objects as there are lanes with a pack;
// each lane does exactly the operations of the scalar, so the bits are the same.
//
// Conditions become masks: `select` in place of `? :`, `assignWhere` in place of `if`, and `any` to
// leave early. For scalars a mask is a bool and all three are what they replace.
//
// Packs wrap the compilers' vector extensions, which know all of arithmetic on GCC and Clang, on x86
// and Arm. What these lack, roots and masks, is taken from the instruction set where it has something
// to give and written plainly elsewhere.
#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <utility>

#if defined(__SSE2__)
#include <immintrin.h>
#endif

// A function of its own with all that it calls inside. GCC's copies of it for constant arguments lose
// more by crowded registers than they gain.
#if defined(__clang__)
#define QORM_KERNEL [[gnu::flatten, gnu::noinline]]
#else
#define QORM_KERNEL [[gnu::flatten, gnu::noinline, gnu::noclone]]
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

typedef float RegisterOfFloats __attribute__((vector_size(registerBytes)));
typedef double RegisterOfDoubles __attribute__((vector_size(registerBytes)));

template <class T>
using Register = std::conditional_t<sizeof(T) == 4, RegisterOfFloats, RegisterOfDoubles>;

// The bits of a register as integers of the width of T.
template <class T>
using Bits = decltype(Register<T>() < Register<T>());

// One condition per lane of a register: a bit where there are mask registers, else an integer of all
// zeros or all ones.
#if defined(QORM_AVX512)
template <class T>
using Flags = std::conditional_t<sizeof(T) == 4, __mmask16, __mmask8>;
#else
template <class T>
using Flags = Bits<T>;
#endif

template <class T>
concept Scalar = std::is_floating_point_v<T>;

// Operations on one register.
template <Scalar T>
struct RegisterOf {
    static constexpr bool singles = sizeof(T) == 4;

#if defined(QORM_AVX512)
    template <int relation>
    static Flags<T> compare(Register<T> x, Register<T> y) {
        if constexpr (singles)
            return _mm512_cmp_ps_mask(x, y, relation);
        else
            return _mm512_cmp_pd_mask(x, y, relation);
    }
    static Flags<T> isGreater(Register<T> x, Register<T> y) {
        return compare<_CMP_GT_OQ>(x, y);
    }
    static Flags<T> isAtMost(Register<T> x, Register<T> y) {
        return compare<_CMP_LE_OQ>(x, y);
    }
    static Flags<T> isEqual(Register<T> x, Register<T> y) {
        return compare<_CMP_EQ_OQ>(x, y);
    }
#else
    static Flags<T> isGreater(Register<T> x, Register<T> y) {
        return opaque(x > y);
    }
    static Flags<T> isAtMost(Register<T> x, Register<T> y) {
        return opaque(x <= y);
    }
    static Flags<T> isEqual(Register<T> x, Register<T> y) {
        return opaque(x == y);
    }

    static Flags<T> opaque(Flags<T> flags) {
#if defined(__SSE2__) && !defined(__SSE4_1__)
        // Without blend instructions GCC 12 folds comparisons into conditionals that it then fails
        // to expand.
        __asm__("" : "+x"(flags));
#endif
        return flags;
    }
#endif

    static Register<T> select(Flags<T> where, Register<T> chosen, Register<T> otherwise) {
#if defined(QORM_AVX512)
        if constexpr (singles)
            return _mm512_mask_mov_ps(otherwise, where, chosen);
        else
            return _mm512_mask_mov_pd(otherwise, where, chosen);
#else
        return (Register<T>)((where & (Bits<T>)chosen) | (~where & (Bits<T>)otherwise));
#endif
    }

    static bool any(Flags<T> flags) {
#if defined(QORM_AVX512)
        return flags != 0;
#elif defined(__AVX__)
        if constexpr (singles)
            return _mm256_movemask_ps((__m256)flags) != 0;
        else
            return _mm256_movemask_pd((__m256d)flags) != 0;
#elif defined(__SSE2__)
        if constexpr (singles)
            return _mm_movemask_ps((__m128)flags) != 0;
        else
            return _mm_movemask_pd((__m128d)flags) != 0;
#else
        bool found = false;
        for (std::size_t lane = 0; lane < registerBytes / sizeof(T); ++lane) {
            found |= flags[lane] != 0;
        }
        return found;
#endif
    }

    static Register<T> sqrt(Register<T> x) {
#if defined(QORM_AVX512)
        // The unmasked intrinsic warns in GCC 12.
        if constexpr (singles)
            return _mm512_maskz_sqrt_ps(0xFFFF, x);
        else
            return _mm512_maskz_sqrt_pd(0xFF, x);
#elif defined(__AVX__)
        if constexpr (singles)
            return _mm256_sqrt_ps(x);
        else
            return _mm256_sqrt_pd(x);
#elif defined(__SSE2__)
        if constexpr (singles)
            return _mm_sqrt_ps(x);
        else
            return _mm_sqrt_pd(x);
#else
        for (std::size_t lane = 0; lane < registerBytes / sizeof(T); ++lane) {
            x[lane] = std::sqrt(x[lane]);
        }
        return x;
#endif
    }

    // About 1/sqrt(x), to 12 bits or better. The estimates of 128 and 256 bits agree with the scalar
    // one, that of 512 bits does not.
    static Register<T> reciprocalSqrtEstimate(Register<T> x) {
        static_assert(singles);
#if defined(QORM_AVX512)
        const __m256 low = __builtin_shufflevector(x, x, 0, 1, 2, 3, 4, 5, 6, 7);
        const __m256 high = __builtin_shufflevector(x, x, 8, 9, 10, 11, 12, 13, 14, 15);
        return __builtin_shufflevector(_mm256_rsqrt_ps(low), _mm256_rsqrt_ps(high), 0, 1, 2, 3, 4,
                                       5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15);
#elif defined(__AVX__)
        return _mm256_rsqrt_ps(x);
#elif defined(__SSE2__)
        return _mm_rsqrt_ps(x);
#else
        return 1.0F / sqrt(x);
#endif
    }
};

template <Scalar T, int registers>
struct PackMask {
    Flags<T> flags[registers];

    friend PackMask operator&(PackMask a, const PackMask& b) {
        for (int k = 0; k < registers; ++k) a.flags[k] &= b.flags[k];
        return a;
    }
    friend PackMask operator|(PackMask a, const PackMask& b) {
        for (int k = 0; k < registers; ++k) a.flags[k] |= b.flags[k];
        return a;
    }
    friend PackMask operator!(PackMask a) {
        for (auto& flag : a.flags) flag = static_cast<Flags<T>>(~flag);
        return a;
    }
};

template <Scalar T, int registers = 1>
struct Pack {
    Register<T> lanes[registers];

    Pack() = default;
    explicit Pack(T value) {
        // x - (+0) is x for every x, which x + 0 is not.
        for (auto& lane : lanes) lane = value - Register<T>{};
    }

    friend Pack operator+(Pack a, const Pack& b) {
        for (int k = 0; k < registers; ++k) a.lanes[k] += b.lanes[k];
        return a;
    }
    friend Pack operator-(Pack a, const Pack& b) {
        for (int k = 0; k < registers; ++k) a.lanes[k] -= b.lanes[k];
        return a;
    }
    friend Pack operator*(Pack a, const Pack& b) {
        for (int k = 0; k < registers; ++k) a.lanes[k] *= b.lanes[k];
        return a;
    }
    friend Pack operator/(Pack a, const Pack& b) {
        for (int k = 0; k < registers; ++k) a.lanes[k] /= b.lanes[k];
        return a;
    }
    friend Pack operator-(Pack a) {
        for (auto& lane : a.lanes) lane = -lane;
        return a;
    }

    friend PackMask<T, registers> operator>(const Pack& a, const Pack& b) {
        return compare(a, b, RegisterOf<T>::isGreater);
    }
    friend PackMask<T, registers> operator<=(const Pack& a, const Pack& b) {
        return compare(a, b, RegisterOf<T>::isAtMost);
    }
    friend PackMask<T, registers> operator==(const Pack& a, const Pack& b) {
        return compare(a, b, RegisterOf<T>::isEqual);
    }

private:
    template <class Relation>
    static PackMask<T, registers> compare(const Pack& a, const Pack& b, Relation holds) {
        PackMask<T, registers> mask;
        for (int k = 0; k < registers; ++k) mask.flags[k] = holds(a.lanes[k], b.lanes[k]);
        return mask;
    }
};

template <class V>
struct LaneTypeOf {
    using Type = V;
};
template <Scalar T, int registers>
struct LaneTypeOf<Pack<T, registers>> {
    using Type = T;
};

// float or double.
template <class V>
using LaneType = typename LaneTypeOf<V>::Type;

template <class V>
inline constexpr int laneCount = sizeof(V) / sizeof(LaneType<V>);

template <class V>
LaneType<V> laneOf(const V& pack, int lane) {
    return reinterpret_cast<const LaneType<V>*>(&pack)[lane];
}

template <class V>
using Mask = decltype(V() > V());

// 2^-23 or 2^-52: the unit of all thresholds, which are absolute.
template <class V>
V epsilon() {
    return V(std::numeric_limits<LaneType<V>>::epsilon());
}

template <Scalar T>
T select(bool where, T chosen, T otherwise) {
    return where ? chosen : otherwise;
}

template <Scalar T, int registers>
Pack<T, registers> select(const PackMask<T, registers>& where, const Pack<T, registers>& chosen,
                          Pack<T, registers> otherwise) {
    for (int k = 0; k < registers; ++k) {
        otherwise.lanes[k] =
            RegisterOf<T>::select(where.flags[k], chosen.lanes[k], otherwise.lanes[k]);
    }
    return otherwise;
}

template <class To, Scalar T>
void assignWhere(bool where, To&& to, T value) {
    if (where) to = value;
}

template <Scalar T, int registers>
void assignWhere(const PackMask<T, registers>& where, Pack<T, registers>& to,
                 const Pack<T, registers>& value) {
    to = select(where, value, to);
}

inline bool any(bool mask) {
    return mask;
}

template <Scalar T, int registers>
bool any(const PackMask<T, registers>& mask) {
    Flags<T> flags = mask.flags[0];
    for (int k = 1; k < registers; ++k) flags |= mask.flags[k];
    return RegisterOf<T>::any(flags);
}

template <Scalar T>
T abs(T x) {
    return std::fabs(x);
}

template <Scalar T, int registers>
Pack<T, registers> abs(Pack<T, registers> x) {
    const Pack<T> sign(T(-0.0));
    for (auto& lane : x.lanes) lane = (Register<T>)((Bits<T>)lane & ~(Bits<T>)sign.lanes[0]);
    return x;
}

template <Scalar T>
T sqrt(T x) {
    return std::sqrt(x);
}

template <Scalar T, int registers>
Pack<T, registers> sqrt(Pack<T, registers> x) {
    for (auto& lane : x.lanes) lane = RegisterOf<T>::sqrt(lane);
    return x;
}

inline float reciprocalSqrtEstimate(float x) {
#if defined(__SSE2__)
    return _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(x)));
#else
    return 1.0F / std::sqrt(x);
#endif
}

template <int registers>
Pack<float, registers> reciprocalSqrtEstimate(Pack<float, registers> x) {
    for (auto& lane : x.lanes) lane = RegisterOf<float>::reciprocalSqrtEstimate(lane);
    return x;
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
template <class F, int registers>
Pack<double, registers> in64(const Pack<double, registers>& x, F f) {
    return f(x);
}
template <class F, int registers, int... lane>
Pack<float, registers> in64(const Pack<float, registers>& x, F f,
                            std::integer_sequence<int, lane...>) {
    typedef float HalfRegister __attribute__((vector_size(registerBytes / 2)));
    constexpr int half = sizeof...(lane);
    Pack<double, 2 * registers> wide;
    for (int k = 0; k < registers; ++k) {
        const HalfRegister low = __builtin_shufflevector(x.lanes[k], x.lanes[k], lane...);
        const HalfRegister high = __builtin_shufflevector(x.lanes[k], x.lanes[k], (half + lane)...);
        wide.lanes[2 * k] = __builtin_convertvector(low, Register<double>);
        wide.lanes[2 * k + 1] = __builtin_convertvector(high, Register<double>);
    }
    wide = f(wide);
    Pack<float, registers> rounded;
    for (int k = 0; k < registers; ++k) {
        const auto low = __builtin_convertvector(wide.lanes[2 * k], HalfRegister);
        const auto high = __builtin_convertvector(wide.lanes[2 * k + 1], HalfRegister);
        rounded.lanes[k] = __builtin_shufflevector(low, high, lane..., (half + lane)...);
    }
    return rounded;
}
template <class F, int registers>
Pack<float, registers> in64(const Pack<float, registers>& x, F f) {
    return in64(x, f, std::make_integer_sequence<int, laneCount<Pack<double>>>());
}

} // namespace qorm
