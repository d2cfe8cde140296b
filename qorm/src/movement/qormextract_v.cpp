// Entry functions, which do the work themselves: extracts of vectors.
#include "frame/direct.h"
#include "movement/extract.h"
#include "qorm/extract.h"

#include "movement/qormextract_v.def"
