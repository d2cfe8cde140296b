// Fan-out drivers: transposes of arrays of matrices.
#include "frame/drivers.h"
#include "movement/transpose.h"
#include "qorm/transpose.h"

#include "movement/qormtranspose_ma.def"
