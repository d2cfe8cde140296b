// Cores: products of a matrix or a vector and a constant.
#include "elementwise/scaling.h"
#include "frame/cores.h"
#include "qorm/mul.h"

#include "elementwise/qormmul_c.def"
