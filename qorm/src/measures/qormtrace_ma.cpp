// Entry functions: traces of arrays of matrices.
#include "frame/entries.h"
#include "measures/trace.h"
#include "qorm/trace.h"

#include "measures/qormtrace_ma.def"
