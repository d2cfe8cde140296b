// Cores: scalar product of two vectors.
#include "frame/cores.h"
#include "qorm/dotproduct.h"
#include "vectors/dot.h"

#include "vectors/qormdotproduct_v.def"
