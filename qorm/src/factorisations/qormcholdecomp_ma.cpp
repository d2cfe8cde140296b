// Entry functions: Cholesky factorisations of arrays of matrices.
#include "factorisations/cholesky.h"
#include "frame/entries.h"
#include "qorm/choleskydecomp.h"

#include "factorisations/qormcholdecomp_ma.def"
