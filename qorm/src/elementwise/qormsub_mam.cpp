// Entry functions: differences of an array with a single matrix.
#include "elementwise/sums.h"
#include "frame/entries.h"
#include "qorm/sub.h"

#include "elementwise/qormsub_mam.def"
