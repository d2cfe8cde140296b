// Fan-out drivers: scalar products of arrays of vectors.
#include "frame/drivers.h"
#include "qorm/dotproduct.h"
#include "vectors/dot.h"

#include "vectors/qormdotproduct_va.def"
