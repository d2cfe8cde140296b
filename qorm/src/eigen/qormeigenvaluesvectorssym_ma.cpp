// Entry functions: eigenvalues and eigenvectors of arrays of symmetric matrices.
#include "eigen/eigen.h"
#include "frame/entries.h"
#include "qorm/eigenvaluesvectorssym.h"

#include "eigen/qormeigenvaluesvectorssym_ma.def"
