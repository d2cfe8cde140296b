// Fan-out drivers: linear combinations of vectors, in arrays.
#include "elementwise/linear_combinations.h"
#include "frame/drivers.h"
#include "qorm/lcomb.h"

#include "elementwise/qormlcomb_va.def"
