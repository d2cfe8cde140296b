// Entry functions: determinants of arrays of matrices.
#include "frame/entries.h"
#include "measures/det.h"
#include "qorm/det.h"

#include "measures/qormdet_ma.def"
