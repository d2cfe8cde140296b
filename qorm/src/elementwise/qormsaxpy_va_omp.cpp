// Fan-out drivers: scaled vectors plus vectors, in arrays.
#include "elementwise/linear_combinations.h"
#include "frame/drivers.h"
#include "qorm/saxpy.h"

#include "elementwise/qormsaxpy_va.def"
