// Cores: linear combinations of vectors, in arrays.
#include "elementwise/linear_combinations.h"
#include "frame/cores.h"
#include "qorm/lcomb.h"

#include "elementwise/qormlcomb_va.def"
