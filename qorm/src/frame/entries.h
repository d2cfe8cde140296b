// Makes a list of function names define its entry functions. Include a family's header, this one,
// then the list.
//
// signatures.h tells what a list gives of each function. drivers.h and cores.h define the same macros
// for their tiers.
#pragma once

#include "frame/entry.h"
#include "frame/signatures.h"

#define QORM_REORDERED_m_S(name, form, run, ARGUMENTS, CORE_ARGUMENTS, ...) \
    extern "C" qorStatus own##name(CORE_ARGUMENTS(PARAM, C, __VA_ARGS__)); \
    extern "C" qorStatus own##name##_S2(CORE_ARGUMENTS(PARAM, S, __VA_ARGS__)); \
    extern "C" qorStatus name(ARGUMENTS(PARAM, S, __VA_ARGS__)) { \
        return qorm::enterSingle<own##name, own##name##_S2>(form, \
                                                            ARGUMENTS(GROUP, S, __VA_ARGS__)); \
    }

#define QORM_GENERAL_m_S(name, form, run, ARGUMENTS, ...) \
    extern "C" qorStatus own##name(ARGUMENTS(PARAM, S, __VA_ARGS__)); \
    extern "C" qorStatus name(ARGUMENTS(PARAM, S, __VA_ARGS__)) { \
        return qorm::enterSingle<own##name>(form, ARGUMENTS(GROUP, S, __VA_ARGS__)); \
    }

#define QORM_REORDERED_m_P(name, form, run, ARGUMENTS, CORE_ARGUMENTS, ...) \
    extern "C" qorStatus own##name(CORE_ARGUMENTS(PARAM, P, __VA_ARGS__)); \
    extern "C" qorStatus name(ARGUMENTS(PARAM, P, __VA_ARGS__)) { \
        return qorm::enterSingle<own##name>(form, ARGUMENTS(GROUP, P, __VA_ARGS__)); \
    }

#define QORM_REORDERED_ma_S(name, form, run, ARGUMENTS, CORE_ARGUMENTS, ...) \
    extern "C" qorStatus own##name(CORE_ARGUMENTS(PARAM, C, __VA_ARGS__)); \
    extern "C" qorStatus own##name##_S2(CORE_ARGUMENTS(PARAM, S, __VA_ARGS__)); \
    extern "C" qorStatus ownOMP_##name(ARGUMENTS(PARAM, S, __VA_ARGS__)); \
    extern "C" qorStatus name(ARGUMENTS(PARAM, S, __VA_ARGS__)) { \
        return qorm::enterArray<own##name, own##name##_S2, ownOMP_##name>( \
            form, ARGUMENTS(GROUP, S, __VA_ARGS__)); \
    }

#define QORM_REORDERED_ma_P(name, form, run, ARGUMENTS, CORE_ARGUMENTS, ...) \
    extern "C" qorStatus own##name(CORE_ARGUMENTS(PARAM, P, __VA_ARGS__)); \
    extern "C" qorStatus ownOMP_##name(ARGUMENTS(PARAM, P, __VA_ARGS__)); \
    extern "C" qorStatus name(ARGUMENTS(PARAM, P, __VA_ARGS__)) { \
        return qorm::enterArray<own##name, own##name, ownOMP_##name>( \
            form, ARGUMENTS(GROUP, P, __VA_ARGS__)); \
    }

#define QORM_REORDERED_ma_L(name, form, run, ARGUMENTS, CORE_ARGUMENTS, ...) \
    extern "C" qorStatus own##name(CORE_ARGUMENTS(PARAM, LC, __VA_ARGS__)); \
    extern "C" qorStatus own##name##S2(CORE_ARGUMENTS(PARAM, L, __VA_ARGS__)); \
    extern "C" qorStatus ownOMP_##name(ARGUMENTS(PARAM, L, __VA_ARGS__)); \
    extern "C" qorStatus name(ARGUMENTS(PARAM, L, __VA_ARGS__)) { \
        return qorm::enterArray<own##name, own##name##S2, ownOMP_##name>( \
            form, ARGUMENTS(GROUP, L, __VA_ARGS__)); \
    }
