/** @file dotproduct.h
 *  Scalar products of vectors: the sum over k of x(k)*y(k).
 *
 *  Shapes. `pSrc1` is x, `pSrc2` is y, vectors of `len` elements. In array forms x is an array of
 *  `count` vectors, and y is one, too, or serves every object. `pDst` has one element per product,
 *  in every layout a plain array: the product of object n is `pDst[n]`.
 *
 *  Arithmetic. All is done in the element type, every product p(k) = x(k)*y(k) and every sum
 *  rounded: no wider accumulator, no fused multiply-add. Unless the table below says otherwise the
 *  products are added from left to right, at lengths 3 to 6 starting with p(0), at other lengths
 *  with +0. That start shows in the sign of a zero alone: products that are all -0 add up to -0 in
 *  the former and to +0 in the latter.
 *
 *  **The order of the sum depends on member, strides, length and alignment, and with it the last
 *  bits.** Strides of elements are `src1Stride2` and `src2Stride2`; a call of `vava_32f` is
 *  aligned where `pSrc1`, `src1Stride0`, `pSrc2` and `src2Stride0` are all multiples of 16.
 *
 *      member (no suffix)    strides of elements           length     sum
 *      vv_32f                both are the element size     from 11    in blocks
 *      vv_64f                both are the element size     from 9     in blocks
 *      vava_32f, aligned     both are the element size     4 to 6     ((0+p0) + (0+p1))
 *                                                                     + ((0+p2) + (0+p3)),
 *                                                                     then + p4, + p5
 *                                                          from 8     in blocks, from p0 on
 *      vava_32f, else        both are the element size     from 11    in blocks
 *      all, and all _L       one is not the element size   5          (((p4+p0)+p1)+p2)+p3
 *                                                          6          ((((p4+p5)+p0)+p1)+p2)+p3
 *
 *  In blocks: partial sums start at +0 and take the products in blocks of eight, q0 to q7. To the
 *  sum of all partial sums the products left over are added one by one.
 *
 *      type   partial sums                           their sum
 *      32f    Lt takes qt, t = 0..7                  ((L0+L4) + (L1+L5)) + ((L2+L6) + (L3+L7))
 *      64f    Lt takes qt, then q(t+4), t = 0..3     (L0+L2) + (L1+L3)
 *
 *  Except in aligned calls of `vava_32f` the address of the object's y decides where the blocks
 *  begin. If it is no multiple of the element size, there are none, and the sum runs from left to
 *  right. Else the products before the first multiple of 16 (none to three in 32f, none or one in
 *  64f) are added up first, from left to right, and L0 starts with their sum.
 *
 *  Accuracy. The error is at most about `len` roundings of the sum of all |p(k)|, in blocks a
 *  fraction of that (Higham, "Accuracy and Stability of Numerical Algorithms", section 3.1). Where
 *  products cancel, few digits may be right. Nothing is scaled: sums may overflow.
 *
 *  In place. `pDst[n]` may lie in a vector that object n alone reads: it is written after the sum.
 *  It must not lie in a vector that another object reads.
 *
 *  Statuses. None but that of a failed check is ever returned; NaN and infinity take their course.
 *
 *  Layouts, units and statuses: qorm/types.h.
 */
#ifndef QORM_DOTPRODUCT_H
#define QORM_DOTPRODUCT_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Product of two vectors: pDst[0] = sum over k of x(k)*y(k)
 *  Checks, in this order: null pointer, size, strides (`_P`: shifts).
 *  @{ */
QORM_API qorStatus qormDotProduct_vv_32f(const float* pSrc1, int32_t src1Stride2,
                                         const float* pSrc2, int32_t src2Stride2, float* pDst,
                                         int32_t len);
QORM_API qorStatus qormDotProduct_vv_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                           const float* const* ppSrc2, int32_t src2Shift,
                                           float* pDst, int32_t len);
QORM_API qorStatus qormDotProduct_vv_64f(const double* pSrc1, int32_t src1Stride2,
                                         const double* pSrc2, int32_t src2Stride2, double* pDst,
                                         int32_t len);
QORM_API qorStatus qormDotProduct_vv_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                           const double* const* ppSrc2, int32_t src2Shift,
                                           double* pDst, int32_t len);
/** @} */

/** @name Product of each vector of an array and one vector: pDst[n] = sum over k of x_n(k)*y(k)
 *  Checks, in this order: null pointer, count, size, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormDotProduct_vav_32f(const float* pSrc1, int32_t src1Stride0,
                                          int32_t src1Stride2, const float* pSrc2,
                                          int32_t src2Stride2, float* pDst, int32_t len,
                                          int32_t count);
QORM_API qorStatus qormDotProduct_vav_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                            int32_t src1Stride0, const float* const* ppSrc2,
                                            int32_t src2Shift, float* pDst, int32_t len,
                                            int32_t count);
QORM_API qorStatus qormDotProduct_vav_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                            int32_t src1Stride2, const float* pSrc2,
                                            int32_t src2Stride2, float* pDst, int32_t len,
                                            int32_t count);
QORM_API qorStatus qormDotProduct_vav_64f(const double* pSrc1, int32_t src1Stride0,
                                          int32_t src1Stride2, const double* pSrc2,
                                          int32_t src2Stride2, double* pDst, int32_t len,
                                          int32_t count);
QORM_API qorStatus qormDotProduct_vav_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                            int32_t src1Stride0, const double* const* ppSrc2,
                                            int32_t src2Shift, double* pDst, int32_t len,
                                            int32_t count);
QORM_API qorStatus qormDotProduct_vav_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                            int32_t src1Stride2, const double* pSrc2,
                                            int32_t src2Stride2, double* pDst, int32_t len,
                                            int32_t count);
/** @} */

/** @name Product of two arrays, object by object: pDst[n] = sum over k of x_n(k)*y_n(k)
 *  Checks, in this order: null pointer, count, size, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormDotProduct_vava_32f(const float* pSrc1, int32_t src1Stride0,
                                           int32_t src1Stride2, const float* pSrc2,
                                           int32_t src2Stride0, int32_t src2Stride2, float* pDst,
                                           int32_t len, int32_t count);
QORM_API qorStatus qormDotProduct_vava_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                             int32_t src1Stride0, const float* const* ppSrc2,
                                             int32_t src2Shift, int32_t src2Stride0, float* pDst,
                                             int32_t len, int32_t count);
QORM_API qorStatus qormDotProduct_vava_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                             int32_t src1Stride2, const float* const* ppSrc2,
                                             int32_t src2Shift, int32_t src2Stride2, float* pDst,
                                             int32_t len, int32_t count);
QORM_API qorStatus qormDotProduct_vava_64f(const double* pSrc1, int32_t src1Stride0,
                                           int32_t src1Stride2, const double* pSrc2,
                                           int32_t src2Stride0, int32_t src2Stride2, double* pDst,
                                           int32_t len, int32_t count);
QORM_API qorStatus qormDotProduct_vava_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                             int32_t src1Stride0, const double* const* ppSrc2,
                                             int32_t src2Shift, int32_t src2Stride0, double* pDst,
                                             int32_t len, int32_t count);
QORM_API qorStatus qormDotProduct_vava_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                             int32_t src1Stride2, const double* const* ppSrc2,
                                             int32_t src2Shift, int32_t src2Stride2, double* pDst,
                                             int32_t len, int32_t count);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
