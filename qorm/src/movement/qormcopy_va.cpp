// Entry functions, which do the work themselves: copies of arrays of vectors between layouts.
#include "frame/direct.h"
#include "movement/copy.h"
#include "qorm/copy.h"

#include "movement/qormcopy_va.def"
