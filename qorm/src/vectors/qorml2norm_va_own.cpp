// Cores: lengths of the vectors of an array.
#include "frame/cores.h"
#include "qorm/l2norm.h"
#include "vectors/norm.h"

#include "vectors/qorml2norm_va.def"
