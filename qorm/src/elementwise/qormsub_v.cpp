// Entry functions: differences of two vectors, or of a vector and a constant.
#include "elementwise/vector_sums.h"
#include "frame/entries.h"
#include "qorm/sub.h"

#include "elementwise/qormsub_v.def"
