// Entry functions: length of a vector.
#include "frame/entries.h"
#include "qorm/l2norm.h"
#include "vectors/norm.h"

#include "vectors/qorml2norm_v.def"
