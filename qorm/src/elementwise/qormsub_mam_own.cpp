// Cores: differences of an array with a single matrix.
#include "elementwise/sums.h"
#include "frame/cores.h"
#include "qorm/sub.h"

#include "elementwise/qormsub_mam.def"
