// Entry functions: products of two matrices.
#include "frame/entries.h"
#include "products/products.h"
#include "qorm/mul.h"

#include "products/qormmul_mm.def"
