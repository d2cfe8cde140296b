// Makes a list of function names define its cores (see entries.h), one for each access pattern.
#pragma once

#include "frame/signatures.h"

// The run of a family whose kernels serve lists and arrays by strides alike.
#define QORM_ON_OBJECTS(...) \
    ([](const auto&... groups) { return __VA_ARGS__(qorm::asObjects(groups)...); })

#define QORM_CORE(name, run, access, ARGUMENTS, ...) \
    extern "C" QORM_API qorStatus name(ARGUMENTS(PARAM, access, __VA_ARGS__)) { \
        return run(ARGUMENTS(GROUP, access, __VA_ARGS__)); \
    }

#define QORM_REORDERED_m_S(name, form, run, ARGUMENTS, ...) \
    QORM_CORE(own##name, run, C, __VA_ARGS__) QORM_CORE(own##name##_S2, run, S, __VA_ARGS__)
#define QORM_GENERAL_m_S(name, form, run, ...) QORM_CORE(own##name, run, S, __VA_ARGS__)
#define QORM_REORDERED_m_P(name, form, run, ARGUMENTS, ...) \
    QORM_CORE(own##name, run, P, __VA_ARGS__)
#define QORM_REORDERED_ma_S QORM_REORDERED_m_S
#define QORM_REORDERED_ma_P QORM_REORDERED_m_P
#define QORM_REORDERED_ma_L(name, form, run, ARGUMENTS, ...) \
    QORM_CORE(own##name, run, LC, __VA_ARGS__) QORM_CORE(own##name##S2, run, L, __VA_ARGS__)
