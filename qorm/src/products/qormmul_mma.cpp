// Entry functions: products of a single matrix with an array.
#include "frame/entries.h"
#include "products/products.h"
#include "qorm/mul.h"

#include "products/qormmul_mma.def"
