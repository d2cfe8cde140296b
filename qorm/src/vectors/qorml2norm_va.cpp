// Entry functions: lengths of the vectors of an array.
#include "frame/entries.h"
#include "qorm/l2norm.h"
#include "vectors/norm.h"

#include "vectors/qorml2norm_va.def"
