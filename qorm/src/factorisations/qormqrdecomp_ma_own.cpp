// Cores: QR factorisations of arrays of matrices.
#include "factorisations/qr.h"
#include "frame/cores.h"
#include "qorm/qrdecomp.h"

#include "factorisations/qormqrdecomp_ma.def"
