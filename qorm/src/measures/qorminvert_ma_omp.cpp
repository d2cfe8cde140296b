// Fan-out drivers: inverses of arrays of matrices.
#include "frame/drivers.h"
#include "measures/invert.h"
#include "qorm/invert.h"

#include "measures/qorminvert_ma.def"
