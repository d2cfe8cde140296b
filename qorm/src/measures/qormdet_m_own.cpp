// Cores: determinant of a matrix.
#include "frame/cores.h"
#include "measures/det.h"
#include "qorm/det.h"

#include "measures/qormdet_m.def"
