/** @defgroup Det Det: determinants
 *  Determinants of square matrices.
 *
 *  ## Shapes
 *
 *  | Shape | Formula       | Layouts             |
 *  |-------|---------------|---------------------|
 *  | `m`   | dst = det A   | strides, `_P`       |
 *  | `ma`  | dstₙ = det Aₙ | strides, `_P`, `_L` |
 *
 *  `pSrc` is a matrix (or an array of `count`) of `widthHeight` rows and columns. `pDst` has one
 *  element per matrix, in every layout a plain array: the determinant of object n is `pDst[n]`.
 *
 *  `pBuffer` is scratch of `widthHeight * widthHeight` elements and behind them `widthHeight`
 *  32-bit integers, together `widthHeight * widthHeight * sizeof(element) + widthHeight * 4` bytes
 *  for the whole call. It must not be null at any size, but only sizes 1, 2 and from 7 on touch it,
 *  and a call that spreads over threads leaves it untouched.
 *
 *  ## Method
 *
 *  Sizes 3 to 6 have a closed form: from k = 2 on the minors of the first k rows are expanded along
 *  their last row, each minor once (Laplace's expansion; Horn and Johnson, "Matrix Analysis",
 *  section 0.8). It tests nothing.
 *
 *  Sizes 1, 2 and from 7 on take Gaussian elimination with partial pivoting on a copy of the
 *  matrix, the first of equal candidates being the pivot (Golub and Van Loan, "Matrix
 *  Computations", section 3.4); the determinant is the product of the pivots, negated for every
 *  exchange of rows. All sums are made in a fixed order from left to right.
 *
 *  ## Thresholds
 *
 *  The thresholds of the elimination are absolute: ε = 2⁻²³ for `32f`, 2⁻⁵² for `64f`, whatever the
 *  size of the elements. **The determinant is 0 if a pivot is below ε or the last one is not above
 *  ε** in absolute value. So **scale your data to about 1**: in `32f` the 2x2 matrix (10⁻⁸, 0; 0,
 *  10⁻⁸) has the determinant 0, but 10⁻⁸ times the 3x3 identity, of the closed form, has 10⁻²⁴.
 *
 *  At a pivot below ε, if it is not the last, single forms return +0. Array forms return (product
 *  of the pivots so far) · (last candidate · 0), unless the last candidate is itself within ε: a
 *  zero of either sign, or NaN where one of the factors is infinite or NaN.
 *
 *  ## Not-a-number
 *
 *  The closed form hands NaN and infinity on, and so does an elimination with its last pivot, which
 *  at size 1 is the only element. A NaN as an earlier pivot counts as below ε, so **at size 2 and
 *  from size 7 on a matrix with a NaN may have the determinant 0**, and single and array forms may
 *  differ on it.
 *
 *  ## Accuracy
 *
 *  The closed form is exact to a few roundings of its terms' magnitudes (the permanent of the
 *  absolute values). Where the terms cancel, few digits may be right, and the determinant of a
 *  singular matrix is rarely an exact 0. An elimination gives the determinant of a matrix that
 *  differs from yours by roundings, as long as no pivot is within ε.
 *
 *  ## In place
 *
 *  `pDst` and `pBuffer` must lie neither in the source nor in each other.
 *
 *  ## Cost
 *
 *  Multiplications per matrix, N being `widthHeight`:
 *
 *  | N = 3 | N = 4 | N = 5 | N = 6 | others                         |
 *  |-------|-------|-------|-------|--------------------------------|
 *  | 9     | 28    | 75    | 186   | about N³/3, and N²/2 divisions |
 *
 *  A call of `ma` spreads over threads where its work W reaches
 *
 *  | W   | strides | `_P`  | `_L`                         |
 *  |-----|---------|-------|------------------------------|
 *  | N·c | 20001   | 20001 | 40001 / 20001, general 20001 |
 *
 *  ## Statuses
 *
 *  None but that of a failed check is ever returned. A singular matrix gives #qorStatusOk, and an
 *  array call goes on with the next object.
 *
 *  @{
 */
#ifndef QORM_DET_H
#define QORM_DET_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Determinant of one matrix
 *  Checks, in this order: null pointer, `widthHeight`, strides (`_P`: shift).
 *  @{ */
QORM_API qorStatus qormDet_m_32f(const float* pSrc, int32_t srcStride1, int32_t srcStride2,
                                 int32_t widthHeight, float* pBuffer, float* pDst);
QORM_API qorStatus qormDet_m_32f_P(const float* const* ppSrc, int32_t srcShift, int32_t widthHeight,
                                   float* pBuffer, float* pDst);
QORM_API qorStatus qormDet_m_64f(const double* pSrc, int32_t srcStride1, int32_t srcStride2,
                                 int32_t widthHeight, double* pBuffer, double* pDst);
QORM_API qorStatus qormDet_m_64f_P(const double* const* ppSrc, int32_t srcShift,
                                   int32_t widthHeight, double* pBuffer, double* pDst);
/** @} */

/** @name Determinants of an array of matrices
 *  Checks, in this order: null pointer, count, `widthHeight`, strides, shift (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormDet_ma_32f(const float* pSrc, int32_t srcStride0, int32_t srcStride1,
                                  int32_t srcStride2, int32_t widthHeight, float* pBuffer,
                                  float* pDst, int32_t count);
QORM_API qorStatus qormDet_ma_32f_P(const float* const* ppSrc, int32_t srcShift, int32_t srcStride0,
                                    int32_t widthHeight, float* pBuffer, float* pDst,
                                    int32_t count);
QORM_API qorStatus qormDet_ma_32f_L(const float* const* ppSrc, int32_t srcShift, int32_t srcStride1,
                                    int32_t srcStride2, int32_t widthHeight, float* pBuffer,
                                    float* pDst, int32_t count);
QORM_API qorStatus qormDet_ma_64f(const double* pSrc, int32_t srcStride0, int32_t srcStride1,
                                  int32_t srcStride2, int32_t widthHeight, double* pBuffer,
                                  double* pDst, int32_t count);
QORM_API qorStatus qormDet_ma_64f_P(const double* const* ppSrc, int32_t srcShift,
                                    int32_t srcStride0, int32_t widthHeight, double* pBuffer,
                                    double* pDst, int32_t count);
QORM_API qorStatus qormDet_ma_64f_L(const double* const* ppSrc, int32_t srcShift,
                                    int32_t srcStride1, int32_t srcStride2, int32_t widthHeight,
                                    double* pBuffer, double* pDst, int32_t count);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
