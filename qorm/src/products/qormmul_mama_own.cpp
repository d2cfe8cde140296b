// Cores: products of two arrays.
#include "frame/cores.h"
#include "products/products.h"
#include "qorm/mul.h"

#include "products/qormmul_mama.def"
