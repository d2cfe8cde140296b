/** @file eigenvaluessym.h
 *  Eigenvalues of real symmetric matrices, largest first.
 *
 *  Shapes. `pSrc` is a symmetric matrix (or an array of `count`) of `widthHeight` rows and
 *  columns. The symmetry is not tested: size 2 reads only the upper off-diagonal element, sizes
 *  from 3 read all elements. `pDstValues` is a plain array, `widthHeight` elements per matrix,
 *  object n owning the run at `pDstValues + n*widthHeight`. `pBuffer` is scratch of `widthHeight *
 *  widthHeight` elements for the whole call; a call that spreads over threads leaves it untouched.
 *
 *  Method. Sizes 1 and 2 have closed forms. From size 3 on a Householder reduction to tridiagonal
 *  form is followed by QL sweeps with Wilkinson's implicit shift, run from the end of the matrix
 *  with the smaller diagonal element (Bowdler, Martin, Reinsch and Wilkinson, "The QR and QL
 *  algorithms for symmetric matrices", Numer. Math. 11, 1968; Parlett, "The Symmetric Eigenvalue
 *  Problem", chapter 8).
 *
 *  Thresholds are absolute: 2^-23 for 32f, 2^-52 for 64f, whatever the size of the elements. So
 *  **scale your data to about 1, and prefer 64f**. A matrix whose eigenvalues have a product
 *  within the threshold is reported as singular.
 *
 *  Accuracy. Nearly all results are at rounding level, but the sweeps are not guarded at every
 *  step: where a rotation vanishes, a result may come out inexact with #qorStatusOk. Structured
 *  matrices meet this, for example (2,-1,0; -1,1,-1; 0,-1,1), which gives about 2.907, 1.348,
 *  -0.255; of covariances of points on a coarse grid, one in ten thousand. Of random dense
 *  matrices of order 1, sizes 3 to 8, about 3 in 10,000 have a residual above 1e-4 in 32f (median
 *  5e-7), and 1 to 2 in 10,000 do not converge; in 64f none of 500,000 had a residual above 4e-13
 *  (median 1e-15), and 1 in 10,000 did not converge. Vectors are orthogonal to rounding in every
 *  case. Where an inexact result matters, check the residual; the matrix with its axes in another
 *  order usually passes.
 *
 *  Order. Values descend; only a 2x2 matrix of negative trace gives them ascending.
 *
 *  In place. `pBuffer` must overlap nothing. `pDstValues` may lie in the source where no value is
 *  written over an object that is still to be read.
 *
 *  Checks, in this order: null pointer, `widthHeight`, `count`, shift, strides.
 *
 *  Statuses. #qorStatusSingular: size 2, |determinant| within the threshold, no value written;
 *  size 3 and up, |product of the values| within it, values complete but unsorted.
 *  #qorStatusNoConvergence: an eigenvalue took more than 30 sweeps; the values of that object are
 *  meaningless. **An array call ends at the first object that fails**: those before it are
 *  complete, those behind it are untouched; a caller goes on by calling again from the next
 *  object. Where the call spread over threads each thread ends so in its own run of objects.
 */
#ifndef QORM_EIGENVALUESSYM_H
#define QORM_EIGENVALUESSYM_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Eigenvalues of one matrix
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

/** @name Eigenvalues of `count` matrices
 *  Array forms skip a reflection whose column is already reduced, which single forms don't; the two
 *  may differ in rounding.
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

#ifdef __cplusplus
}
#endif

#endif
