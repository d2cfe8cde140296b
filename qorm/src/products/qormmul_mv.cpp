// Entry functions: products of a matrix and a vector.
#include "frame/entries.h"
#include "products/matrix_vector.h"
#include "qorm/mul.h"

#include "products/qormmul_mv.def"
