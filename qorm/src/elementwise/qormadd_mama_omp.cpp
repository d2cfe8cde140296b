// Fan-out drivers: sums of two arrays.
#include "elementwise/sums.h"
#include "frame/drivers.h"
#include "qorm/add.h"

#include "elementwise/qormadd_mama.def"
