/** @defgroup CholeskyDecomp CholeskyDecomp: Cholesky factorisations
 *  Cholesky factorisations of symmetric positive definite matrices: A = L·Lᵀ.
 *
 *  ## Shapes
 *
 *  | Shape | Formula     | Layouts             |
 *  |-------|-------------|---------------------|
 *  | `m`   | A = L·Lᵀ    | strides, `_P`       |
 *  | `ma`  | Aₙ = Lₙ·Lₙᵀ | strides, `_P`, `_L` |
 *
 *  Source and destination are matrices (or arrays of `count`) of `widthHeight` rows and columns in
 *  the same layout, each with strides, or pointers and a shift, of its own. **Only the lower
 *  triangles count**: elements (i,j) with j ≤ i are read from the source and written to the
 *  destination. The upper triangles are neither used nor written; symmetry is not tested.
 *
 *  ## Storage
 *
 *  **The diagonal holds reciprocals**, so that the solver divides by nothing:
 *
 *      dst(i,j) = L(i,j)    j < i
 *      dst(i,i) = 1 / L(i,i)
 *
 *  That is what the solver takes (@ref CholeskyBackSubst). Whoever wants L itself inverts the
 *  diagonal.
 *
 *  ## Method
 *
 *  Row by row, without pivoting (Martin, Peters and Wilkinson, "Symmetric decomposition of a
 *  positive definite matrix", Numer. Math. 7, 1965; Golub and Van Loan, "Matrix Computations",
 *  section 4.2). Row i subtracts its products one by one, columns ascending, and multiplies by the
 *  reciprocal for each L(i,j); what is left of A(i,i) is the pivot s, and dst(i,i) = 1/√s. Each
 *  product is rounded before it is subtracted.
 *
 *  In `64f` root and division are correctly rounded. **In `32f` the reciprocal root is the
 *  processor's estimate** r after one Newton step, (s·r·r - 3)·r·(-0.5), which leaves about 22 bits
 *  right. Processors of different makes may have different estimates: **the bits of a `32f` result
 *  are those of one type of machine**.
 *
 *  ## Pivots
 *
 *  A matrix is positive definite where every pivot s is above T; a NaN is not. T is absolute, and
 *  it is not the same everywhere:
 *
 *  | Members                                              | Size 3 | Sizes 4, 5 | Size 6 | Others |
 *  |------------------------------------------------------|--------|------------|--------|--------|
 *  | `m_32f_P`, `ma_32f_P`, `m_64f_P`, `ma_64f_P`         | 2⁻²³   | 0          | 0      | 0      |
 *  | `ma_64f` where `srcStride2` or `dstStride2` is not 8 | 0      | 0          | 2⁻⁵²   | 2⁻⁵²   |
 *  | all others                                           | 0      | 0          | 0      | 0      |
 *
 *  So **scale your data to about 1**: a 3x3 matrix of `64f` with a pivot of 2⁻³⁰ fails in `_P` and
 *  passes in other layouts. Where T is 0, the pivot of a singular matrix is rounding noise, which
 *  passes or fails by its sign, and the reciprocal root of a denormal pivot may be -∞ in `32f`.
 *  An infinite pivot passes; its reciprocal root is stored as NaN in `32f`, as 0 in `64f`.
 *
 *  ## Accuracy
 *
 *  L·Lᵀ is A but for a few roundings of A's largest diagonal element, without any growth. The test
 *  of pivots is no test of the condition.
 *
 *  ## In place
 *
 *  The destination may coincide with the source, object for object. It must not overlap it in any
 *  other way.
 *
 *  ## Cost
 *
 *  About N³/6 multiplications and subtractions and N reciprocal roots per matrix, N being
 *  `widthHeight`; `32f` divides by nothing. A call of `ma` spreads over threads where its work W
 *  reaches
 *
 *  | W    | strides     | `_P` | `_L`                     |
 *  |------|-------------|------|--------------------------|
 *  | N²·c | 7501 / 2001 | 2001 | 2001 / 721, general 2001 |
 *
 *  ## Statuses
 *
 *  #qorStatusNotPositiveDefinite: the pivot of row i failed. Rows above it are complete and row i
 *  is so up to the diagonal; element (i,i) and later rows are untouched. **An array call ends at
 *  the first object that fails**: those before it are complete, those behind it are untouched; a
 *  caller goes on by calling again from the next object. Where the call spread over threads each
 *  thread ends so in its own run of objects.
 *
 *  ## Example
 *
 *  A thousand systems in an array of structures, solved where they lie:
 *
 *      struct System { double a[6][6], b[6]; } s[1000];
 *      const int32_t step = sizeof(struct System);
 *      fill(s);
 *      qorStatus status = qormCholeskyDecomp_ma_64f(s->a[0], step, 48, 8,
 *                                                   s->a[0], step, 48, 8, 6, 1000);
 *      if (status == qorStatusOk)
 *          qormCholeskyBackSubst_mava_64f(s->a[0], step, 48, 8, s->b, step, 8,
 *                                         s->b, step, 8, 6, 1000); // b is now x
 *
 *  @{
 */
#ifndef QORM_CHOLESKYDECOMP_H
#define QORM_CHOLESKYDECOMP_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Cholesky factorisation of one matrix
 *  Checks, in this order: null pointer, `widthHeight`, strides (`_P`: shifts).
 *  @{ */
QORM_API qorStatus qormCholeskyDecomp_m_32f(const float* pSrc, int32_t srcStride1,
                                            int32_t srcStride2, float* pDst, int32_t dstStride1,
                                            int32_t dstStride2, int32_t widthHeight);
QORM_API qorStatus qormCholeskyDecomp_m_32f_P(const float* const* ppSrc, int32_t srcShift,
                                              float* const* ppDst, int32_t dstShift,
                                              int32_t widthHeight);
QORM_API qorStatus qormCholeskyDecomp_m_64f(const double* pSrc, int32_t srcStride1,
                                            int32_t srcStride2, double* pDst, int32_t dstStride1,
                                            int32_t dstStride2, int32_t widthHeight);
QORM_API qorStatus qormCholeskyDecomp_m_64f_P(const double* const* ppSrc, int32_t srcShift,
                                              double* const* ppDst, int32_t dstShift,
                                              int32_t widthHeight);
/** @} */

/** @name Cholesky factorisations of an array of matrices
 *  Checks, in this order: null pointer, count, `widthHeight`, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormCholeskyDecomp_ma_32f(const float* pSrc, int32_t srcStride0,
                                             int32_t srcStride1, int32_t srcStride2, float* pDst,
                                             int32_t dstStride0, int32_t dstStride1,
                                             int32_t dstStride2, int32_t widthHeight,
                                             int32_t count);
QORM_API qorStatus qormCholeskyDecomp_ma_32f_P(const float* const* ppSrc, int32_t srcShift,
                                               int32_t srcStride0, float* const* ppDst,
                                               int32_t dstShift, int32_t dstStride0,
                                               int32_t widthHeight, int32_t count);
QORM_API qorStatus qormCholeskyDecomp_ma_32f_L(const float* const* ppSrc, int32_t srcShift,
                                               int32_t srcStride1, int32_t srcStride2,
                                               float* const* ppDst, int32_t dstShift,
                                               int32_t dstStride1, int32_t dstStride2,
                                               int32_t widthHeight, int32_t count);
QORM_API qorStatus qormCholeskyDecomp_ma_64f(const double* pSrc, int32_t srcStride0,
                                             int32_t srcStride1, int32_t srcStride2, double* pDst,
                                             int32_t dstStride0, int32_t dstStride1,
                                             int32_t dstStride2, int32_t widthHeight,
                                             int32_t count);
QORM_API qorStatus qormCholeskyDecomp_ma_64f_P(const double* const* ppSrc, int32_t srcShift,
                                               int32_t srcStride0, double* const* ppDst,
                                               int32_t dstShift, int32_t dstStride0,
                                               int32_t widthHeight, int32_t count);
QORM_API qorStatus qormCholeskyDecomp_ma_64f_L(const double* const* ppSrc, int32_t srcShift,
                                               int32_t srcStride1, int32_t srcStride2,
                                               double* const* ppDst, int32_t dstShift,
                                               int32_t dstStride1, int32_t dstStride2,
                                               int32_t widthHeight, int32_t count);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
