// Fan-out drivers: differences of an array with a single matrix.
#include "elementwise/sums.h"
#include "frame/drivers.h"
#include "qorm/sub.h"

#include "elementwise/qormsub_mam.def"
