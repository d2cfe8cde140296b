// Cores: Cholesky factorisation of a matrix.
#include "factorisations/cholesky.h"
#include "frame/cores.h"
#include "qorm/choleskydecomp.h"

#include "factorisations/qormcholdecomp_m.def"
