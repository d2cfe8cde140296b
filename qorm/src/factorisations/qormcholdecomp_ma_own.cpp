// Cores: Cholesky factorisations of arrays of matrices.
#include "factorisations/cholesky.h"
#include "frame/cores.h"
#include "qorm/choleskydecomp.h"

#include "factorisations/qormcholdecomp_ma.def"
