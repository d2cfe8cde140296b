// Fan-out drivers: determinants of arrays of matrices.
#include "frame/drivers.h"
#include "measures/det.h"
#include "qorm/det.h"

#include "measures/qormdet_ma.def"
