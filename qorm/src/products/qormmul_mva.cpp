// Entry functions: products of a matrix and each vector of an array.
#include "frame/entries.h"
#include "products/matrix_vector.h"
#include "qorm/mul.h"

#include "products/qormmul_mva.def"
