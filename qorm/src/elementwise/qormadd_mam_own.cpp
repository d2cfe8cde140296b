// Cores: sums of an array with a single matrix.
#include "elementwise/sums.h"
#include "frame/cores.h"
#include "qorm/add.h"

#include "elementwise/qormadd_mam.def"
