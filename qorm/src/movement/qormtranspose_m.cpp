// Entry functions: transposes of matrices.
#include "frame/entries.h"
#include "movement/transpose.h"
#include "qorm/transpose.h"

#include "movement/qormtranspose_m.def"
