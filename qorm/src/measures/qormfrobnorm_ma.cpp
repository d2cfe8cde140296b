// Entry functions: frobenius norms of arrays of matrices.
#include "frame/entries.h"
#include "measures/frob_norm.h"
#include "qorm/frobnorm.h"

#include "measures/qormfrobnorm_ma.def"
