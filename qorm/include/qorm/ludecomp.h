/** @defgroup LUDecomp LUDecomp: LU factorisations
 *  LU factorisations of square matrices with row pivoting: P·A = L·U.
 *
 *  ## Shapes
 *
 *  | Shape | Formula       | Layouts             |
 *  |-------|---------------|---------------------|
 *  | `m`   | P·A = L·U     | strides, `_P`       |
 *  | `ma`  | Pₙ·Aₙ = Lₙ·Uₙ | strides, `_P`, `_L` |
 *
 *  Source and destination are matrices (or arrays of `count`) of `widthHeight` rows and columns in
 *  the same layout, each with strides, or pointers and a shift, of its own. `pDstIndex` is a plain
 *  array of 32-bit integers, `widthHeight` per matrix, object n owning the run at `pDstIndex +
 *  n*widthHeight`.
 *
 *  ## Storage
 *
 *  **Rows are never moved.** Row `pDstIndex[k]` of the source became the k-th pivot row, and the
 *  same row of the destination holds the k-th row of the factors:
 *
 *      L(k,j) = dst(pDstIndex[k], j)    j < k     the multipliers; L(k,k) = 1 is not stored
 *      U(k,j) = dst(pDstIndex[k], j)    j ≥ k     the pivots are U(k,k)
 *      (L·U)(k,j) = src(pDstIndex[k], j)
 *
 *  Destination and index array together are what the solver takes (@ref LUBackSubst); leave both as
 *  they are between the two calls.
 *
 *  ## Method
 *
 *  Gaussian elimination with partial pivoting (Golub and Van Loan, "Matrix Computations", section
 *  3.4) that exchanges entries of an index array instead of rows (Forsythe and Moler, "Computer
 *  Solution of Linear Algebraic Systems"). The pivot is the largest element in absolute value, of
 *  equal ones the first in the order of the index array. Multipliers are elements times the
 *  reciprocal of the pivot. Each product is rounded before it is subtracted.
 *
 *  ## Thresholds
 *
 *  They are absolute: ε = 2⁻²³ for `32f`, 2⁻⁵² for `64f`, whatever the size of the elements. A
 *  matrix is singular where
 *
 *  | Size   | In absolute value      |
 *  |--------|------------------------|
 *  | 3 to 6 | a pivot is below ε     |
 *  | others | a pivot is not above ε |
 *
 *  So **scale your data to about 1**: in `32f` 10⁻⁷ times the identity is singular.
 *
 *  **At sizes 3 to 6 the last test looks at a fixed place**, N being `widthHeight`: not at the last
 *  pivot, but at element (N-1, N-1) of what the elimination has made of the matrix, its rows
 *  numbered as in the source. That is U(k,N-1), where `pDstIndex[k]` is N-1: the last pivot if k is
 *  N-1. Else the test says nothing about the last pivot:
 *
 *      (1,2,3; 1,2,3; 4,5,6)    is singular and passes, with U(2,2) = 0
 *      (0,0,1; 0,1,0; 1,0,0)    is regular and is reported as singular
 *
 *  Where this matters, look at U(N-1,N-1) after #qorStatusOk. After #qorStatusSingular put the rows
 *  of the source in the order of `pDstIndex` and call again: then no row is exchanged, and the test
 *  looks at the last pivot.
 *
 *  ## Not-a-number
 *
 *  Where a NaN passes the tests, it spreads, with #qorStatusOk. What happens to one depends on the
 *  path:
 *
 *  | Path               | In the search for a pivot        | As its result | At the last test |
 *  |--------------------|----------------------------------|---------------|------------------|
 *  | sizes 3 to 6       | neither replaces nor is replaced | singular      | singular         |
 *  | other sizes, `32f` | neither replaces nor is replaced | passes        | passes           |
 *  | other sizes, `64f` | replaces and is replaced         | singular      | passes           |
 *
 *  At other sizes of `64f` a NaN replaces the largest so far, and is replaced by the element behind
 *  it. In the first step of sizes 3 to 6 the maximum that elements are compared with, and that is
 *  tested, is replaced by a NaN and then by the element behind it: what came before no longer
 *  counts. The pivot's place moves only to elements above that maximum.
 *
 *  ## Accuracy
 *
 *  L·U is P·A but for a few roundings of the largest element that the elimination meets, which is
 *  seldom much larger than those of A (Wilkinson, "The Algebraic Eigenvalue Problem", chapter 4).
 *  The tests of pivots are no test of the condition.
 *
 *  ## In place
 *
 *  The destination may coincide with the source, object for object. At sizes 3 to 6, where an
 *  object is read before it is written, it may overlap its source in any way; at other sizes in no
 *  other way. `pDstIndex` must overlap nothing.
 *
 *  ## Cost
 *
 *  About N³/3 multiplications and subtractions and N - 1 divisions per matrix. Of all members only
 *  #qormLUDecomp_ma_32f_L spreads over threads, where N²·c reaches 40001 (general 20001).
 *
 *  ## Statuses
 *
 *  #qorStatusSingular: the test of step k failed, k from 0 to N-1. It leaves
 *
 *  | Size   | Destination                                    | `pDstIndex`                 |
 *  |--------|------------------------------------------------|-----------------------------|
 *  | 3 to 6 | pivot rows 0 to k-1 complete, others untouched | exchanges of steps 0 to k   |
 *  | others | as steps 0 to k-1 of the elimination left it   | exchanges of steps 0 to k-1 |
 *
 *  **An array call ends at the first object that fails**: those before it are complete, those
 *  behind it are untouched, their runs of `pDstIndex` too; a caller goes on by calling again from
 *  the next object. Where the call spread over threads each thread ends so in its own run of
 *  objects.
 *
 *  ## Example
 *
 *  A system of three equations:
 *
 *      float a[3][3] = {{2, 1, 1}, {4, 3, 3}, {8, 7, 9}}, b[3] = {4, 10, 24}, x[3];
 *      int32_t index[3];
 *      qorStatus status = qormLUDecomp_m_32f(a[0], 12, 4, index, a[0], 12, 4, 3);
 *      if (status == qorStatusOk)
 *          qormLUBackSubst_mv_32f(a[0], 12, 4, index, b, 4, x, 4, 3); // x = (1, 1, 1)
 *
 *  @{
 */
#ifndef QORM_LUDECOMP_H
#define QORM_LUDECOMP_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name LU factorisation of one matrix
 *  Checks, in this order: null pointer, `widthHeight`, strides (`_P`: shifts).
 *  @{ */
QORM_API qorStatus qormLUDecomp_m_32f(const float* pSrc, int32_t srcStride1, int32_t srcStride2,
                                      int32_t* pDstIndex, float* pDst, int32_t dstStride1,
                                      int32_t dstStride2, int32_t widthHeight);
QORM_API qorStatus qormLUDecomp_m_32f_P(const float* const* ppSrc, int32_t srcShift,
                                        int32_t* pDstIndex, float* const* ppDst, int32_t dstShift,
                                        int32_t widthHeight);
QORM_API qorStatus qormLUDecomp_m_64f(const double* pSrc, int32_t srcStride1, int32_t srcStride2,
                                      int32_t* pDstIndex, double* pDst, int32_t dstStride1,
                                      int32_t dstStride2, int32_t widthHeight);
QORM_API qorStatus qormLUDecomp_m_64f_P(const double* const* ppSrc, int32_t srcShift,
                                        int32_t* pDstIndex, double* const* ppDst, int32_t dstShift,
                                        int32_t widthHeight);
/** @} */

/** @name LU factorisations of an array of matrices
 *  Checks, in this order: null pointer, count, `widthHeight`, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormLUDecomp_ma_32f(const float* pSrc, int32_t srcStride0, int32_t srcStride1,
                                       int32_t srcStride2, int32_t* pDstIndex, float* pDst,
                                       int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                       int32_t widthHeight, int32_t count);
QORM_API qorStatus qormLUDecomp_ma_32f_P(const float* const* ppSrc, int32_t srcShift,
                                         int32_t srcStride0, int32_t* pDstIndex,
                                         float* const* ppDst, int32_t dstShift, int32_t dstStride0,
                                         int32_t widthHeight, int32_t count);
QORM_API qorStatus qormLUDecomp_ma_32f_L(const float* const* ppSrc, int32_t srcShift,
                                         int32_t srcStride1, int32_t srcStride2, int32_t* pDstIndex,
                                         float* const* ppDst, int32_t dstShift, int32_t dstStride1,
                                         int32_t dstStride2, int32_t widthHeight, int32_t count);
QORM_API qorStatus qormLUDecomp_ma_64f(const double* pSrc, int32_t srcStride0, int32_t srcStride1,
                                       int32_t srcStride2, int32_t* pDstIndex, double* pDst,
                                       int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                       int32_t widthHeight, int32_t count);
QORM_API qorStatus qormLUDecomp_ma_64f_P(const double* const* ppSrc, int32_t srcShift,
                                         int32_t srcStride0, int32_t* pDstIndex,
                                         double* const* ppDst, int32_t dstShift, int32_t dstStride0,
                                         int32_t widthHeight, int32_t count);
QORM_API qorStatus qormLUDecomp_ma_64f_L(const double* const* ppSrc, int32_t srcShift,
                                         int32_t srcStride1, int32_t srcStride2, int32_t* pDstIndex,
                                         double* const* ppDst, int32_t dstShift, int32_t dstStride1,
                                         int32_t dstStride2, int32_t widthHeight, int32_t count);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
