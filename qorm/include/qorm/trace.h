/** @defgroup Trace Trace: of square matrices
 *  Traces of square matrices: Σₖ A(k,k).
 *
 *  ## Shapes
 *
 *  | Shape | Formula           | Layouts             |
 *  |-------|-------------------|---------------------|
 *  | `m`   | dst = Σₖ A(k,k)   | strides, `_P`       |
 *  | `ma`  | dstₙ = Σₖ Aₙ(k,k) | strides, `_P`, `_L` |
 *
 *  `pSrc` is a matrix (or an array of `count`) of `widthHeight` rows and columns. `pDst` has one
 *  element per matrix, in every layout a plain array: the trace of object n is `pDst[n]`. Only the
 *  diagonal is read, but a table of `_P` has an entry for every element.
 *
 *  ## Arithmetic
 *
 *  Every sum is rounded. With d(k) = A(k,k) the elements are added from left to right; **at sizes 5
 *  and 6 strides and `_L` begin with the last ones**, so that their last bits may differ from those
 *  of `_P`:
 *
 *  | Size   | Strides, `_L`                       | `_P`                                |
 *  |--------|-------------------------------------|-------------------------------------|
 *  | 3      | (d₀ + d₁) + d₂                      | the same                            |
 *  | 4      | ((d₀ + d₁) + d₂) + d₃               | the same                            |
 *  | 5      | (((d₄ + d₀) + d₁) + d₂) + d₃        | (((d₀ + d₁) + d₂) + d₃) + d₄        |
 *  | 6      | ((((d₄ + d₅) + d₀) + d₁) + d₂) + d₃ | ((((d₀ + d₁) + d₂) + d₃) + d₄) + d₅ |
 *  | others | ((0 + d₀) + d₁) + …                 | the same                            |
 *
 *  The start with +0 shows in the sign of a zero alone: elements that are all -0 add up to +0 at
 *  sizes 1, 2 and from 7 on and to -0 at sizes 3 to 6.
 *
 *  ## Accuracy
 *
 *  The error is at most about `widthHeight` roundings of the sum of all absolute values of d(k).
 *  Where elements cancel, few digits may be right.
 *
 *  ## In place
 *
 *  `pDst[n]` may lie in matrix n: it is written after the sum. It must not lie in another matrix.
 *
 *  ## Cost
 *
 *  One addition per element of the diagonal. A call of `ma` spreads over threads where its work W
 *  reaches
 *
 *  | W   | strides | `_P`  | `_L`                         |
 *  |-----|---------|-------|------------------------------|
 *  | N·c | 20001   | 20001 | 40001 / 20001, general 20001 |
 *
 *  ## Statuses
 *
 *  None but that of a failed check is ever returned; NaN and infinity take their course.
 *
 *  @{
 */
#ifndef QORM_TRACE_H
#define QORM_TRACE_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Trace of one matrix: dst = Σₖ A(k,k)
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

/** @name Traces of an array of matrices: dstₙ = Σₖ Aₙ(k,k)
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

/** @} */

#ifdef __cplusplus
}
#endif

#endif
