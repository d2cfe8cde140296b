/** @file eigenvaluesvectorssym.h
 *  Eigenvalues and eigenvectors of real symmetric matrices, largest value first.
 *
 *  Column j of the destination `pDstVectors`, a matrix of `widthHeight` rows and columns in the
 *  layout of the source, is the eigenvector of `pDstValues[j]`. Vectors have unit length to
 *  rounding and no convention of sign. `pSrc`, `pBuffer`, `pDstValues`, the method, the absolute
 *  thresholds and the advice to scale are those of eigenvaluessym.h; the reflectors and rotations
 *  of the method are accumulated into the vectors.
 *
 *  In place. The vectors may replace the source (same pointer and strides). The values must not
 *  lie in the vectors; `pBuffer` must overlap nothing.
 *
 *  Checks, in this order: null pointer, `widthHeight`, `count`, shifts, strides.
 *
 *  Statuses. As in eigenvaluessym.h. After #qorStatusSingular at size 3 and up values and vectors
 *  of the object are complete: sorted in `m_32f_P`, `m_64f` and `m_64f_P`, unsorted in `m_32f` and
 *  all array forms. After #qorStatusNoConvergence the values of the object are meaningless and its
 *  vectors hold the reflections and rotations so far.
 */
#ifndef QORM_EIGENVALUESVECTORSSYM_H
#define QORM_EIGENVALUESVECTORSSYM_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Eigenvalues and eigenvectors of one matrix
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

/** @name Eigenvalues and eigenvectors of `count` matrices
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

#ifdef __cplusplus
}
#endif

#endif
