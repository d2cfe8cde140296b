/** @file l2norm.h
 *  Euclidean lengths of vectors: the square root of the sum over k of x(k)*x(k).
 *
 *  Shapes. `pSrc` is a vector (or an array of `count`) of `len` elements. `pDst` has one element
 *  per vector, in every layout a plain array: the length of object n is `pDst[n]`.
 *
 *  Arithmetic. All is done in the element type, every square s(k) = x(k)*x(k), every sum and the
 *  root correctly rounded: no wider accumulator, no fused multiply-add. Squares are added from left
 *  to right, but for two members.
 *
 *  **#qormL2Norm_v_32f from length 11 on and #qormL2Norm_v_64f from length 9 on add in blocks**
 *  where `srcStride2` is the element size. Their last bits may then differ from those of `va` and
 *  of other layouts, and with the address. Partial sums start at 0 and take the squares in blocks
 *  of eight, q0 to q7; to the sum of all partial sums the squares left over are added one by one.
 *
 *      type   partial sums                           their sum
 *      32f    Lt takes qt, t = 0..7                  ((L0+L4) + (L1+L5)) + ((L2+L6) + (L3+L7))
 *      64f    Lt takes qt, then q(t+4), t = 0..3     (L0+L2) + (L1+L3)
 *
 *  If `pSrc` is no multiple of the element size, there are no blocks, and the sum runs from left to
 *  right. Else the squares before the first multiple of 16 (none to three in 32f, none or one in
 *  64f) are added up first, from left to right, and L0 starts with their sum.
 *
 *  Range. Nothing is scaled. A sum that overflows gives infinity, squares that underflow lose
 *  digits or count as 0: keep the larger elements between about 1e-19 and 1e19 in 32f, 1e-154 and
 *  1e154 in 64f.
 *
 *  Accuracy. Squares don't cancel: the relative error is at most about `len`/2 + 1 roundings
 *  (Higham, "Accuracy and Stability of Numerical Algorithms", section 3.1).
 *
 *  In place. `pDst[n]` may lie in vector n: it is written after the sum. It must not lie in another
 *  vector.
 *
 *  Statuses. None but that of a failed check is ever returned; NaN and infinity take their course.
 *
 *  Example: crossproduct.h. Layouts, units and statuses: qorm/types.h.
 */
#ifndef QORM_L2NORM_H
#define QORM_L2NORM_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Length of one vector: pDst[0] = sqrt(sum over k of x(k)*x(k))
 *  Checks, in this order: null pointer, size, stride (`_P`: shift).
 *  @{ */
QORM_API qorStatus qormL2Norm_v_32f(const float* pSrc, int32_t srcStride2, float* pDst,
                                    int32_t len);
QORM_API qorStatus qormL2Norm_v_32f_P(const float* const* ppSrc, int32_t srcShift, float* pDst,
                                      int32_t len);
QORM_API qorStatus qormL2Norm_v_64f(const double* pSrc, int32_t srcStride2, double* pDst,
                                    int32_t len);
QORM_API qorStatus qormL2Norm_v_64f_P(const double* const* ppSrc, int32_t srcShift, double* pDst,
                                      int32_t len);
/** @} */

/** @name Lengths of `count` vectors: pDst[n] = sqrt(sum over k of x_n(k)*x_n(k))
 *  Checks, in this order: null pointer, count, size, strides, shift (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormL2Norm_va_32f(const float* pSrc, int32_t srcStride0, int32_t srcStride2,
                                     float* pDst, int32_t len, int32_t count);
QORM_API qorStatus qormL2Norm_va_32f_P(const float* const* ppSrc, int32_t srcShift,
                                       int32_t srcStride0, float* pDst, int32_t len, int32_t count);
QORM_API qorStatus qormL2Norm_va_32f_L(const float* const* ppSrc, int32_t srcShift,
                                       int32_t srcStride2, float* pDst, int32_t len, int32_t count);
QORM_API qorStatus qormL2Norm_va_64f(const double* pSrc, int32_t srcStride0, int32_t srcStride2,
                                     double* pDst, int32_t len, int32_t count);
QORM_API qorStatus qormL2Norm_va_64f_P(const double* const* ppSrc, int32_t srcShift,
                                       int32_t srcStride0, double* pDst, int32_t len,
                                       int32_t count);
QORM_API qorStatus qormL2Norm_va_64f_L(const double* const* ppSrc, int32_t srcShift,
                                       int32_t srcStride2, double* pDst, int32_t len,
                                       int32_t count);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
