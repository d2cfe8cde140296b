// Entry functions, which do the work themselves: extracts of arrays of matrices.
#include "frame/direct.h"
#include "movement/extract.h"
#include "qorm/extract.h"

#include "movement/qormextract_ma.def"
