// Cores: inverse of a matrix.
#include "frame/cores.h"
#include "measures/invert.h"
#include "qorm/invert.h"

#include "measures/qorminvert_m.def"
