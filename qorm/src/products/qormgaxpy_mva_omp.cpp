// Fan-out drivers: a matrix times each vector of an array, plus a vector.
#include "frame/drivers.h"
#include "products/gaxpy.h"
#include "qorm/gaxpy.h"

#include "products/qormgaxpy_mva.def"
