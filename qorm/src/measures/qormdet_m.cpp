// Entry functions: determinant of a matrix.
#include "frame/entries.h"
#include "measures/det.h"
#include "qorm/det.h"

#include "measures/qormdet_m.def"
