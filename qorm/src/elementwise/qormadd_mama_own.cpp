// Cores: sums of two arrays.
#include "elementwise/sums.h"
#include "frame/cores.h"
#include "qorm/add.h"

#include "elementwise/qormadd_mama.def"
