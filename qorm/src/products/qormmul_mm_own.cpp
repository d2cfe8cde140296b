// Cores: products of two matrices.
#include "frame/cores.h"
#include "products/products.h"
#include "qorm/mul.h"

#include "products/qormmul_mm.def"
