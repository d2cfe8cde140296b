/** @defgroup QRBackSubst QRBackSubst: solutions and least squares from QR factors
 *  Solutions of linear systems and least-squares problems from QR factors.
 *
 *  x solves A·x = b where A is square; where it has more rows than columns, x makes the length of
 *  b - A·x as small as it can be.
 *
 *  ## Shapes
 *
 *  | Shape  | Formula        | Layouts             |
 *  |--------|----------------|---------------------|
 *  | `mv`   | R·x = Qᵀ·b     | strides, `_P`       |
 *  | `mva`  | R·xₙ = Qᵀ·bₙ   | strides, `_P`, `_L` |
 *  | `mava` | Rₙ·xₙ = Qₙᵀ·bₙ | strides, `_P`, `_L` |
 *
 *  `pSrc1` is the destination of @ref QRDecomp, a matrix of `height` rows and `width` columns (or
 *  an array of `count`), `width` ≤ `height`. `pSrc2` is b, a vector (or an array of `count`) of
 *  `height` elements, `pDst` is x, of `width` elements. Factors need not come from a call of the
 *  same layout.
 *
 *  `pBuffer` is scratch of `height` elements for the whole call. It must not be null at any size,
 *  but square matrices of sizes 3 to 6 don't touch it, and a call that spreads over threads leaves
 *  it untouched.
 *
 *  ## Method
 *
 *  The reflectors are applied to a copy of b, their scales formed again from what is stored of
 *  them, and a backward sweep through R divides by its diagonal (Golub and Van Loan, "Matrix
 *  Computations", sections 5.2 and 5.3). Every sum is made in a fixed order; that of square
 *  matrices of sizes 3 to 6 is another than that of the others.
 *
 *  ## Accuracy
 *
 *  The residual b - A·x of a square system is at the level of rounding, and the error of x is that
 *  times the condition number. Where the least residual is not small, the square of the condition
 *  number enters in proportion to it.
 *
 *  ## In place
 *
 *  x may lie on b, object for object, in the place of its first `width` elements: b is copied
 *  before x is written. It must not overlap a matrix, nor an x or b of another object. `pBuffer`
 *  must overlap nothing.
 *
 *  ## Cost
 *
 *  About 3w·h - w² multiplications per vector, and a division for each reflector and each row of R.
 *  Nearly a third of that forms the scales, which `mva` does once for square matrices of sizes 3
 *  to 6. A call spreads over threads where its work W reaches
 *
 *  | Shape  | W                 | strides | `_P` | `_L` |
 *  |--------|-------------------|---------|------|------|
 *  | `mva`  | w·h + (w + h)·c   | 2801    | 1801 | 1801 |
 *  | `mava` | (w·(h + 1) + h)·c | 2801    | 1801 | 1801 |
 *
 *  ## Statuses
 *
 *  None but that of a failed check is ever returned. A zero on R's diagonal gives infinities or NaN
 *  with #qorStatusOk. The factorisation does not test the last column of a square matrix: look at
 *  R's last diagonal element where that may vanish.
 *
 *  There is an example at @ref QRDecomp.
 *
 *  @{
 */
#ifndef QORM_QRBACKSUBST_H
#define QORM_QRBACKSUBST_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name One matrix with one vector
 *  Checks, in this order: null pointer, sizes, strides (`_P`: shifts), size match.
 *  @{ */
QORM_API qorStatus qormQRBackSubst_mv_32f(const float* pSrc1, int32_t src1Stride1,
                                          int32_t src1Stride2, float* pBuffer, const float* pSrc2,
                                          int32_t src2Stride2, float* pDst, int32_t dstStride2,
                                          int32_t width, int32_t height);
QORM_API qorStatus qormQRBackSubst_mv_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                            float* pBuffer, const float* const* ppSrc2,
                                            int32_t src2Shift, float* const* ppDst,
                                            int32_t dstShift, int32_t width, int32_t height);
QORM_API qorStatus qormQRBackSubst_mv_64f(const double* pSrc1, int32_t src1Stride1,
                                          int32_t src1Stride2, double* pBuffer, const double* pSrc2,
                                          int32_t src2Stride2, double* pDst, int32_t dstStride2,
                                          int32_t width, int32_t height);
QORM_API qorStatus qormQRBackSubst_mv_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                            double* pBuffer, const double* const* ppSrc2,
                                            int32_t src2Shift, double* const* ppDst,
                                            int32_t dstShift, int32_t width, int32_t height);
/** @} */

/** @name One matrix with an array of vectors
 *  In `_L` forms the matrix is in the layout without suffix, the vectors are in lists.
 *  Checks, in this order: null pointer, count, sizes, strides, shifts (`_P`, `_L`), size match.
 *  @{ */
QORM_API qorStatus qormQRBackSubst_mva_32f(const float* pSrc1, int32_t src1Stride1,
                                           int32_t src1Stride2, float* pBuffer, const float* pSrc2,
                                           int32_t src2Stride0, int32_t src2Stride2, float* pDst,
                                           int32_t dstStride0, int32_t dstStride2, int32_t width,
                                           int32_t height, int32_t count);
QORM_API qorStatus qormQRBackSubst_mva_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                             float* pBuffer, const float* const* ppSrc2,
                                             int32_t src2Shift, int32_t src2Stride0,
                                             float* const* ppDst, int32_t dstShift,
                                             int32_t dstStride0, int32_t width, int32_t height,
                                             int32_t count);
QORM_API qorStatus qormQRBackSubst_mva_32f_L(const float* pSrc1, int32_t src1Stride1,
                                             int32_t src1Stride2, float* pBuffer,
                                             const float* const* ppSrc2, int32_t src2Shift,
                                             int32_t src2Stride2, float* const* ppDst,
                                             int32_t dstShift, int32_t dstStride2, int32_t width,
                                             int32_t height, int32_t count);
QORM_API qorStatus qormQRBackSubst_mva_64f(const double* pSrc1, int32_t src1Stride1,
                                           int32_t src1Stride2, double* pBuffer,
                                           const double* pSrc2, int32_t src2Stride0,
                                           int32_t src2Stride2, double* pDst, int32_t dstStride0,
                                           int32_t dstStride2, int32_t width, int32_t height,
                                           int32_t count);
QORM_API qorStatus qormQRBackSubst_mva_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                             double* pBuffer, const double* const* ppSrc2,
                                             int32_t src2Shift, int32_t src2Stride0,
                                             double* const* ppDst, int32_t dstShift,
                                             int32_t dstStride0, int32_t width, int32_t height,
                                             int32_t count);
QORM_API qorStatus qormQRBackSubst_mva_64f_L(const double* pSrc1, int32_t src1Stride1,
                                             int32_t src1Stride2, double* pBuffer,
                                             const double* const* ppSrc2, int32_t src2Shift,
                                             int32_t src2Stride2, double* const* ppDst,
                                             int32_t dstShift, int32_t dstStride2, int32_t width,
                                             int32_t height, int32_t count);
/** @} */

/** @name An array of matrices, each with a vector of its own
 *  Checks, in this order: null pointer, count, sizes, strides, shifts (`_P`, `_L`), size match.
 *  @{ */
QORM_API qorStatus qormQRBackSubst_mava_32f(const float* pSrc1, int32_t src1Stride0,
                                            int32_t src1Stride1, int32_t src1Stride2,
                                            float* pBuffer, const float* pSrc2, int32_t src2Stride0,
                                            int32_t src2Stride2, float* pDst, int32_t dstStride0,
                                            int32_t dstStride2, int32_t width, int32_t height,
                                            int32_t count);
QORM_API qorStatus qormQRBackSubst_mava_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                              int32_t src1Stride0, float* pBuffer,
                                              const float* const* ppSrc2, int32_t src2Shift,
                                              int32_t src2Stride0, float* const* ppDst,
                                              int32_t dstShift, int32_t dstStride0, int32_t width,
                                              int32_t height, int32_t count);
QORM_API qorStatus qormQRBackSubst_mava_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                              int32_t src1Stride1, int32_t src1Stride2,
                                              float* pBuffer, const float* const* ppSrc2,
                                              int32_t src2Shift, int32_t src2Stride2,
                                              float* const* ppDst, int32_t dstShift,
                                              int32_t dstStride2, int32_t width, int32_t height,
                                              int32_t count);
QORM_API qorStatus qormQRBackSubst_mava_64f(const double* pSrc1, int32_t src1Stride0,
                                            int32_t src1Stride1, int32_t src1Stride2,
                                            double* pBuffer, const double* pSrc2,
                                            int32_t src2Stride0, int32_t src2Stride2, double* pDst,
                                            int32_t dstStride0, int32_t dstStride2, int32_t width,
                                            int32_t height, int32_t count);
QORM_API qorStatus qormQRBackSubst_mava_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                              int32_t src1Stride0, double* pBuffer,
                                              const double* const* ppSrc2, int32_t src2Shift,
                                              int32_t src2Stride0, double* const* ppDst,
                                              int32_t dstShift, int32_t dstStride0, int32_t width,
                                              int32_t height, int32_t count);
QORM_API qorStatus qormQRBackSubst_mava_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                              int32_t src1Stride1, int32_t src1Stride2,
                                              double* pBuffer, const double* const* ppSrc2,
                                              int32_t src2Shift, int32_t src2Stride2,
                                              double* const* ppDst, int32_t dstShift,
                                              int32_t dstStride2, int32_t width, int32_t height,
                                              int32_t count);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
