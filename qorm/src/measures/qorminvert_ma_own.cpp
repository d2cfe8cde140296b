// Cores: inverses of arrays of matrices.
#include "frame/cores.h"
#include "measures/invert.h"
#include "qorm/invert.h"

#include "measures/qorminvert_ma.def"
