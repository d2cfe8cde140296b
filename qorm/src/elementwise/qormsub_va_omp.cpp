// Fan-out drivers: differences of arrays of vectors and vectors, arrays or constants.
#include "elementwise/vector_sums.h"
#include "frame/drivers.h"
#include "qorm/sub.h"

#include "elementwise/qormsub_va.def"
