// Fan-out drivers: solutions of arrays of systems from their Cholesky factors.
#include "factorisations/cholesky_solve.h"
#include "frame/drivers.h"
#include "qorm/choleskybacksubst.h"

#include "factorisations/qormcholbacksubst_mava.def"
