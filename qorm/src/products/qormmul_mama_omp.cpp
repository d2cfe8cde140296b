// Fan-out drivers: products of two arrays.
#include "frame/drivers.h"
#include "products/products.h"
#include "qorm/mul.h"

#include "products/qormmul_mama.def"
