// Cores: vector products of arrays of vectors.
#include "frame/cores.h"
#include "qorm/crossproduct.h"
#include "vectors/cross.h"

#include "vectors/qormcrossproduct_va.def"
