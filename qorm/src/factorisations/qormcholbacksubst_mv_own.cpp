// Cores: solution of a system from its Cholesky factor.
#include "factorisations/cholesky_solve.h"
#include "frame/cores.h"
#include "qorm/choleskybacksubst.h"

#include "factorisations/qormcholbacksubst_mv.def"
