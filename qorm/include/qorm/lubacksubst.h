/** @defgroup LUBackSubst LUBackSubst: solutions from LU factors
 *  Solutions of linear systems A·x = b from LU factors.
 *
 *  ## Shapes
 *
 *  | Shape  | Formula    | Layouts             |
 *  |--------|------------|---------------------|
 *  | `mv`   | A·x = b    | strides, `_P`       |
 *  | `mva`  | A·xₙ = bₙ  | strides, `_P`, `_L` |
 *  | `mava` | Aₙ·xₙ = bₙ | strides, `_P`, `_L` |
 *
 *  `pSrc1` and `pSrcIndex` are the destination and the index array of @ref LUDecomp, a matrix of
 *  `widthHeight` rows and columns (or an array of `count`) and `widthHeight` 32-bit integers per
 *  matrix, object n owning the run at `pSrcIndex + n*widthHeight`. `pSrc2` is b and `pDst` is x,
 *  vectors (or arrays of `count`) of `widthHeight` elements. Factors need not come from a call of
 *  the same layout.
 *
 *  ## Method
 *
 *  A sweep forward through L, which gathers b by the index array, and one backward through U (Golub
 *  and Van Loan, "Matrix Computations", section 3.1). Each product is rounded. At sizes 3 to 6
 *  terms are subtracted from the element one by one, columns descending, and reciprocals of U's
 *  diagonal are multiplied; at other sizes terms are added up, columns ascending, the sum is
 *  subtracted and U's diagonal divides.
 *
 *  ## Accuracy
 *
 *  The residual b - A·x is at the level of rounding for well-scaled matrices; the error of x is
 *  that times the condition number.
 *
 *  ## In place
 *
 *  At sizes 3 to 6 x may lie on b, object for object: b is read before x is written. **At other
 *  sizes x must not lie on b unless the index array is 0, 1, 2 and so on**: x is written while b is
 *  still gathered through it, and comes out wrong where rows were exchanged. That is not tested. At
 *  no size may x overlap a matrix, an index array, or an x or b of another object.
 *
 *  ## Cost
 *
 *  About N² multiplications and subtractions and N divisions per vector, N being `widthHeight`;
 *  `mva` forms the reciprocals of sizes 3 to 6 once. A call spreads over threads where its work W
 *  reaches 1701, in every layout:
 *
 *  | Shape  | W           |
 *  |--------|-------------|
 *  | `mva`  | (N + 2c)·N  |
 *  | `mava` | N·(N + 2)·c |
 *
 *  ## Statuses
 *
 *  None but that of a failed check is ever returned. A zero on U's diagonal gives infinities or NaN
 *  with #qorStatusOk; solve only what was factorised with #qorStatusOk, and see there what that
 *  says of the last pivot. **Entries of the index array are not tested**: each must be the number
 *  of a row.
 *
 *  There is an example at @ref LUDecomp.
 *
 *  @{
 */
#ifndef QORM_LUBACKSUBST_H
#define QORM_LUBACKSUBST_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name One matrix with one vector
 *  Checks, in this order: null pointer, `widthHeight`, strides (`_P`: shifts).
 *  @{ */
QORM_API qorStatus qormLUBackSubst_mv_32f(const float* pSrc1, int32_t src1Stride1,
                                          int32_t src1Stride2, const int32_t* pSrcIndex,
                                          const float* pSrc2, int32_t src2Stride2, float* pDst,
                                          int32_t dstStride2, int32_t widthHeight);
QORM_API qorStatus qormLUBackSubst_mv_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                            const int32_t* pSrcIndex, const float* const* ppSrc2,
                                            int32_t src2Shift, float* const* ppDst,
                                            int32_t dstShift, int32_t widthHeight);
QORM_API qorStatus qormLUBackSubst_mv_64f(const double* pSrc1, int32_t src1Stride1,
                                          int32_t src1Stride2, const int32_t* pSrcIndex,
                                          const double* pSrc2, int32_t src2Stride2, double* pDst,
                                          int32_t dstStride2, int32_t widthHeight);
QORM_API qorStatus qormLUBackSubst_mv_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                            const int32_t* pSrcIndex, const double* const* ppSrc2,
                                            int32_t src2Shift, double* const* ppDst,
                                            int32_t dstShift, int32_t widthHeight);
/** @} */

/** @name One matrix with an array of vectors
 *  In `_L` forms the matrix is in the layout without suffix, the vectors are in lists.
 *  Checks, in this order: null pointer, count, `widthHeight`, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormLUBackSubst_mva_32f(const float* pSrc1, int32_t src1Stride1,
                                           int32_t src1Stride2, const int32_t* pSrcIndex,
                                           const float* pSrc2, int32_t src2Stride0,
                                           int32_t src2Stride2, float* pDst, int32_t dstStride0,
                                           int32_t dstStride2, int32_t widthHeight, int32_t count);
QORM_API qorStatus qormLUBackSubst_mva_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                             const int32_t* pSrcIndex, const float* const* ppSrc2,
                                             int32_t src2Shift, int32_t src2Stride0,
                                             float* const* ppDst, int32_t dstShift,
                                             int32_t dstStride0, int32_t widthHeight,
                                             int32_t count);
QORM_API qorStatus qormLUBackSubst_mva_32f_L(const float* pSrc1, int32_t src1Stride1,
                                             int32_t src1Stride2, const int32_t* pSrcIndex,
                                             const float* const* ppSrc2, int32_t src2Shift,
                                             int32_t src2Stride2, float* const* ppDst,
                                             int32_t dstShift, int32_t dstStride2,
                                             int32_t widthHeight, int32_t count);
QORM_API qorStatus qormLUBackSubst_mva_64f(const double* pSrc1, int32_t src1Stride1,
                                           int32_t src1Stride2, const int32_t* pSrcIndex,
                                           const double* pSrc2, int32_t src2Stride0,
                                           int32_t src2Stride2, double* pDst, int32_t dstStride0,
                                           int32_t dstStride2, int32_t widthHeight, int32_t count);
QORM_API qorStatus qormLUBackSubst_mva_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                             const int32_t* pSrcIndex, const double* const* ppSrc2,
                                             int32_t src2Shift, int32_t src2Stride0,
                                             double* const* ppDst, int32_t dstShift,
                                             int32_t dstStride0, int32_t widthHeight,
                                             int32_t count);
QORM_API qorStatus qormLUBackSubst_mva_64f_L(const double* pSrc1, int32_t src1Stride1,
                                             int32_t src1Stride2, const int32_t* pSrcIndex,
                                             const double* const* ppSrc2, int32_t src2Shift,
                                             int32_t src2Stride2, double* const* ppDst,
                                             int32_t dstShift, int32_t dstStride2,
                                             int32_t widthHeight, int32_t count);
/** @} */

/** @name An array of matrices, each with a vector of its own
 *  Checks, in this order: null pointer, count, `widthHeight`, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormLUBackSubst_mava_32f(const float* pSrc1, int32_t src1Stride0,
                                            int32_t src1Stride1, int32_t src1Stride2,
                                            const int32_t* pSrcIndex, const float* pSrc2,
                                            int32_t src2Stride0, int32_t src2Stride2, float* pDst,
                                            int32_t dstStride0, int32_t dstStride2,
                                            int32_t widthHeight, int32_t count);
QORM_API qorStatus qormLUBackSubst_mava_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                              int32_t src1Stride0, const int32_t* pSrcIndex,
                                              const float* const* ppSrc2, int32_t src2Shift,
                                              int32_t src2Stride0, float* const* ppDst,
                                              int32_t dstShift, int32_t dstStride0,
                                              int32_t widthHeight, int32_t count);
QORM_API qorStatus qormLUBackSubst_mava_32f_L(
    const float* const* ppSrc1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
    const int32_t* pSrcIndex, const float* const* ppSrc2, int32_t src2Shift, int32_t src2Stride2,
    float* const* ppDst, int32_t dstShift, int32_t dstStride2, int32_t widthHeight, int32_t count);
QORM_API qorStatus qormLUBackSubst_mava_64f(const double* pSrc1, int32_t src1Stride0,
                                            int32_t src1Stride1, int32_t src1Stride2,
                                            const int32_t* pSrcIndex, const double* pSrc2,
                                            int32_t src2Stride0, int32_t src2Stride2, double* pDst,
                                            int32_t dstStride0, int32_t dstStride2,
                                            int32_t widthHeight, int32_t count);
QORM_API qorStatus qormLUBackSubst_mava_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                              int32_t src1Stride0, const int32_t* pSrcIndex,
                                              const double* const* ppSrc2, int32_t src2Shift,
                                              int32_t src2Stride0, double* const* ppDst,
                                              int32_t dstShift, int32_t dstStride0,
                                              int32_t widthHeight, int32_t count);
QORM_API qorStatus qormLUBackSubst_mava_64f_L(
    const double* const* ppSrc1, int32_t src1Shift, int32_t src1Stride1, int32_t src1Stride2,
    const int32_t* pSrcIndex, const double* const* ppSrc2, int32_t src2Shift, int32_t src2Stride2,
    double* const* ppDst, int32_t dstShift, int32_t dstStride2, int32_t widthHeight, int32_t count);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
