// Cores: eigenvalues and eigenvectors of a symmetric matrix.
#include "eigen/eigen.h"
#include "frame/cores.h"
#include "qorm/eigenvaluesvectorssym.h"

#include "eigen/qormeigenvaluesvectorssym_m.def"
