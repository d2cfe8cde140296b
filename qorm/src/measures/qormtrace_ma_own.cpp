// Cores: traces of arrays of matrices.
#include "frame/cores.h"
#include "measures/trace.h"
#include "qorm/trace.h"

#include "measures/qormtrace_ma.def"
