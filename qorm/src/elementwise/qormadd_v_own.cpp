// Cores: sums of two vectors, or of a vector and a constant.
#include "elementwise/vector_sums.h"
#include "frame/cores.h"
#include "qorm/add.h"

#include "elementwise/qormadd_v.def"
