// Cores: a scaled vector plus a vector.
#include "elementwise/linear_combinations.h"
#include "frame/cores.h"
#include "qorm/saxpy.h"

#include "elementwise/qormsaxpy_v.def"
