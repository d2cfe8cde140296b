// Entry functions: differences of two arrays.
#include "elementwise/sums.h"
#include "frame/entries.h"
#include "qorm/sub.h"

#include "elementwise/qormsub_mama.def"
