// Cores: solutions of arrays of systems from their QR factors.
#include "factorisations/qr_solve.h"
#include "frame/cores.h"
#include "qorm/qrbacksubst.h"

#include "factorisations/qormqrbackssubst_mava.def"
