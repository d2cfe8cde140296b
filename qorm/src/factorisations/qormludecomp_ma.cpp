// Entry functions: LU factorisations of arrays of matrices.
#include "factorisations/lu.h"
#include "frame/entries.h"
#include "qorm/ludecomp.h"

#include "factorisations/qormludecomp_ma.def"
