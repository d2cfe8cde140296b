// Entry functions: scaled vectors plus vectors, in arrays.
#include "elementwise/linear_combinations.h"
#include "frame/entries.h"
#include "qorm/saxpy.h"

#include "elementwise/qormsaxpy_va.def"
