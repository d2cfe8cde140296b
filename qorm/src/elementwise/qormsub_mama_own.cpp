// Cores: differences of two arrays.
#include "elementwise/sums.h"
#include "frame/cores.h"
#include "qorm/sub.h"

#include "elementwise/qormsub_mama.def"
