// Cores: vector product of two vectors.
#include "frame/cores.h"
#include "qorm/crossproduct.h"
#include "vectors/cross.h"

#include "vectors/qormcrossproduct_v.def"
