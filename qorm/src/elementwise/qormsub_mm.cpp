// Entry functions: differences of two matrices.
#include "elementwise/sums.h"
#include "frame/entries.h"
#include "qorm/sub.h"

#include "elementwise/qormsub_mm.def"
