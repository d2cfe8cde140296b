// Fan-out drivers: vector products of arrays of vectors.
#include "frame/drivers.h"
#include "qorm/crossproduct.h"
#include "vectors/cross.h"

#include "vectors/qormcrossproduct_va.def"
