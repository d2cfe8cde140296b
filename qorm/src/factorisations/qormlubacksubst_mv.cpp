// Entry functions: solution of a system from its LU factors.
#include "factorisations/lu_solve.h"
#include "frame/entries.h"
#include "qorm/lubacksubst.h"

#include "factorisations/qormlubacksubst_mv.def"
