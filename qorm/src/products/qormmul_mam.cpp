// Entry functions: products of an array with a single matrix.
#include "frame/entries.h"
#include "products/products.h"
#include "qorm/mul.h"

#include "products/qormmul_mam.def"
