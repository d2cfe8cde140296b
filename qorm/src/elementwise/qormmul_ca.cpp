// Entry functions: products of an array and a constant.
#include "elementwise/scaling.h"
#include "frame/entries.h"
#include "qorm/mul.h"

#include "elementwise/qormmul_ca.def"
