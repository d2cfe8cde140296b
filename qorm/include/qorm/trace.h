/** @file trace.h
 *  Traces of square matrices: the sum over k of A(k,k).
 *
 *  Shapes. `pSrc` is a matrix (or an array of `count`) of `widthHeight` rows and columns. `pDst`
 *  has one element per matrix, in every layout a plain array: the trace of object n is `pDst[n]`.
 *  Only the diagonal is read, but a table of `_P` has an entry for every element. Strides and
 *  shifts are bytes.
 *
 *  Arithmetic. Every sum is rounded to the element type: no wider accumulator. With d(k) = A(k,k)
 *  the elements are added from left to right; **at sizes 5 and 6 the forms that are not `_P` begin
 *  with the last ones**, so that their last bits may differ from those of `_P`:
 *
 *      size     no suffix, _L                              _P
 *      3        (d0 + d1) + d2                             the same
 *      4        ((d0 + d1) + d2) + d3                      the same
 *      5        (((d4 + d0) + d1) + d2) + d3               (((d0 + d1) + d2) + d3) + d4
 *      6        ((((d4 + d5) + d0) + d1) + d2) + d3        ((((d0 + d1) + d2) + d3) + d4) + d5
 *      others   ((0 + d0) + d1) + ...                      the same
 *
 *  The start with +0 shows in the sign of a zero alone: elements that are all -0 add up to +0 at
 *  sizes 1, 2 and from 7 on and to -0 at sizes 3 to 6.
 *
 *  Accuracy. The error is at most about `widthHeight` roundings of the sum of all |d(k)|. Where
 *  elements cancel, few digits may be right.
 *
 *  In place. `pDst[n]` may lie in matrix n: it is written after the sum. It must not lie in another
 *  matrix.
 *
 *  Statuses. None but that of a failed check is ever returned; NaN and infinity take their course.
 *
 *  Layouts, units and statuses: qorm/types.h.
 */
#ifndef QORM_TRACE_H
#define QORM_TRACE_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Trace of one matrix: pDst[0] = sum over k of A(k,k)
 *  Checks, in this order: null pointer, `widthHeight`, strides (`_P`: shift).
 *  @{ */
QORM_API qorStatus qormTrace_m_32f(const float* pSrc, int32_t srcStride1, int32_t srcStride2,
                                   int32_t widthHeight, float* pDst);
QORM_API qorStatus qormTrace_m_32f_P(const float* const* ppSrc, int32_t srcShift,
                                     int32_t widthHeight, float* pDst);
QORM_API qorStatus qormTrace_m_64f(const double* pSrc, int32_t srcStride1, int32_t srcStride2,
                                   int32_t widthHeight, double* pDst);
QORM_API qorStatus qormTrace_m_64f_P(const double* const* ppSrc, int32_t srcShift,
                                     int32_t widthHeight, double* pDst);
/** @} */

/** @name Traces of `count` matrices: pDst[n] = sum over k of A_n(k,k)
 *  Checks, in this order: null pointer, count, `widthHeight`, strides, shift (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormTrace_ma_32f(const float* pSrc, int32_t srcStride0, int32_t srcStride1,
                                    int32_t srcStride2, int32_t widthHeight, float* pDst,
                                    int32_t count);
QORM_API qorStatus qormTrace_ma_32f_P(const float* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride0, int32_t widthHeight, float* pDst,
                                      int32_t count);
QORM_API qorStatus qormTrace_ma_32f_L(const float* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride1, int32_t srcStride2, int32_t widthHeight,
                                      float* pDst, int32_t count);
QORM_API qorStatus qormTrace_ma_64f(const double* pSrc, int32_t srcStride0, int32_t srcStride1,
                                    int32_t srcStride2, int32_t widthHeight, double* pDst,
                                    int32_t count);
QORM_API qorStatus qormTrace_ma_64f_P(const double* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride0, int32_t widthHeight, double* pDst,
                                      int32_t count);
QORM_API qorStatus qormTrace_ma_64f_L(const double* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride1, int32_t srcStride2, int32_t widthHeight,
                                      double* pDst, int32_t count);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
