// Cores: sums of two matrices.
#include "elementwise/sums.h"
#include "frame/cores.h"
#include "qorm/add.h"

#include "elementwise/qormadd_mm.def"
