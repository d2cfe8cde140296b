// Entry functions: vector products of arrays of vectors.
#include "frame/entries.h"
#include "qorm/crossproduct.h"
#include "vectors/cross.h"

#include "vectors/qormcrossproduct_va.def"
