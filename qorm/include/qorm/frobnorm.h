/** @file frobnorm.h
 *  Frobenius norms of matrices: the square root of the sum of the squares of all elements.
 *
 *  Shapes. `pSrc` is a matrix (or an array of `count`) of `height` rows and `width` columns. `pDst`
 *  has one element per matrix, in every layout a plain array: the norm of object n is `pDst[n]`.
 *  Strides and shifts are bytes. The norm is that of Golub and Van Loan, "Matrix Computations",
 *  section 2.3.
 *
 *  Small values. Let s be the sum of the squares and eps 2^-23 for 32f, 2^-52 for 64f. **Most
 *  members give +0 where s is below eps**, that is, where the norm is below 3.5e-4 in 32f or 1.5e-8
 *  in 64f; the others always give the root:
 *
 *      member                                  size                        s below eps or NaN
 *      m_32f                                   all                         +0
 *      m_64f                                   all                         root of s
 *      m_32f_P, m_64f_P                        all                         +0
 *      ma_32f, ma_64f, ma_32f_L, ma_64f_L      3x3; width 4, 5 or 6        root of s
 *                                              others                      +0
 *      ma_32f_P, ma_64f_P                      3x3                         root of s
 *                                              others                      +0
 *
 *  "Width 4, 5 or 6" is at any height, so that 3 rows of 4 elements are not tested, 4 rows of 3
 *  are. Where s is exactly eps, all give the root. **So scale your data to about 1**: in 32f a 3x3
 *  matrix of elements 1e-5 has the norm 0 in `m`, but 3e-5 in `ma`.
 *
 *  Not-a-number. A NaN is not at least eps: **members and sizes with +0 in the table give +0 for a
 *  matrix with a NaN**, the others NaN. Infinity is handed on by all.
 *
 *  Arithmetic. All is done in the element type, every square, every sum and the root correctly
 *  rounded: no wider accumulator, no fused multiply-add. Squares are added one by one, row by row,
 *  each row from left to right, with these exceptions, whose last bits may differ:
 *
 *      m_32f_P, m_64f_P               two positions of the table at a time, s = s + (x*x + y*y),
 *      ma_32f_P, ma_64f_P, not 3x3    then the square of the last one if their number is odd
 *      m_32f, no square up to 6x6     where srcStride1 is srcStride2 * width: several partial
 *      ma and ma _L, not 3x3, not     sums, in a grouping that is not promised
 *      of width 4, 5 or 6             and may go by the address
 *
 *  Range. Nothing is scaled. A sum that overflows gives infinity, squares that underflow lose
 *  digits or count as 0: keep the larger elements below about 1e19 in 32f, 1e154 in 64f.
 *
 *  Accuracy. Squares don't cancel: above the small values the relative error is at most about
 *  `width * height / 2` + 1 roundings (Higham, "Accuracy and Stability of Numerical Algorithms",
 *  section 3.1).
 *
 *  In place. `pDst[n]` may lie in matrix n: it is written after the sum. It must not lie in another
 *  matrix.
 *
 *  Statuses. None but that of a failed check is ever returned; a small value is no failure.
 *
 *  Layouts, units and statuses: qorm/types.h.
 */
#ifndef QORM_FROBNORM_H
#define QORM_FROBNORM_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Norm of one matrix: pDst[0] = sqrt(sum over i and j of A(i,j)*A(i,j))
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

/** @name Norms of `count` matrices: pDst[n] = sqrt(sum over i and j of A_n(i,j)*A_n(i,j))
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

#ifdef __cplusplus
}
#endif

#endif
