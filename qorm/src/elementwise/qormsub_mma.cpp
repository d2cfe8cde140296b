// Entry functions: differences of a single matrix with an array.
#include "elementwise/sums.h"
#include "frame/entries.h"
#include "qorm/sub.h"

#include "elementwise/qormsub_mma.def"
