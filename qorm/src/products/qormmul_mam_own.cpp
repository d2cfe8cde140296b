// Cores: products of an array with a single matrix.
#include "frame/cores.h"
#include "products/products.h"
#include "qorm/mul.h"

#include "products/qormmul_mam.def"
