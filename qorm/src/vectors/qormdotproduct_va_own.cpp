// Cores: scalar products of arrays of vectors.
#include "frame/cores.h"
#include "qorm/dotproduct.h"
#include "vectors/dot.h"

#include "vectors/qormdotproduct_va.def"
