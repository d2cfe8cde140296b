// Entry functions: products of two arrays.
#include "frame/entries.h"
#include "products/products.h"
#include "qorm/mul.h"

#include "products/qormmul_mama.def"
