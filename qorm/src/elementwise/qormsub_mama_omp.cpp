// Fan-out drivers: differences of two arrays.
#include "elementwise/sums.h"
#include "frame/drivers.h"
#include "qorm/sub.h"

#include "elementwise/qormsub_mama.def"
