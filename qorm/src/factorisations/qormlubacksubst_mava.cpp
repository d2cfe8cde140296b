// Entry functions: solutions of arrays of systems from their LU factors.
#include "factorisations/lu_solve.h"
#include "frame/entries.h"
#include "qorm/lubacksubst.h"

#include "factorisations/qormlubacksubst_mava.def"
