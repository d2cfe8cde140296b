// Entry functions: sums of two arrays.
#include "elementwise/sums.h"
#include "frame/entries.h"
#include "qorm/add.h"

#include "elementwise/qormadd_mama.def"
