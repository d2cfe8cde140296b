// Entry functions: a scaled vector plus a vector.
#include "elementwise/linear_combinations.h"
#include "frame/entries.h"
#include "qorm/saxpy.h"

#include "elementwise/qormsaxpy_v.def"
