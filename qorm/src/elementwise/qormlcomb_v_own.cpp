// Cores: linear combination of two vectors.
#include "elementwise/linear_combinations.h"
#include "frame/cores.h"
#include "qorm/lcomb.h"

#include "elementwise/qormlcomb_v.def"
