// Entry functions: traces of matrices.
#include "frame/entries.h"
#include "measures/trace.h"
#include "qorm/trace.h"

#include "measures/qormtrace_m.def"
