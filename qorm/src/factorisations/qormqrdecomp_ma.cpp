// Entry functions: QR factorisations of arrays of matrices.
#include "factorisations/qr.h"
#include "frame/entries.h"
#include "qorm/qrdecomp.h"

#include "factorisations/qormqrdecomp_ma.def"
