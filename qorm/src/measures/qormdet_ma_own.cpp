// Cores: determinants of arrays of matrices.
#include "frame/cores.h"
#include "measures/det.h"
#include "qorm/det.h"

#include "measures/qormdet_ma.def"
