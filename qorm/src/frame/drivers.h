// Makes a list of function names define its fan-out drivers (see entries.h). Forms on single
// objects have none.
#pragma once

#include "frame/fan_out.h"
#include "frame/signatures.h"

#define QORM_REORDERED_m_S(name, form, run, ARGUMENTS, CORE_ARGUMENTS, ...)
#define QORM_GENERAL_m_S(name, form, run, ARGUMENTS, ...)
#define QORM_REORDERED_m_P(name, form, run, ARGUMENTS, CORE_ARGUMENTS, ...)

#define QORM_REORDERED_ma_S(name, form, run, ARGUMENTS, CORE_ARGUMENTS, ...) \
    extern "C" qorStatus own##name(CORE_ARGUMENTS(PARAM, C, __VA_ARGS__)); \
    extern "C" qorStatus own##name##_S2(CORE_ARGUMENTS(PARAM, S, __VA_ARGS__)); \
    extern "C" QORM_API qorStatus ownOMP_##name(ARGUMENTS(PARAM, S, __VA_ARGS__)) { \
        return qorm::fanOut<own##name, own##name##_S2>(ARGUMENTS(GROUP, S, __VA_ARGS__)); \
    }

#define QORM_REORDERED_ma_P(name, form, run, ARGUMENTS, CORE_ARGUMENTS, ...) \
    extern "C" qorStatus own##name(CORE_ARGUMENTS(PARAM, P, __VA_ARGS__)); \
    extern "C" QORM_API qorStatus ownOMP_##name(ARGUMENTS(PARAM, P, __VA_ARGS__)) { \
        return qorm::fanOut<own##name, own##name>(ARGUMENTS(GROUP, P, __VA_ARGS__)); \
    }

#define QORM_REORDERED_ma_L(name, form, run, ARGUMENTS, CORE_ARGUMENTS, ...) \
    extern "C" qorStatus own##name(CORE_ARGUMENTS(PARAM, LC, __VA_ARGS__)); \
    extern "C" qorStatus own##name##S2(CORE_ARGUMENTS(PARAM, L, __VA_ARGS__)); \
    extern "C" QORM_API qorStatus ownOMP_##name(ARGUMENTS(PARAM, L, __VA_ARGS__)) { \
        return qorm::fanOut<own##name, own##name##S2>(ARGUMENTS(GROUP, L, __VA_ARGS__)); \
    }
