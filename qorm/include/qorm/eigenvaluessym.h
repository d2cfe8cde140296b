/** @defgroup EigenValuesSym EigenValuesSym: eigenvalues
 *  Eigenvalues of real symmetric matrices, largest first.
 *
 *  ## Shapes
 *
 *  | Shape | Formula                         | Layouts             |
 *  |-------|---------------------------------|---------------------|
 *  | `m`   | values λ₀ ≥ λ₁ ≥ … of A·v = λ·v | strides, `_P`       |
 *  | `ma`  | the same for each Aₙ            | strides, `_P`, `_L` |
 *
 *  `pSrc` is a symmetric matrix (or an array of `count`) of `widthHeight` rows and columns. The
 *  symmetry is not tested: size 2 uses only the upper off-diagonal element, sizes from 3 use all
 *  elements. `pDstValues` is a plain array, `widthHeight` elements per matrix, object n owning the
 *  run at `pDstValues + n*widthHeight`. `pBuffer` is scratch of `widthHeight * widthHeight`
 *  elements for the whole call. It must not be null at any size; a call that spreads over threads
 *  leaves it untouched.
 *
 *  **Order.** Values descend; only a 2x2 matrix of negative trace gives them ascending.
 *
 *  ## Method
 *
 *  Sizes 1 and 2 have closed forms. From size 3 on a Householder reduction to tridiagonal form is
 *  followed by QL sweeps with Wilkinson's implicit shift, run from the end of the matrix with the
 *  smaller diagonal element (Bowdler, Martin, Reinsch and Wilkinson, "The QR and QL algorithms for
 *  symmetric matrices", Numer. Math. 11, 1968; Parlett, "The Symmetric Eigenvalue Problem", chapter
 *  8).
 *
 *  Array forms skip a reflection whose column is already reduced, which single forms don't; the two
 *  may differ in rounding.
 *
 *  ## Thresholds
 *
 *  They are absolute: ε = 2⁻²³ for `32f`, 2⁻⁵² for `64f`, whatever the size of the elements. So
 *  **scale your data to about 1, and prefer `64f`**. A matrix whose eigenvalues have a product
 *  within ε is reported as singular, from size 2 on.
 *
 *  That product is not always the true one. Where the last diagonal element of the tridiagonal form
 *  is not larger than the first in absolute value, **each round of the sweeps multiplies into it
 *  the diagonal element at the split that it finds**, settled or not. So a matrix with values below
 *  1 in absolute value may be reported as singular although their product is not that small, and
 *  one with values above 1 may pass. @ref EigenValuesVectorsSym multiplies each value once.
 *
 *  ## Accuracy
 *
 *  Nearly all results are at rounding level, but the sweeps are not guarded at every step: where a
 *  rotation vanishes, a result may come out inexact with #qorStatusOk. Structured matrices meet
 *  this, for example (2,-1,0; -1,1,-1; 0,-1,1), which gives about 2.907, 1.348, -0.255; of
 *  covariances of points on a coarse grid, one in ten thousand. Of random dense matrices of order
 *  1, sizes 3 to 8, about 3 in 10,000 have a residual above 10⁻⁴ in `32f` (median 5·10⁻⁷), and 1 to
 *  2 in 10,000 do not converge; in `64f` none of 500,000 had a residual above 4·10⁻¹³ (median
 *  10⁻¹⁵), and 1 in 10,000 did not converge. Vectors are orthogonal to rounding in every case.
 *  Where an inexact result matters, check the residual; the matrix with its axes in another order
 *  usually passes.
 *
 *  ## In place
 *
 *  `pBuffer` must overlap nothing. `pDstValues` may lie in the source where no value is written
 *  over an object that is still to be read.
 *
 *  ## Cost
 *
 *  About 4N³/3 multiplications for the reduction, N being `widthHeight`, and for the sweeps about
 *  N² rotations, each with a root and two divisions that wait for one another. A call of `ma`
 *  spreads over threads where its work W reaches
 *
 *  | W           | strides | `_P`  | `_L`                         |
 *  |-------------|---------|-------|------------------------------|
 *  | N·(N + 1)·c | 20001   | 20001 | 40001 / 20001, general 20001 |
 *
 *  ## Statuses
 *
 *  | Status                  | Where                                  | Values of the object  |
 *  |-------------------------|----------------------------------------|-----------------------|
 *  | #qorStatusSingular      | size 2, determinant within ε           | not written           |
 *  | #qorStatusSingular      | size 3 and up, product within ε        | complete but unsorted |
 *  | #qorStatusNoConvergence | an eigenvalue took more than 30 sweeps | meaningless           |
 *
 *  **An array call ends at the first object that fails**: those before it are complete, those
 *  behind it are untouched; a caller goes on by calling again from the next object. Where the call
 *  spread over threads each thread ends so in its own run of objects.
 *
 *  @{
 */
#ifndef QORM_EIGENVALUESSYM_H
#define QORM_EIGENVALUESSYM_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Eigenvalues of one matrix
 *  Checks, in this order: null pointer, `widthHeight`, strides (`_P`: shift).
 *  @{ */
QORM_API qorStatus qormEigenValuesSym_m_32f(const float* pSrc, int32_t srcStride1,
                                            int32_t srcStride2, float* pBuffer, float* pDstValues,
                                            int32_t widthHeight);
QORM_API qorStatus qormEigenValuesSym_m_32f_P(const float* const* ppSrc, int32_t srcShift,
                                              float* pBuffer, float* pDstValues,
                                              int32_t widthHeight);
QORM_API qorStatus qormEigenValuesSym_m_64f(const double* pSrc, int32_t srcStride1,
                                            int32_t srcStride2, double* pBuffer, double* pDstValues,
                                            int32_t widthHeight);
QORM_API qorStatus qormEigenValuesSym_m_64f_P(const double* const* ppSrc, int32_t srcShift,
                                              double* pBuffer, double* pDstValues,
                                              int32_t widthHeight);
/** @} */

/** @name Eigenvalues of an array of matrices
 *  Checks, in this order: null pointer, `widthHeight`, count, shift (`_P`, `_L`), strides.
 *  @{ */
QORM_API qorStatus qormEigenValuesSym_ma_32f(const float* pSrc, int32_t srcStride0,
                                             int32_t srcStride1, int32_t srcStride2, float* pBuffer,
                                             float* pDstValues, int32_t widthHeight, int32_t count);
QORM_API qorStatus qormEigenValuesSym_ma_32f_P(const float* const* ppSrc, int32_t srcShift,
                                               int32_t srcStride0, float* pBuffer,
                                               float* pDstValues, int32_t widthHeight,
                                               int32_t count);
QORM_API qorStatus qormEigenValuesSym_ma_32f_L(const float* const* ppSrc, int32_t srcShift,
                                               int32_t srcStride1, int32_t srcStride2,
                                               float* pBuffer, float* pDstValues,
                                               int32_t widthHeight, int32_t count);
QORM_API qorStatus qormEigenValuesSym_ma_64f(const double* pSrc, int32_t srcStride0,
                                             int32_t srcStride1, int32_t srcStride2,
                                             double* pBuffer, double* pDstValues,
                                             int32_t widthHeight, int32_t count);
QORM_API qorStatus qormEigenValuesSym_ma_64f_P(const double* const* ppSrc, int32_t srcShift,
                                               int32_t srcStride0, double* pBuffer,
                                               double* pDstValues, int32_t widthHeight,
                                               int32_t count);
QORM_API qorStatus qormEigenValuesSym_ma_64f_L(const double* const* ppSrc, int32_t srcShift,
                                               int32_t srcStride1, int32_t srcStride2,
                                               double* pBuffer, double* pDstValues,
                                               int32_t widthHeight, int32_t count);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
