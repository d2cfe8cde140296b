// Cores: traces of matrices.
#include "frame/cores.h"
#include "measures/trace.h"
#include "qorm/trace.h"

#include "measures/qormtrace_m.def"
