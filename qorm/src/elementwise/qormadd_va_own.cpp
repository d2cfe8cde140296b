// Cores: sums of arrays of vectors and vectors, arrays or constants.
#include "elementwise/vector_sums.h"
#include "frame/cores.h"
#include "qorm/add.h"

#include "elementwise/qormadd_va.def"
