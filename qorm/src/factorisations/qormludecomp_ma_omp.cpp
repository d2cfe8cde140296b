// Fan-out drivers: LU factorisations of arrays of matrices.
#include "factorisations/lu.h"
#include "frame/drivers.h"
#include "qorm/ludecomp.h"

#include "factorisations/qormludecomp_ma.def"
