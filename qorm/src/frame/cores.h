// Makes a list of function names define its cores (see entries.h), one for each access pattern.
#pragma once

#include "frame/signatures.h"

#define QORM_CORE(name, run, access, ARGUMENTS, ...) \
    extern "C" QORM_API qorStatus name(ARGUMENTS(PARAM, access, __VA_ARGS__)) { \
        return run(ARGUMENTS(GROUP, access, __VA_ARGS__)); \
    }

#define QORM_FUNCTION_m_S(name, form, run, ...) \
    QORM_CORE(own##name, run, C, __VA_ARGS__) QORM_CORE(own##name##_S2, run, S, __VA_ARGS__)
#define QORM_FUNCTION_m_P(name, form, run, ...) QORM_CORE(own##name, run, P, __VA_ARGS__)
#define QORM_FUNCTION_ma_S QORM_FUNCTION_m_S
#define QORM_FUNCTION_ma_P QORM_FUNCTION_m_P
#define QORM_FUNCTION_ma_L(name, form, run, ...) \
    QORM_CORE(own##name, run, LC, __VA_ARGS__) QORM_CORE(own##name##S2, run, L, __VA_ARGS__)

// A destination of vectors makes no difference.
#define QORM_FUNCTION_v_S QORM_FUNCTION_m_S
#define QORM_FUNCTION_v_P QORM_FUNCTION_m_P
#define QORM_FUNCTION_va_S QORM_FUNCTION_ma_S
#define QORM_FUNCTION_va_P QORM_FUNCTION_ma_P
#define QORM_FUNCTION_va_L QORM_FUNCTION_ma_L
