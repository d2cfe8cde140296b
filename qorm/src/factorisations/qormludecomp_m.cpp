// Entry functions: LU factorisation of a matrix.
#include "factorisations/lu.h"
#include "frame/entries.h"
#include "qorm/ludecomp.h"

#include "factorisations/qormludecomp_m.def"
