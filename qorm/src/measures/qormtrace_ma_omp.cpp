// Fan-out drivers: traces of arrays of matrices.
#include "frame/drivers.h"
#include "measures/trace.h"
#include "qorm/trace.h"

#include "measures/qormtrace_ma.def"
