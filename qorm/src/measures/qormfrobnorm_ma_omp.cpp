// Fan-out drivers: frobenius norms of arrays of matrices.
#include "frame/drivers.h"
#include "measures/frob_norm.h"
#include "qorm/frobnorm.h"

#include "measures/qormfrobnorm_ma.def"
