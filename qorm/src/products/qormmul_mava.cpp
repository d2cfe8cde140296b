// Entry functions: products of arrays of matrices and of vectors.
#include "frame/entries.h"
#include "products/matrix_vector.h"
#include "qorm/mul.h"

#include "products/qormmul_mava.def"
