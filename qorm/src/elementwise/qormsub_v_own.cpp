// Cores: differences of two vectors, or of a vector and a constant.
#include "elementwise/vector_sums.h"
#include "frame/cores.h"
#include "qorm/sub.h"

#include "elementwise/qormsub_v.def"
