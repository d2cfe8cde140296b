// Makes a list of function names define its fan-out drivers (see entries.h). Forms on single
// objects have none.
#pragma once

#include "frame/fan_out.h"
#include "frame/signatures.h"

#define QORM_FUNCTION_m_S(name, form, run, ARGUMENTS, ...)
#define QORM_FUNCTION_m_P(name, form, run, ARGUMENTS, ...)

#define QORM_FUNCTION_ma_S(name, form, run, ARGUMENTS, ...) \
    extern "C" qorStatus own##name(ARGUMENTS(PARAM, C, __VA_ARGS__)); \
    extern "C" qorStatus own##name##_S2(ARGUMENTS(PARAM, S, __VA_ARGS__)); \
    extern "C" QORM_API qorStatus ownOMP_##name(ARGUMENTS(PARAM, S, __VA_ARGS__)) { \
        return qorm::fanOut<own##name, own##name##_S2>(ARGUMENTS(GROUP, S, __VA_ARGS__)); \
    }

#define QORM_FUNCTION_ma_P(name, form, run, ARGUMENTS, ...) \
    extern "C" qorStatus own##name(ARGUMENTS(PARAM, P, __VA_ARGS__)); \
    extern "C" QORM_API qorStatus ownOMP_##name(ARGUMENTS(PARAM, P, __VA_ARGS__)) { \
        return qorm::fanOut<own##name, own##name>(ARGUMENTS(GROUP, P, __VA_ARGS__)); \
    }

#define QORM_FUNCTION_ma_L(name, form, run, ARGUMENTS, ...) \
    extern "C" qorStatus own##name(ARGUMENTS(PARAM, LC, __VA_ARGS__)); \
    extern "C" qorStatus own##name##S2(ARGUMENTS(PARAM, L, __VA_ARGS__)); \
    extern "C" QORM_API qorStatus ownOMP_##name(ARGUMENTS(PARAM, L, __VA_ARGS__)) { \
        return qorm::fanOut<own##name, own##name##S2>(ARGUMENTS(GROUP, L, __VA_ARGS__)); \
    }

// A destination of vectors makes no difference.
#define QORM_FUNCTION_v_S QORM_FUNCTION_m_S
#define QORM_FUNCTION_v_P QORM_FUNCTION_m_P
#define QORM_FUNCTION_va_S QORM_FUNCTION_ma_S
#define QORM_FUNCTION_va_P QORM_FUNCTION_ma_P
#define QORM_FUNCTION_va_L QORM_FUNCTION_ma_L
