// Makes a list of function names define entry functions that do the work themselves (see entries.h).
// They have no other tier, and are compiled like cores.
//
// ARGUMENTS(PARAM or GROUP, ...) is such a function's parameter list, with the access to each operand
// in it.
#pragma once

#include "frame/entry.h"
#include "frame/signatures.h"

#define QORM_ENTRY(name, form, run, ARGUMENTS, ...) \
    extern "C" qorStatus name(ARGUMENTS(PARAM, __VA_ARGS__)) { \
        return qorm::enterAndRun(form, run, ARGUMENTS(GROUP, __VA_ARGS__)); \
    }
