/** @defgroup CholeskyBackSubst CholeskyBackSubst: solutions from Cholesky factors
 *  Solutions of linear systems A·x = b from Cholesky factors.
 *
 *  ## Shapes
 *
 *  | Shape  | Formula    | Layouts             |
 *  |--------|------------|---------------------|
 *  | `mv`   | A·x = b    | strides, `_P`       |
 *  | `mva`  | A·xₙ = bₙ  | strides, `_P`, `_L` |
 *  | `mava` | Aₙ·xₙ = bₙ | strides, `_P`, `_L` |
 *
 *  `pSrc1` is the destination of @ref CholeskyDecomp, a matrix of `widthHeight` rows and columns
 *  (or an array of `count`): L with reciprocals on the diagonal, of which only the lower triangle
 *  is read. `pSrc2` is b and `pDst` is x, vectors (or arrays of `count`) of `widthHeight` elements.
 *  Factors need not come from a call of the same layout.
 *
 *  ## Method
 *
 *  A sweep forward through L and one backward through its transpose, which is not stored but walked
 *  by columns (Golub and Van Loan, "Matrix Computations", sections 3.1 and 4.2). Terms are
 *  subtracted from the element one by one, columns ascending in the forward sweep, rows descending
 *  in the backward sweep, and the diagonal is multiplied: nothing is divided. Each product is
 *  rounded.
 *
 *  ## Accuracy
 *
 *  The residual b - A·x is at the level of rounding for well-scaled matrices; the error of x is
 *  that times the condition number.
 *
 *  ## In place
 *
 *  x may lie on b, object for object, at every size. It must not overlap a matrix, nor an x or b of
 *  another object.
 *
 *  ## Cost
 *
 *  About N² multiplications and subtractions per vector, N being `widthHeight`. A call spreads over
 *  threads where its work W reaches
 *
 *  | Shape  | W           | strides                   | `_P`        | `_L` |
 *  |--------|-------------|---------------------------|-------------|------|
 *  | `mva`  | (N + 2c)·N  | 1201 / 721                | 721         | 721  |
 *  | `mava` | N·(N + 2)·c | 2051 / 1701, general 1701 | 1701 / 2051 | 1701 |
 *
 *  ## Statuses
 *
 *  None but that of a failed check is ever returned; NaN and infinity take their course. Solve only
 *  what was factorised with #qorStatusOk.
 *
 *  There is an example at @ref CholeskyDecomp.
 *
 *  @{
 */
#ifndef QORM_CHOLESKYBACKSUBST_H
#define QORM_CHOLESKYBACKSUBST_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name One matrix with one vector
 *  Checks, in this order: null pointer, `widthHeight`, strides (`_P`: shifts).
 *  @{ */
QORM_API qorStatus qormCholeskyBackSubst_mv_32f(const float* pSrc1, int32_t src1Stride1,
                                                int32_t src1Stride2, const float* pSrc2,
                                                int32_t src2Stride2, float* pDst,
                                                int32_t dstStride2, int32_t widthHeight);
QORM_API qorStatus qormCholeskyBackSubst_mv_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                                  const float* const* ppSrc2, int32_t src2Shift,
                                                  float* const* ppDst, int32_t dstShift,
                                                  int32_t widthHeight);
QORM_API qorStatus qormCholeskyBackSubst_mv_64f(const double* pSrc1, int32_t src1Stride1,
                                                int32_t src1Stride2, const double* pSrc2,
                                                int32_t src2Stride2, double* pDst,
                                                int32_t dstStride2, int32_t widthHeight);
QORM_API qorStatus qormCholeskyBackSubst_mv_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                                  const double* const* ppSrc2, int32_t src2Shift,
                                                  double* const* ppDst, int32_t dstShift,
                                                  int32_t widthHeight);
/** @} */

/** @name One matrix with an array of vectors
 *  In `_L` forms the matrix is in the layout without suffix, the vectors are in lists.
 *  Checks, in this order: null pointer, count, `widthHeight`, strides, shifts (`_P`). `_L` forms:
 *  null pointer, strides, shifts, `widthHeight`, count.
 *  @{ */
QORM_API qorStatus qormCholeskyBackSubst_mva_32f(const float* pSrc1, int32_t src1Stride1,
                                                 int32_t src1Stride2, const float* pSrc2,
                                                 int32_t src2Stride0, int32_t src2Stride2,
                                                 float* pDst, int32_t dstStride0,
                                                 int32_t dstStride2, int32_t widthHeight,
                                                 int32_t count);
QORM_API qorStatus qormCholeskyBackSubst_mva_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                                   const float* const* ppSrc2, int32_t src2Shift,
                                                   int32_t src2Stride0, float* const* ppDst,
                                                   int32_t dstShift, int32_t dstStride0,
                                                   int32_t widthHeight, int32_t count);
QORM_API qorStatus qormCholeskyBackSubst_mva_32f_L(const float* pSrc1, int32_t src1Stride1,
                                                   int32_t src1Stride2, const float* const* ppSrc2,
                                                   int32_t src2Shift, int32_t src2Stride2,
                                                   float* const* ppDst, int32_t dstShift,
                                                   int32_t dstStride2, int32_t widthHeight,
                                                   int32_t count);
QORM_API qorStatus qormCholeskyBackSubst_mva_64f(const double* pSrc1, int32_t src1Stride1,
                                                 int32_t src1Stride2, const double* pSrc2,
                                                 int32_t src2Stride0, int32_t src2Stride2,
                                                 double* pDst, int32_t dstStride0,
                                                 int32_t dstStride2, int32_t widthHeight,
                                                 int32_t count);
QORM_API qorStatus qormCholeskyBackSubst_mva_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                                   const double* const* ppSrc2, int32_t src2Shift,
                                                   int32_t src2Stride0, double* const* ppDst,
                                                   int32_t dstShift, int32_t dstStride0,
                                                   int32_t widthHeight, int32_t count);
QORM_API qorStatus qormCholeskyBackSubst_mva_64f_L(const double* pSrc1, int32_t src1Stride1,
                                                   int32_t src1Stride2, const double* const* ppSrc2,
                                                   int32_t src2Shift, int32_t src2Stride2,
                                                   double* const* ppDst, int32_t dstShift,
                                                   int32_t dstStride2, int32_t widthHeight,
                                                   int32_t count);
/** @} */

/** @name An array of matrices, each with a vector of its own
 *  Checks, in this order: null pointer, count, `widthHeight`, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormCholeskyBackSubst_mava_32f(const float* pSrc1, int32_t src1Stride0,
                                                  int32_t src1Stride1, int32_t src1Stride2,
                                                  const float* pSrc2, int32_t src2Stride0,
                                                  int32_t src2Stride2, float* pDst,
                                                  int32_t dstStride0, int32_t dstStride2,
                                                  int32_t widthHeight, int32_t count);
QORM_API qorStatus qormCholeskyBackSubst_mava_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                                    int32_t src1Stride0, const float* const* ppSrc2,
                                                    int32_t src2Shift, int32_t src2Stride0,
                                                    float* const* ppDst, int32_t dstShift,
                                                    int32_t dstStride0, int32_t widthHeight,
                                                    int32_t count);
QORM_API qorStatus qormCholeskyBackSubst_mava_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                                    int32_t src1Stride1, int32_t src1Stride2,
                                                    const float* const* ppSrc2, int32_t src2Shift,
                                                    int32_t src2Stride2, float* const* ppDst,
                                                    int32_t dstShift, int32_t dstStride2,
                                                    int32_t widthHeight, int32_t count);
QORM_API qorStatus qormCholeskyBackSubst_mava_64f(const double* pSrc1, int32_t src1Stride0,
                                                  int32_t src1Stride1, int32_t src1Stride2,
                                                  const double* pSrc2, int32_t src2Stride0,
                                                  int32_t src2Stride2, double* pDst,
                                                  int32_t dstStride0, int32_t dstStride2,
                                                  int32_t widthHeight, int32_t count);
QORM_API qorStatus qormCholeskyBackSubst_mava_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                                    int32_t src1Stride0,
                                                    const double* const* ppSrc2, int32_t src2Shift,
                                                    int32_t src2Stride0, double* const* ppDst,
                                                    int32_t dstShift, int32_t dstStride0,
                                                    int32_t widthHeight, int32_t count);
QORM_API qorStatus qormCholeskyBackSubst_mava_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                                    int32_t src1Stride1, int32_t src1Stride2,
                                                    const double* const* ppSrc2, int32_t src2Shift,
                                                    int32_t src2Stride2, double* const* ppDst,
                                                    int32_t dstShift, int32_t dstStride2,
                                                    int32_t widthHeight, int32_t count);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
