// Entry functions: transposes of arrays of matrices.
#include "frame/entries.h"
#include "movement/transpose.h"
#include "qorm/transpose.h"

#include "movement/qormtranspose_ma.def"
