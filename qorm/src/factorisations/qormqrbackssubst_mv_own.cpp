// Cores: solution of a system from its QR factors.
#include "factorisations/qr_solve.h"
#include "frame/cores.h"
#include "qorm/qrbacksubst.h"

#include "factorisations/qormqrbackssubst_mv.def"
