// Entry functions: linear combinations of vectors, in arrays.
#include "elementwise/linear_combinations.h"
#include "frame/entries.h"
#include "qorm/lcomb.h"

#include "elementwise/qormlcomb_va.def"
