/* All of qorm: small-matrix operations on data where it lies.
 * qorm/types.h tells the conventions that all functions share.
 */
#ifndef QORM_H
#define QORM_H

#include "qorm/add.h"
#include "qorm/choleskybacksubst.h"
#include "qorm/choleskydecomp.h"
#include "qorm/copy.h"
#include "qorm/crossproduct.h"
#include "qorm/det.h"
#include "qorm/dotproduct.h"
#include "qorm/eigenvaluessym.h"
#include "qorm/eigenvaluesvectorssym.h"
#include "qorm/extract.h"
#include "qorm/frobnorm.h"
#include "qorm/gaxpy.h"
#include "qorm/invert.h"
#include "qorm/l2norm.h"
#include "qorm/lcomb.h"
#include "qorm/loadidentity.h"
#include "qorm/lubacksubst.h"
#include "qorm/ludecomp.h"
#include "qorm/mul.h"
#include "qorm/qrbacksubst.h"
#include "qorm/qrdecomp.h"
#include "qorm/saxpy.h"
#include "qorm/sub.h"
#include "qorm/trace.h"
#include "qorm/transpose.h"
#include "qorm/types.h"
#include "qorm/version.h"

#endif
