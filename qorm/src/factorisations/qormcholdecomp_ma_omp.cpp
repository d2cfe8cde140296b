// Fan-out drivers: Cholesky factorisations of arrays of matrices.
#include "factorisations/cholesky.h"
#include "frame/drivers.h"
#include "qorm/choleskydecomp.h"

#include "factorisations/qormcholdecomp_ma.def"
