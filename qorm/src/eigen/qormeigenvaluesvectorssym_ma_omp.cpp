// Fan-out drivers: eigenvalues and eigenvectors of arrays of symmetric matrices.
#include "eigen/eigen.h"
#include "frame/drivers.h"
#include "qorm/eigenvaluesvectorssym.h"

#include "eigen/qormeigenvaluesvectorssym_ma.def"
