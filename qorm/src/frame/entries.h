// Makes a list of function names define its entry functions. Include a family's header, this one,
// then the list.
//
// QORM_FUNCTION_<destination>_<layout>(name, form, run, ARGUMENTS, ...) is one function of the C
// interface: its form, the run of its core, and ARGUMENTS(PARAM or GROUP, access, ...), its
// parameter list. drivers.h and cores.h define the same macros for their tiers.
#pragma once

#include "frame/entry.h"
#include "frame/signatures.h"

#define QORM_FUNCTION_m_S(name, form, run, ARGUMENTS, ...) \
    extern "C" qorStatus own##name(ARGUMENTS(PARAM, C, __VA_ARGS__)); \
    extern "C" qorStatus own##name##_S2(ARGUMENTS(PARAM, S, __VA_ARGS__)); \
    extern "C" qorStatus name(ARGUMENTS(PARAM, S, __VA_ARGS__)) { \
        return qorm::enterSingle<own##name, own##name##_S2>(form, \
                                                            ARGUMENTS(GROUP, S, __VA_ARGS__)); \
    }

#define QORM_FUNCTION_m_P(name, form, run, ARGUMENTS, ...) \
    extern "C" qorStatus own##name(ARGUMENTS(PARAM, P, __VA_ARGS__)); \
    extern "C" qorStatus name(ARGUMENTS(PARAM, P, __VA_ARGS__)) { \
        return qorm::enterSingle<own##name, own##name>(form, ARGUMENTS(GROUP, P, __VA_ARGS__)); \
    }

#define QORM_FUNCTION_ma_S(name, form, run, ARGUMENTS, ...) \
    extern "C" qorStatus own##name(ARGUMENTS(PARAM, C, __VA_ARGS__)); \
    extern "C" qorStatus own##name##_S2(ARGUMENTS(PARAM, S, __VA_ARGS__)); \
    extern "C" qorStatus ownOMP_##name(ARGUMENTS(PARAM, S, __VA_ARGS__)); \
    extern "C" qorStatus name(ARGUMENTS(PARAM, S, __VA_ARGS__)) { \
        return qorm::enterArray<own##name, own##name##_S2, ownOMP_##name>( \
            form, ARGUMENTS(GROUP, S, __VA_ARGS__)); \
    }

#define QORM_FUNCTION_ma_P(name, form, run, ARGUMENTS, ...) \
    extern "C" qorStatus own##name(ARGUMENTS(PARAM, P, __VA_ARGS__)); \
    extern "C" qorStatus ownOMP_##name(ARGUMENTS(PARAM, P, __VA_ARGS__)); \
    extern "C" qorStatus name(ARGUMENTS(PARAM, P, __VA_ARGS__)) { \
        return qorm::enterArray<own##name, own##name, ownOMP_##name>( \
            form, ARGUMENTS(GROUP, P, __VA_ARGS__)); \
    }

#define QORM_FUNCTION_ma_L(name, form, run, ARGUMENTS, ...) \
    extern "C" qorStatus own##name(ARGUMENTS(PARAM, LC, __VA_ARGS__)); \
    extern "C" qorStatus own##name##S2(ARGUMENTS(PARAM, L, __VA_ARGS__)); \
    extern "C" qorStatus ownOMP_##name(ARGUMENTS(PARAM, L, __VA_ARGS__)); \
    extern "C" qorStatus name(ARGUMENTS(PARAM, L, __VA_ARGS__)) { \
        return qorm::enterArray<own##name, own##name##S2, ownOMP_##name>( \
            form, ARGUMENTS(GROUP, L, __VA_ARGS__)); \
    }

// A destination of vectors makes no difference.
#define QORM_FUNCTION_v_S QORM_FUNCTION_m_S
#define QORM_FUNCTION_v_P QORM_FUNCTION_m_P
#define QORM_FUNCTION_va_S QORM_FUNCTION_ma_S
#define QORM_FUNCTION_va_P QORM_FUNCTION_ma_P
#define QORM_FUNCTION_va_L QORM_FUNCTION_ma_L
