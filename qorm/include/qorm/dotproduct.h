/** @defgroup DotProduct DotProduct: scalar products
 *  Scalar products of vectors: Σₖ x(k)·y(k).
 *
 *  ## Shapes
 *
 *  | Shape  | Formula               | Layouts             |
 *  |--------|-----------------------|---------------------|
 *  | `vv`   | dst = Σₖ x(k)·y(k)    | strides, `_P`       |
 *  | `vav`  | dstₙ = Σₖ xₙ(k)·y(k)  | strides, `_P`, `_L` |
 *  | `vava` | dstₙ = Σₖ xₙ(k)·yₙ(k) | strides, `_P`, `_L` |
 *
 *  `pSrc1` is x, `pSrc2` is y, vectors of `len` elements. `pDst` has one element per product, in
 *  every layout a plain array: the product of object n is `pDst[n]`.
 *
 *  ## Arithmetic
 *
 *  Every product p(k) = x(k)·y(k) and every sum is rounded. Unless the table below says otherwise
 *  the products are added from left to right, at lengths 3 to 6 starting with p₀, at other lengths
 *  with +0. That start shows in the sign of a zero alone: products that are all -0 add up to -0 in
 *  the former and to +0 in the latter.
 *
 *  **The order of the sum depends on member, strides, length and alignment, and with it the last
 *  bits.** Operands are contiguous where `src1Stride2` and `src2Stride2` are both the element size;
 *  a call of `vava_32f` is aligned where `pSrc1`, `src1Stride0`, `pSrc2` and `src2Stride0` are all
 *  multiples of 16.
 *
 *  | Members by strides | Contiguous | Length  | Sum |
 *  |---|---|---------|---|
 *  | `vv_32f` | yes | from 11 | in blocks |
 *  | `vv_64f` | yes | from 9  | in blocks |
 *  | `vava_32f`, aligned | yes | 4 to 6  | ((0+p₀) + (0+p₁)) + ((0+p₂) + (0+p₃)), then + p₄, + p₅ |
 *  | `vava_32f`, aligned | yes | from 8  | in blocks, from p₀ on |
 *  | `vava_32f`, else | yes | from 11 | in blocks |
 *  | all, and all `_L` | no | 5       | (((p₄+p₀)+p₁)+p₂)+p₃ |
 *  | all, and all `_L` | no | 6       | ((((p₄+p₅)+p₀)+p₁)+p₂)+p₃ |
 *
 *  In blocks: partial sums start at +0 and take the products in blocks of eight, q₀ to q₇. To the
 *  sum of all partial sums the products left over are added one by one.
 *
 *  | Type  | Partial sums                      | Their sum                                 |
 *  |-------|-----------------------------------|-------------------------------------------|
 *  | `32f` | Lₜ takes qₜ, t = 0 … 7            | ((L₀+L₄) + (L₁+L₅)) + ((L₂+L₆) + (L₃+L₇)) |
 *  | `64f` | Lₜ takes qₜ, then qₜ₊₄, t = 0 … 3 | (L₀+L₂) + (L₁+L₃)                         |
 *
 *  Except in aligned calls of `vava_32f` the address of the object's y decides where the blocks
 *  begin. If it is no multiple of the element size, there are none, and the sum runs from left to
 *  right. Else the products before the first multiple of 16 (none to three in `32f`, none or one in
 *  `64f`) are added up first, from left to right, and L₀ starts with their sum.
 *
 *  ## Accuracy
 *
 *  The error is at most about `len` roundings of the sum of all absolute values of p(k), in blocks
 *  a fraction of that (Higham, "Accuracy and Stability of Numerical Algorithms", section 3.1).
 *  Where products cancel, few digits may be right. Nothing is scaled: sums may overflow.
 *
 *  ## In place
 *
 *  `pDst[n]` may lie in a vector that object n alone reads: it is written after the sum. It must
 *  not lie in a vector that another object reads.
 *
 *  ## Cost
 *
 *  One multiplication and one addition per element. A call spreads over threads where its work W
 *  reaches
 *
 *  | Shape  | W             | strides              | `_P`          | `_L`                 |
 *  |--------|---------------|----------------------|---------------|----------------------|
 *  | `vav`  | `len`·(c + 1) | 40001, general 20001 | 20001 / 40001 | 40001, general 20001 |
 *  | `vava` | 2·`len`·c     | 40001, general 20001 | 20001 / 40001 | 40001, general 20001 |
 *
 *  ## Statuses
 *
 *  None but that of a failed check is ever returned; NaN and infinity take their course.
 *
 *  @{
 */
#ifndef QORM_DOTPRODUCT_H
#define QORM_DOTPRODUCT_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Product of two vectors: dst = Σₖ x(k)·y(k)
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

/** @name Product of each vector of an array and one vector: dstₙ = Σₖ xₙ(k)·y(k)
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

/** @name Product of two arrays, object by object: dstₙ = Σₖ xₙ(k)·yₙ(k)
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

/** @} */

#ifdef __cplusplus
}
#endif

#endif
