// Entry functions: inverse of a matrix.
#include "frame/entries.h"
#include "measures/invert.h"
#include "qorm/invert.h"

#include "measures/qorminvert_m.def"
