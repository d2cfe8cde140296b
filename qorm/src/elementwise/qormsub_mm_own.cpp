// Cores: differences of two matrices.
#include "elementwise/sums.h"
#include "frame/cores.h"
#include "qorm/sub.h"

#include "elementwise/qormsub_mm.def"
