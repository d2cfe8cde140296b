// Fan-out drivers: solutions of systems with one matrix from its QR factors.
#include "factorisations/qr_solve.h"
#include "frame/drivers.h"
#include "qorm/qrbacksubst.h"

#include "factorisations/qormqrbackssubst_mva.def"
