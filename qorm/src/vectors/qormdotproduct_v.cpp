// Entry functions: scalar product of two vectors.
#include "frame/entries.h"
#include "qorm/dotproduct.h"
#include "vectors/dot.h"

#include "vectors/qormdotproduct_v.def"
