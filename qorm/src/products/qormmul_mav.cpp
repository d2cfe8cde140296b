// Entry functions: products of each matrix of an array and a vector.
#include "frame/entries.h"
#include "products/matrix_vector.h"
#include "qorm/mul.h"

#include "products/qormmul_mav.def"
