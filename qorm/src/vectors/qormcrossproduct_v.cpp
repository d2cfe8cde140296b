// Entry functions: vector product of two vectors.
#include "frame/entries.h"
#include "qorm/crossproduct.h"
#include "vectors/cross.h"

#include "vectors/qormcrossproduct_v.def"
