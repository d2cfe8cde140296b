// Cores: eigenvalues of arrays of symmetric matrices.
#include "eigen/eigen.h"
#include "frame/cores.h"
#include "qorm/eigenvaluessym.h"

#include "eigen/qormeigenvaluessym_ma.def"
