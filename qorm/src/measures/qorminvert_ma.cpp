// Entry functions: inverses of arrays of matrices.
#include "frame/entries.h"
#include "measures/invert.h"
#include "qorm/invert.h"

#include "measures/qorminvert_ma.def"
