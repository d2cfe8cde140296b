/** @defgroup L2Norm L2Norm: lengths of vectors
 *  Euclidean lengths of vectors: √(Σₖ x(k)²).
 *
 *  ## Shapes
 *
 *  | Shape | Formula             | Layouts             |
 *  |-------|---------------------|---------------------|
 *  | `v`   | dst = √(Σₖ x(k)²)   | strides, `_P`       |
 *  | `va`  | dstₙ = √(Σₖ xₙ(k)²) | strides, `_P`, `_L` |
 *
 *  `pSrc` is a vector (or an array of `count`) of `len` elements. `pDst` has one element per
 *  vector, in every layout a plain array: the length of object n is `pDst[n]`.
 *
 *  ## Arithmetic
 *
 *  Every square s(k) = x(k)·x(k), every sum and the root are correctly rounded. Squares are added
 *  from left to right, but for two members.
 *
 *  **#qormL2Norm_v_32f from length 11 on and #qormL2Norm_v_64f from length 9 on add in blocks**
 *  where `srcStride2` is the element size. Their last bits may then differ from those of `va` and
 *  of other layouts, and with the address. Partial sums start at 0 and take the squares in blocks
 *  of eight, q₀ to q₇; to the sum of all partial sums the squares left over are added one by one.
 *
 *  | Type  | Partial sums                      | Their sum                                 |
 *  |-------|-----------------------------------|-------------------------------------------|
 *  | `32f` | Lₜ takes qₜ, t = 0 … 7            | ((L₀+L₄) + (L₁+L₅)) + ((L₂+L₆) + (L₃+L₇)) |
 *  | `64f` | Lₜ takes qₜ, then qₜ₊₄, t = 0 … 3 | (L₀+L₂) + (L₁+L₃)                         |
 *
 *  If `pSrc` is no multiple of the element size, there are no blocks, and the sum runs from left to
 *  right. Else the squares before the first multiple of 16 (none to three in `32f`, none or one in
 *  `64f`) are added up first, from left to right, and L₀ starts with their sum.
 *
 *  ## Range and accuracy
 *
 *  Nothing is scaled. A sum that overflows gives infinity, squares that underflow lose digits or
 *  count as 0: keep the larger elements between about 10⁻¹⁹ and 10¹⁹ in `32f`, 10⁻¹⁵⁴ and 10¹⁵⁴ in
 *  `64f`. Squares don't cancel: the relative error is at most about `len`/2 + 1 roundings (Higham,
 *  "Accuracy and Stability of Numerical Algorithms", section 3.1).
 *
 *  ## In place
 *
 *  `pDst[n]` may lie in vector n: it is written after the sum. It must not lie in another vector.
 *
 *  ## Cost
 *
 *  One multiplication and one addition per element, and a root. A call of `va` spreads over threads
 *  where its work W = `len`·c reaches 20001, in every layout.
 *
 *  ## Statuses
 *
 *  None but that of a failed check is ever returned; NaN and infinity take their course.
 *
 *  There is an example at @ref CrossProduct.
 *
 *  @{
 */
#ifndef QORM_L2NORM_H
#define QORM_L2NORM_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Length of one vector: dst = √(Σₖ x(k)²)
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

/** @name Lengths of an array of vectors: dstₙ = √(Σₖ xₙ(k)²)
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

/** @} */

#ifdef __cplusplus
}
#endif

#endif
