// Cores: solutions of systems with one matrix from its Cholesky factor.
#include "factorisations/cholesky_solve.h"
#include "frame/cores.h"
#include "qorm/choleskybacksubst.h"

#include "factorisations/qormcholbacksubst_mva.def"
