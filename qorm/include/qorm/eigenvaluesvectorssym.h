/** @defgroup EigenValuesVectorsSym EigenValuesVectorsSym: eigenvalues and eigenvectors
 *  Eigenvalues and eigenvectors of real symmetric matrices, largest value first.
 *
 *  ## Shapes
 *
 *  | Shape | Formula        | Layouts             |
 *  |-------|----------------|---------------------|
 *  | `m`   | A = V·Λ·Vᵀ     | strides, `_P`       |
 *  | `ma`  | Aₙ = Vₙ·Λₙ·Vₙᵀ | strides, `_P`, `_L` |
 *
 *  Column j of the destination `pDstVectors`, a matrix of `widthHeight` rows and columns in the
 *  layout of the source, is the eigenvector of `pDstValues[j]`. Vectors have unit length to
 *  rounding and no convention of sign. `pSrc`, `pBuffer` and `pDstValues` are those of @ref
 *  EigenValuesSym.
 *
 *  ## Method
 *
 *  Method, order of the values, absolute thresholds, accuracy and the advice to scale are those
 *  of @ref EigenValuesSym; the reflectors and rotations of the method are accumulated into the
 *  vectors. The product that is tested has each value once. In `32f` some roots are taken in double
 *  precision and rounded. So values may differ from those of @ref EigenValuesSym in rounding.
 *
 *  ## In place
 *
 *  The vectors may replace the source (same pointer and strides). The values must not lie in the
 *  vectors; `pBuffer` must overlap nothing.
 *
 *  ## Cost
 *
 *  About 7N³/3 multiplications for the reduction with its vectors, N being `widthHeight`, and for
 *  the sweeps about N² rotations, each with a root, two divisions and 4N multiplications. A call of
 *  `ma` spreads over threads where its work W = N·(2N + 1)·c reaches 1701, in every layout.
 *
 *  ## Statuses
 *
 *  | Status                  | Where | Values and vectors of the object |
 *  |-------------------------|---|---|
 *  | #qorStatusSingular      | size 2, determinant within ε | not written |
 *  | #qorStatusSingular      | size 3 and up, product within ε | complete, sorted or not |
 *  | #qorStatusNoConvergence | an eigenvalue took more than 30 sweeps | unfinished |
 *
 *  Complete values and vectors are sorted in `m_32f_P`, `m_64f` and `m_64f_P`, unsorted in `m_32f`
 *  and all array forms. Unfinished values are meaningless, and vectors hold the reflections and
 *  rotations so far.
 *
 *  **An array call ends at the first object that fails**: those before it are complete, those
 *  behind it are untouched; a caller goes on by calling again from the next object. Where the call
 *  spread over threads each thread ends so in its own run of objects.
 *
 *  @{
 */
#ifndef QORM_EIGENVALUESVECTORSSYM_H
#define QORM_EIGENVALUESVECTORSSYM_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Eigenvalues and eigenvectors of one matrix
 *  Checks, in this order: null pointer, `widthHeight`, strides (`_P`: shifts).
 *  @{ */
QORM_API qorStatus qormEigenValuesVectorsSym_m_32f(const float* pSrc, int32_t srcStride1,
                                                   int32_t srcStride2, float* pBuffer,
                                                   float* pDstVectors, int32_t dstStride1,
                                                   int32_t dstStride2, float* pDstValues,
                                                   int32_t widthHeight);
QORM_API qorStatus qormEigenValuesVectorsSym_m_32f_P(const float* const* ppSrc, int32_t srcShift,
                                                     float* pBuffer, float* const* ppDstVectors,
                                                     int32_t dstShift, float* pDstValues,
                                                     int32_t widthHeight);
QORM_API qorStatus qormEigenValuesVectorsSym_m_64f(const double* pSrc, int32_t srcStride1,
                                                   int32_t srcStride2, double* pBuffer,
                                                   double* pDstVectors, int32_t dstStride1,
                                                   int32_t dstStride2, double* pDstValues,
                                                   int32_t widthHeight);
QORM_API qorStatus qormEigenValuesVectorsSym_m_64f_P(const double* const* ppSrc, int32_t srcShift,
                                                     double* pBuffer, double* const* ppDstVectors,
                                                     int32_t dstShift, double* pDstValues,
                                                     int32_t widthHeight);
/** @} */

/** @name Eigenvalues and eigenvectors of an array of matrices
 *  Checks, in this order: null pointer, `widthHeight`, count, shifts (`_P`, `_L`), strides.
 *  @{ */
QORM_API qorStatus qormEigenValuesVectorsSym_ma_32f(const float* pSrc, int32_t srcStride0,
                                                    int32_t srcStride1, int32_t srcStride2,
                                                    float* pBuffer, float* pDstVectors,
                                                    int32_t dstStride0, int32_t dstStride1,
                                                    int32_t dstStride2, float* pDstValues,
                                                    int32_t widthHeight, int32_t count);
QORM_API qorStatus qormEigenValuesVectorsSym_ma_32f_P(const float* const* ppSrc, int32_t srcShift,
                                                      int32_t srcStride0, float* pBuffer,
                                                      float* const* ppDstVectors, int32_t dstShift,
                                                      int32_t dstStride0, float* pDstValues,
                                                      int32_t widthHeight, int32_t count);
QORM_API qorStatus qormEigenValuesVectorsSym_ma_32f_L(const float* const* ppSrc, int32_t srcShift,
                                                      int32_t srcStride1, int32_t srcStride2,
                                                      float* pBuffer, float* const* ppDstVectors,
                                                      int32_t dstShift, int32_t dstStride1,
                                                      int32_t dstStride2, float* pDstValues,
                                                      int32_t widthHeight, int32_t count);
QORM_API qorStatus qormEigenValuesVectorsSym_ma_64f(const double* pSrc, int32_t srcStride0,
                                                    int32_t srcStride1, int32_t srcStride2,
                                                    double* pBuffer, double* pDstVectors,
                                                    int32_t dstStride0, int32_t dstStride1,
                                                    int32_t dstStride2, double* pDstValues,
                                                    int32_t widthHeight, int32_t count);
QORM_API qorStatus qormEigenValuesVectorsSym_ma_64f_P(const double* const* ppSrc, int32_t srcShift,
                                                      int32_t srcStride0, double* pBuffer,
                                                      double* const* ppDstVectors, int32_t dstShift,
                                                      int32_t dstStride0, double* pDstValues,
                                                      int32_t widthHeight, int32_t count);
QORM_API qorStatus qormEigenValuesVectorsSym_ma_64f_L(const double* const* ppSrc, int32_t srcShift,
                                                      int32_t srcStride1, int32_t srcStride2,
                                                      double* pBuffer, double* const* ppDstVectors,
                                                      int32_t dstShift, int32_t dstStride1,
                                                      int32_t dstStride2, double* pDstValues,
                                                      int32_t widthHeight, int32_t count);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
