// Fan-out drivers: products of a single matrix with an array.
#include "frame/drivers.h"
#include "products/products.h"
#include "qorm/mul.h"

#include "products/qormmul_mma.def"
