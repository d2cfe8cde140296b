// Cores: solutions of systems with one matrix from its QR factors.
#include "factorisations/qr_solve.h"
#include "frame/cores.h"
#include "qorm/qrbacksubst.h"

#include "factorisations/qormqrbackssubst_mva.def"
