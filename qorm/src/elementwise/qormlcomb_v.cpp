// Entry functions: linear combination of two vectors.
#include "elementwise/linear_combinations.h"
#include "frame/entries.h"
#include "qorm/lcomb.h"

#include "elementwise/qormlcomb_v.def"
