/** @defgroup FrobNorm FrobNorm: Frobenius norms
 *  Frobenius norms of matrices: √(Σᵢⱼ A(i,j)²).
 *
 *  ## Shapes
 *
 *  | Shape | Formula                | Layouts             |
 *  |-------|------------------------|---------------------|
 *  | `m`   | dst = √(Σᵢⱼ A(i,j)²)   | strides, `_P`       |
 *  | `ma`  | dstₙ = √(Σᵢⱼ Aₙ(i,j)²) | strides, `_P`, `_L` |
 *
 *  `pSrc` is a matrix (or an array of `count`) of `height` rows and `width` columns. `pDst` has one
 *  element per matrix, in every layout a plain array: the norm of object n is `pDst[n]`. The norm
 *  is that of Golub and Van Loan, "Matrix Computations", section 2.3.
 *
 *  ## Small values
 *
 *  Let s be the sum of the squares and ε 2⁻²³ for `32f`, 2⁻⁵² for `64f`. **Most members give +0
 *  where s is below ε**, that is, where the norm is below 3.5·10⁻⁴ in `32f` or 1.5·10⁻⁸ in `64f`;
 *  the others always give the root:
 *
 *  | Members                                    | Size                 | s below ε or NaN |
 *  |--------------------------------------------|----------------------|------------------|
 *  | `m_32f`                                    | all                  | +0               |
 *  | `m_64f`                                    | all                  | √s               |
 *  | `m_32f_P`, `m_64f_P`                       | all                  | +0               |
 *  | `ma_32f`, `ma_64f`, `ma_32f_L`, `ma_64f_L` | 3x3; width 4, 5 or 6 | √s               |
 *  |                                            | others               | +0               |
 *  | `ma_32f_P`, `ma_64f_P`                     | 3x3                  | √s               |
 *  |                                            | others               | +0               |
 *
 *  "Width 4, 5 or 6" is at any height, so that 3 rows of 4 elements are not tested, 4 rows of 3
 *  are. Where s is exactly ε, all give the root. **So scale your data to about 1**: in `32f` a 3x3
 *  matrix of elements 10⁻⁵ has the norm 0 in `m`, but 3·10⁻⁵ in `ma`.
 *
 *  A NaN is not at least ε: **members and sizes with +0 in the table give +0 for a matrix with a
 *  NaN**, the others NaN. Infinity is handed on by all.
 *
 *  ## Arithmetic
 *
 *  Every square, every sum and the root are correctly rounded. Squares are added one by one, row by
 *  row, each row from left to right, with these exceptions, whose last bits may differ:
 *
 *  | Members                  | Sizes                           | Sum            |
 *  |--------------------------|---------------------------------|----------------|
 *  | `m_32f_P`, `m_64f_P`     | all                             | in pairs       |
 *  | `ma_32f_P`, `ma_64f_P`   | not 3x3                         | in pairs       |
 *  | `m_32f`                  | no square up to 6x6             | in packed runs |
 *  | `ma` by strides and `_L` | not 3x3, not of width 4, 5 or 6 | in packed runs |
 *
 *  In pairs: two positions of the table at a time, s = s + (x·x + y·y), then the square of the last
 *  one if their number is odd. In packed runs: where `srcStride1` is `srcStride2 * width`, several
 *  partial sums, in a grouping that is not promised and may go by the address.
 *
 *  ## Range and accuracy
 *
 *  Nothing is scaled. A sum that overflows gives infinity, squares that underflow lose digits or
 *  count as 0: keep the larger elements below about 10¹⁹ in `32f`, 10¹⁵⁴ in `64f`. Squares don't
 *  cancel: above the small values the relative error is at most about `width * height / 2` + 1
 *  roundings (Higham, "Accuracy and Stability of Numerical Algorithms", section 3.1).
 *
 *  ## In place
 *
 *  `pDst[n]` may lie in matrix n: it is written after the sum. It must not lie in another matrix.
 *
 *  ## Cost
 *
 *  One multiplication and one addition per element, and a root. A call of `ma` spreads over threads
 *  where its work W reaches
 *
 *  | W     | strides | `_P`  | `_L`                         |
 *  |-------|---------|-------|------------------------------|
 *  | w·h·c | 20001   | 20001 | 40001 / 20001, general 20001 |
 *
 *  ## Statuses
 *
 *  None but that of a failed check is ever returned; a small value is no failure.
 *
 *  @{
 */
#ifndef QORM_FROBNORM_H
#define QORM_FROBNORM_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Norm of one matrix: dst = √(Σᵢⱼ A(i,j)²)
 *  Checks, in this order: null pointer, size, strides (`_P`: shift).
 *  @{ */
QORM_API qorStatus qormFrobNorm_m_32f(const float* pSrc, int32_t srcStride1, int32_t srcStride2,
                                      int32_t width, int32_t height, float* pDst);
QORM_API qorStatus qormFrobNorm_m_32f_P(const float* const* ppSrc, int32_t srcShift, int32_t width,
                                        int32_t height, float* pDst);
QORM_API qorStatus qormFrobNorm_m_64f(const double* pSrc, int32_t srcStride1, int32_t srcStride2,
                                      int32_t width, int32_t height, double* pDst);
QORM_API qorStatus qormFrobNorm_m_64f_P(const double* const* ppSrc, int32_t srcShift, int32_t width,
                                        int32_t height, double* pDst);
/** @} */

/** @name Norms of an array of matrices: dstₙ = √(Σᵢⱼ Aₙ(i,j)²)
 *  Checks, in this order: null pointer, count, size, strides, shift (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormFrobNorm_ma_32f(const float* pSrc, int32_t srcStride0, int32_t srcStride1,
                                       int32_t srcStride2, int32_t width, int32_t height,
                                       float* pDst, int32_t count);
QORM_API qorStatus qormFrobNorm_ma_32f_P(const float* const* ppSrc, int32_t srcShift,
                                         int32_t srcStride0, int32_t width, int32_t height,
                                         float* pDst, int32_t count);
QORM_API qorStatus qormFrobNorm_ma_32f_L(const float* const* ppSrc, int32_t srcShift,
                                         int32_t srcStride1, int32_t srcStride2, int32_t width,
                                         int32_t height, float* pDst, int32_t count);
QORM_API qorStatus qormFrobNorm_ma_64f(const double* pSrc, int32_t srcStride0, int32_t srcStride1,
                                       int32_t srcStride2, int32_t width, int32_t height,
                                       double* pDst, int32_t count);
QORM_API qorStatus qormFrobNorm_ma_64f_P(const double* const* ppSrc, int32_t srcShift,
                                         int32_t srcStride0, int32_t width, int32_t height,
                                         double* pDst, int32_t count);
QORM_API qorStatus qormFrobNorm_ma_64f_L(const double* const* ppSrc, int32_t srcShift,
                                         int32_t srcStride1, int32_t srcStride2, int32_t width,
                                         int32_t height, double* pDst, int32_t count);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
