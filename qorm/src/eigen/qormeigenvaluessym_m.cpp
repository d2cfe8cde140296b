// Entry functions: eigenvalues of a symmetric matrix.
#include "eigen/eigen.h"
#include "frame/entries.h"
#include "qorm/eigenvaluessym.h"

#include "eigen/qormeigenvaluessym_m.def"
