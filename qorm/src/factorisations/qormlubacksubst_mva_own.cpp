// Cores: solutions of systems with one matrix from its LU factors.
#include "factorisations/lu_solve.h"
#include "frame/cores.h"
#include "qorm/lubacksubst.h"

#include "factorisations/qormlubacksubst_mva.def"
