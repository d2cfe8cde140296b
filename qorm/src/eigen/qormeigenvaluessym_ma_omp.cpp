// Fan-out drivers: eigenvalues of arrays of symmetric matrices.
#include "eigen/eigen.h"
#include "frame/drivers.h"
#include "qorm/eigenvaluessym.h"

#include "eigen/qormeigenvaluessym_ma.def"
