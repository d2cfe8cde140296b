/** @defgroup QRDecomp QRDecomp: QR factorisations
 *  QR factorisations by Householder reflections: A = Q·R, with at least as many rows as columns.
 *
 *  ## Shapes
 *
 *  | Shape | Formula    | Layouts             |
 *  |-------|------------|---------------------|
 *  | `m`   | A = Q·R    | strides, `_P`       |
 *  | `ma`  | Aₙ = Qₙ·Rₙ | strides, `_P`, `_L` |
 *
 *  Source and destination are matrices (or arrays of `count`) of `height` rows and `width` columns,
 *  `width` ≤ `height`, in the same layout, each with strides, or pointers and a shift, of its own.
 *  `pBuffer` is scratch of `height` elements for the whole call. It must not be null at any size; a
 *  call that spreads over threads leaves it untouched.
 *
 *  ## Storage
 *
 *  R and the reflectors share the destination:
 *
 *      R(k,j) = dst(k,j)    k ≤ j
 *      v(i)   = dst(i,k)    i > k     the k-th reflector; v(k) = 1 is not stored
 *
 *      H(k) = I - β·v·vᵀ,   β = 2 / (1 + Σ v(i)² over i > k),   Q = H(0)·H(1)·…
 *
 *  There are `width` reflectors, in a square matrix `width` - 1: the last column has nothing to
 *  reduce. Their scales are not stored; the solver (@ref QRBackSubst), which takes the destination
 *  as it is, forms them again.
 *
 *  R(k,k) has the sign opposite to what was there before the k-th reflection, so that nothing
 *  cancels, and is positive where that was 0. The last diagonal element of a square matrix is what
 *  the reflections leave.
 *
 *  ## Method
 *
 *  Householder, "Unitary triangularization of a nonsymmetric matrix", J. ACM 5, 1958; Golub and Van
 *  Loan, "Matrix Computations", sections 5.1 and 5.2. Every sum is made in a fixed order, the same
 *  at all sizes.
 *
 *  ## Threshold
 *
 *  Before a column is reduced, the sum of squares of its elements from the diagonal down must not
 *  be below ε = 2⁻²³ for `32f`, 2⁻⁵² for `64f`, whatever the size of the elements: their length
 *  must not be below 3.5·10⁻⁴ or 1.5·10⁻⁸. So **scale your data to about 1**: in `32f` a 3x3 matrix
 *  of elements around 10⁻⁴ fails, whatever its rank. Only columns that are reduced are tested:
 *  **the last column of a square matrix is not**, and a 1x1 matrix is merely copied. This is no
 *  test of rank.
 *
 *  A NaN passes the test and spreads, with #qorStatusOk. Overflow of the sum of squares is not
 *  reported.
 *
 *  ## Accuracy
 *
 *  Q·R is A but for a few roundings of A's columns, whatever the condition. Where conditioning is
 *  doubtful, prefer this to the normal equations and a Cholesky factorisation, which square the
 *  condition number.
 *
 *  ## In place
 *
 *  The destination may coincide with the source, object for object. It must not overlap it in any
 *  other way; `pBuffer` must overlap nothing.
 *
 *  ## Cost
 *
 *  About w²·(h - w/3) multiplications and as many additions per matrix, a root and two divisions
 *  per reflector. A call of `ma` spreads over threads where its work W reaches
 *
 *  | W      | strides | `_P` | `_L` |
 *  |--------|---------|------|------|
 *  | 2w·h·c | 2801    | 1801 | 1801 |
 *
 *  ## Statuses
 *
 *  #qorStatusDivideByZero: the sum of squares of column k is below ε. The destination holds the
 *  source after reflectors 0 to k-1, with these below the diagonal of their columns. **An array
 *  call ends at the first object that fails**: those before it are complete, those behind it are
 *  untouched; a caller goes on by calling again from the next object. Where the call spread over
 *  threads each thread ends so in its own run of objects.
 *
 *  ## Example
 *
 *  The straight line c + d·t nearest to four points (t, b):
 *
 *      double a[4][2] = {{1, 0}, {1, 1}, {1, 2}, {1, 3}}, b[4] = {1, 3, 5, 7}, x[2], buffer[4];
 *      qorStatus status = qormQRDecomp_m_64f(a[0], 16, 8, buffer, a[0], 16, 8, 2, 4);
 *      if (status == qorStatusOk)
 *          qormQRBackSubst_mv_64f(a[0], 16, 8, buffer, b, 8, x, 8, 2, 4); // c = 1, d = 2
 *
 *  @{
 */
#ifndef QORM_QRDECOMP_H
#define QORM_QRDECOMP_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name QR factorisation of one matrix
 *  Checks, in this order: null pointer, sizes, strides (`_P`: shifts), size match.
 *  @{ */
QORM_API qorStatus qormQRDecomp_m_32f(const float* pSrc, int32_t srcStride1, int32_t srcStride2,
                                      float* pBuffer, float* pDst, int32_t dstStride1,
                                      int32_t dstStride2, int32_t width, int32_t height);
QORM_API qorStatus qormQRDecomp_m_32f_P(const float* const* ppSrc, int32_t srcShift, float* pBuffer,
                                        float* const* ppDst, int32_t dstShift, int32_t width,
                                        int32_t height);
QORM_API qorStatus qormQRDecomp_m_64f(const double* pSrc, int32_t srcStride1, int32_t srcStride2,
                                      double* pBuffer, double* pDst, int32_t dstStride1,
                                      int32_t dstStride2, int32_t width, int32_t height);
QORM_API qorStatus qormQRDecomp_m_64f_P(const double* const* ppSrc, int32_t srcShift,
                                        double* pBuffer, double* const* ppDst, int32_t dstShift,
                                        int32_t width, int32_t height);
/** @} */

/** @name QR factorisations of an array of matrices
 *  Checks, in this order: null pointer, count, sizes, strides, shifts (`_P`, `_L`), size match.
 *  @{ */
QORM_API qorStatus qormQRDecomp_ma_32f(const float* pSrc, int32_t srcStride0, int32_t srcStride1,
                                       int32_t srcStride2, float* pBuffer, float* pDst,
                                       int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                       int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormQRDecomp_ma_32f_P(const float* const* ppSrc, int32_t srcShift,
                                         int32_t srcStride0, float* pBuffer, float* const* ppDst,
                                         int32_t dstShift, int32_t dstStride0, int32_t width,
                                         int32_t height, int32_t count);
QORM_API qorStatus qormQRDecomp_ma_32f_L(const float* const* ppSrc, int32_t srcShift,
                                         int32_t srcStride1, int32_t srcStride2, float* pBuffer,
                                         float* const* ppDst, int32_t dstShift, int32_t dstStride1,
                                         int32_t dstStride2, int32_t width, int32_t height,
                                         int32_t count);
QORM_API qorStatus qormQRDecomp_ma_64f(const double* pSrc, int32_t srcStride0, int32_t srcStride1,
                                       int32_t srcStride2, double* pBuffer, double* pDst,
                                       int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                       int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormQRDecomp_ma_64f_P(const double* const* ppSrc, int32_t srcShift,
                                         int32_t srcStride0, double* pBuffer, double* const* ppDst,
                                         int32_t dstShift, int32_t dstStride0, int32_t width,
                                         int32_t height, int32_t count);
QORM_API qorStatus qormQRDecomp_ma_64f_L(const double* const* ppSrc, int32_t srcShift,
                                         int32_t srcStride1, int32_t srcStride2, double* pBuffer,
                                         double* const* ppDst, int32_t dstShift, int32_t dstStride1,
                                         int32_t dstStride2, int32_t width, int32_t height,
                                         int32_t count);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
