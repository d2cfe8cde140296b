// Cores: transposes of matrices.
#include "frame/cores.h"
#include "movement/transpose.h"
#include "qorm/transpose.h"

#include "movement/qormtranspose_m.def"
