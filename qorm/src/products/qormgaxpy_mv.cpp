// Entry functions: a matrix times a vector, plus a vector.
#include "frame/entries.h"
#include "products/gaxpy.h"
#include "qorm/gaxpy.h"

#include "products/qormgaxpy_mv.def"
