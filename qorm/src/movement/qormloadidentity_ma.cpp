// Entry functions, which do the work themselves: identities in arrays of matrices.
#include "frame/direct.h"
#include "movement/identity.h"
#include "qorm/loadidentity.h"

#include "movement/qormloadidentity_ma.def"
