// Entry functions: eigenvalues of arrays of symmetric matrices.
#include "eigen/eigen.h"
#include "frame/entries.h"
#include "qorm/eigenvaluessym.h"

#include "eigen/qormeigenvaluessym_ma.def"
