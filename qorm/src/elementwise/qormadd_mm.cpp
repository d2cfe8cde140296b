// Entry functions: sums of two matrices.
#include "elementwise/sums.h"
#include "frame/entries.h"
#include "qorm/add.h"

#include "elementwise/qormadd_mm.def"
