// Cores: QR factorisation of a matrix.
#include "factorisations/qr.h"
#include "frame/cores.h"
#include "qorm/qrdecomp.h"

#include "factorisations/qormqrdecomp_m.def"
