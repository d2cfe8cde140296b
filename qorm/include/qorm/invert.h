/** @defgroup Invert Invert: inverses
 *  Inverses of square matrices.
 *
 *  ## Shapes
 *
 *  | Shape | Formula     | Layouts             |
 *  |-------|-------------|---------------------|
 *  | `m`   | dst = A⁻¹   | strides, `_P`       |
 *  | `ma`  | dstₙ = Aₙ⁻¹ | strides, `_P`, `_L` |
 *
 *  Source and destination are matrices (or arrays of `count`) of `widthHeight` rows and columns in
 *  the same layout, each with strides, or pointers and a shift, of its own.
 *
 *  `pBuffer` is scratch of `widthHeight * widthHeight` elements and behind them `widthHeight`
 *  32-bit integers, together `widthHeight * widthHeight * sizeof(element) + widthHeight * 4` bytes
 *  for the whole call. It must not be null at any size, but only size 2 and sizes from 7 on touch
 *  it, and a call that spreads over threads leaves it untouched.
 *
 *  ## Method
 *
 *  Every element of the inverse is a cofactor of the source times the reciprocal of the determinant
 *  (the adjugate; Horn and Johnson, "Matrix Analysis", section 0.8). Size 1 is a reciprocal. Sizes
 *  3 to 6 have closed forms: minors of 2 rows, of 3 and so on, expanded down a column, each once
 *  and shared by the cofactors and the determinant.
 *
 *  Size 2 and sizes from 7 on take a Gaussian elimination with partial pivoting for the determinant
 *  and one for each cofactor, the first of equal candidates being the pivot (Golub and Van Loan,
 *  "Matrix Computations", section 3.4). All sums are made in a fixed order from left to right. @ref
 *  Det expands the other way and may differ in the last bits from the determinant used here.
 *
 *  ## Thresholds
 *
 *  They are absolute: ε = 2⁻²³ for `32f`, 2⁻⁵² for `64f`, whatever the size of the elements. A
 *  matrix is singular where
 *
 *  | Size         | In absolute value                                                  |
 *  |--------------|--------------------------------------------------------------------|
 *  | 1            | the element is not above ε                                         |
 *  | 3 to 6       | the determinant is below ε                                         |
 *  | 2, from 7 on | a pivot of the elimination is below ε, or the last one not above ε |
 *
 *  So **scale your data to about 1**: in `32f` 10⁻⁴ times the 3x3 identity is singular, its
 *  determinant being 10⁻¹². In the eliminations of size 2 and sizes from 7 on **a minor that fails
 *  this test of pivots counts as 0**, with #qorStatusOk: in `32f` the inverse of (1, 10⁻⁹; 0, 1)
 *  has -0 in the place of -10⁻⁹.
 *
 *  ## Not-a-number
 *
 *  Where the element of size 1 or the determinant of sizes 3 to 6 is NaN, **single forms report a
 *  singular matrix, array forms write NaN** with #qorStatusOk. At size 2 and from size 7 on all
 *  forms report a NaN pivot as singular but for the last one, which passes and makes every element
 *  NaN. Overflow is not reported: an infinite determinant gives zeros or NaN with #qorStatusOk.
 *
 *  ## Accuracy
 *
 *  Of well-scaled matrices inverses are about as good as those of an elimination with partial
 *  pivoting: the error is a few roundings times the condition number. The test of a small
 *  determinant is no test of the condition.
 *
 *  ## In place
 *
 *  The destination may lie on the source, object for object, at sizes 1 and 3 to 6, where an object
 *  is read before it is written. At size 2 and from size 7 on the two must not overlap. `pBuffer`
 *  must overlap nothing.
 *
 *  ## Cost
 *
 *  Multiplications per matrix, N being `widthHeight`, and one division at sizes up to 6 but 2:
 *
 *  | N = 3 | N = 4 | N = 5 | N = 6 | others                                     |
 *  |-------|-------|-------|-------|--------------------------------------------|
 *  | 30    | 92    | 260   | 642   | about N⁵/3, up to N = 16 a quarter of that |
 *
 *  Solve a system by its factors (@ref LUDecomp, @ref LUBackSubst) where N is above 6. A call of
 *  `ma` spreads over threads where its work W reaches
 *
 *  | W    | strides | `_P`  | `_L`                         |
 *  |------|---------|-------|------------------------------|
 *  | 2N·c | 20001   | 20001 | 40001 / 20001, general 20001 |
 *
 *  ## Statuses
 *
 *  #qorStatusSingular: the matrix is singular, and its destination is untouched. **An array call
 *  ends at the first singular object**: those before it are complete, those behind it are
 *  untouched; a caller goes on by calling again from the next object. Where the call spread over
 *  threads, which it never does at size 1, each thread ends so in its own run of objects.
 *
 *  @{
 */
#ifndef QORM_INVERT_H
#define QORM_INVERT_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Inverse of one matrix
 *  Checks, in this order: null pointer, `widthHeight`, strides (`_P`: shifts).
 *  @{ */
QORM_API qorStatus qormInvert_m_32f(const float* pSrc, int32_t srcStride1, int32_t srcStride2,
                                    float* pBuffer, float* pDst, int32_t dstStride1,
                                    int32_t dstStride2, int32_t widthHeight);
QORM_API qorStatus qormInvert_m_32f_P(const float* const* ppSrc, int32_t srcShift, float* pBuffer,
                                      float* const* ppDst, int32_t dstShift, int32_t widthHeight);
QORM_API qorStatus qormInvert_m_64f(const double* pSrc, int32_t srcStride1, int32_t srcStride2,
                                    double* pBuffer, double* pDst, int32_t dstStride1,
                                    int32_t dstStride2, int32_t widthHeight);
QORM_API qorStatus qormInvert_m_64f_P(const double* const* ppSrc, int32_t srcShift, double* pBuffer,
                                      double* const* ppDst, int32_t dstShift, int32_t widthHeight);
/** @} */

/** @name Inverses of an array of matrices
 *  Checks, in this order: null pointer, count, `widthHeight`, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormInvert_ma_32f(const float* pSrc, int32_t srcStride0, int32_t srcStride1,
                                     int32_t srcStride2, float* pBuffer, float* pDst,
                                     int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                     int32_t widthHeight, int32_t count);
QORM_API qorStatus qormInvert_ma_32f_P(const float* const* ppSrc, int32_t srcShift,
                                       int32_t srcStride0, float* pBuffer, float* const* ppDst,
                                       int32_t dstShift, int32_t dstStride0, int32_t widthHeight,
                                       int32_t count);
QORM_API qorStatus qormInvert_ma_32f_L(const float* const* ppSrc, int32_t srcShift,
                                       int32_t srcStride1, int32_t srcStride2, float* pBuffer,
                                       float* const* ppDst, int32_t dstShift, int32_t dstStride1,
                                       int32_t dstStride2, int32_t widthHeight, int32_t count);
QORM_API qorStatus qormInvert_ma_64f(const double* pSrc, int32_t srcStride0, int32_t srcStride1,
                                     int32_t srcStride2, double* pBuffer, double* pDst,
                                     int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                     int32_t widthHeight, int32_t count);
QORM_API qorStatus qormInvert_ma_64f_P(const double* const* ppSrc, int32_t srcShift,
                                       int32_t srcStride0, double* pBuffer, double* const* ppDst,
                                       int32_t dstShift, int32_t dstStride0, int32_t widthHeight,
                                       int32_t count);
QORM_API qorStatus qormInvert_ma_64f_L(const double* const* ppSrc, int32_t srcShift,
                                       int32_t srcStride1, int32_t srcStride2, double* pBuffer,
                                       double* const* ppDst, int32_t dstShift, int32_t dstStride1,
                                       int32_t dstStride2, int32_t widthHeight, int32_t count);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
