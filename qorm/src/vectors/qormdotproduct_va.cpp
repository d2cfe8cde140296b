// Entry functions: scalar products of arrays of vectors.
#include "frame/entries.h"
#include "qorm/dotproduct.h"
#include "vectors/dot.h"

#include "vectors/qormdotproduct_va.def"
