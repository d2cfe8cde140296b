// Cores: scaled vectors plus vectors, in arrays.
#include "elementwise/linear_combinations.h"
#include "frame/cores.h"
#include "qorm/saxpy.h"

#include "elementwise/qormsaxpy_va.def"
