/** @defgroup MulMatrices Mul: products of matrices
 *  Products of two matrices, each read as stored or transposed.
 *
 *  ## Shapes
 *
 *  | Letters | dst(i,j) =       | dst height   | dst width    | Have to be equal              |
 *  |---------|------------------|--------------|--------------|-------------------------------|
 *  | m, m    | Σₖ A(i,k)·B(k,j) | `src1Height` | `src2Width`  | `src1Width` and `src2Height`  |
 *  | t, m    | Σₖ A(k,i)·B(k,j) | `src1Width`  | `src2Width`  | `src1Height` and `src2Height` |
 *  | m, t    | Σₖ A(i,k)·B(j,k) | `src1Height` | `src2Height` | `src1Width` and `src2Width`   |
 *  | t, t    | Σₖ A(k,i)·B(j,k) | `src1Width`  | `src2Height` | `src1Height` and `src2Width`  |
 *
 *  `src1Width`, `src1Height`, `src2Width` and `src2Height` are the sizes of the operands **as they
 *  lie in memory**, also where they are read transposed. An `a` behind a letter changes nothing in
 *  the table:
 *
 *  | Shapes                      | Formula      | Layouts             |
 *  |-----------------------------|--------------|---------------------|
 *  | `mm` `tm` `mt` `tt`         | dst = A·B    | strides, `_P`       |
 *  | `mam` `tam` `mat` `tat`     | dstₙ = Aₙ·B  | strides, `_P`, `_L` |
 *  | `mma` `tma` `mta` `tta`     | dstₙ = A·Bₙ  | strides, `_P`, `_L` |
 *  | `mama` `tama` `mata` `tata` | dstₙ = Aₙ·Bₙ | strides, `_P`, `_L` |
 *
 *  ## Arithmetic
 *
 *  Each sum runs over ascending k from left to right, every product and every sum rounded. Where
 *  all sizes of both operands are 3, all 4, all 5 or all 6 it starts with the first product, at all
 *  other sizes with +0. That shows in the sign of a zero alone: products that are all -0 add up to
 *  -0 in the former and to +0 in the latter.
 *
 *  ## In place
 *
 *  Where all four sizes are 3, all 4, all 5 or all 6, the destination may coincide, object for
 *  object, with the second operand; in `_P` forms it may as well coincide with the first. That is
 *  for operands of the destination's kind: in array forms the destination must not overlap a single
 *  operand. There are members where it must not coincide with the second operand if any of
 *  `src1Stride2`, `src2Stride2` and `dstStride2` differs from the element size:
 *
 *  | Members                                                  | Sizes  |
 *  |----------------------------------------------------------|--------|
 *  | #qormMul_mm_32f, #qormMul_mma_32f_L, #qormMul_mama_32f_L | 4 to 6 |
 *  | #qormMul_mm_64f, #qormMul_mma_64f_L, #qormMul_mama_64f_L | 3 to 6 |
 *
 *  At all other sizes the destination must not overlap an operand in any way. Overlap is not
 *  tested; it makes the product wrong.
 *
 *  ## Two members of their own
 *
 *  #qormMul_mm_32f_P and #qormMul_tt_64f_P **treat small sizes in a way of their own**. Where none
 *  of the four sizes is above 3, and there is a 3 among them or both a 1 and a 2, they work as if
 *  all sizes were 3, with i, j and k from 0 to 2; only the rows of the tables keep their lengths:
 *
 *  | Member     | First operand                      | Second operand                     |
 *  |------------|------------------------------------|------------------------------------|
 *  | `mm_32f_P` | A(i,k) = `ppSrc1[i*src1Width + k]` | B(k,j) = `ppSrc2[k*src2Width + j]` |
 *  | `tt_64f_P` | A(k,i) = `ppSrc1[k*src1Width + i]` | B(j,k) = `ppSrc2[j*src2Width + k]` |
 *
 *  and dst(i,j) = `ppDst[i*src2Width + j]` in both. So the tables need valid pointers up to entry
 *  `2*src1Width + 2` in `ppSrc1` and `2*src2Width + 2` in `ppSrc2` and `ppDst`: what lies behind
 *  the matrices is read and written, too. The product is right only if the sizes that have to be
 *  equal are 3, and in `tt_64f_P` besides `src2Height` is 3 or `src1Width` is 1. `mama_32f_P` and
 *  `tata_64f_P` with a count of 1 know no such case.
 *
 *  ## Cost
 *
 *  For each element of the destination as many multiplications as the sum has terms. A call spreads
 *  over threads where its work W, the number of elements that it touches, reaches 36865 by strides
 *  (general 18433), 9217 in `_P`, 18433 in `_L`. With w₁, h₁, w₂, h₂ for the sizes of the operands:
 *
 *  | Shape | W                   | Shape | W                   | Shape  | W                     |
 *  |-------|---------------------|-------|---------------------|--------|-----------------------|
 *  | `mam` | w₂h₂ + (w₂ + w₁)h₁c | `mma` | w₁h₁ + (h₁ + h₂)w₂c | `mama` | (h₁(w₁ + w₂) + w₂h₂)c |
 *  | `tam` | w₂h₂ + (w₂ + h₁)w₁c | `tma` | w₁h₁ + (w₁ + h₂)w₂c | `tama` | (w₁(h₁ + w₂) + w₂h₂)c |
 *  | `mat` | w₂h₂ + (h₂ + w₁)h₁c | `mta` | w₁h₁ + (h₁ + w₂)h₂c | `mata` | (w₁h₁ + w₂h₂ + h₁h₂)c |
 *  | `tat` | w₂h₂ + (h₂ + h₁)w₁c | `tta` | w₁h₁ + (w₁ + w₂)h₂c | `tata` | (w₁h₁ + w₂h₂ + w₁h₂)c |
 *
 *  ## Statuses
 *
 *  None but that of a failed check is ever returned; NaN and infinity take their course.
 *
 *  @{
 */
#ifndef QORM_MUL_H
#define QORM_MUL_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Product of two matrices: dst = A·B, each as its letter reads it
 *  Checks, in this order: null pointer, sizes, size match, strides (`_P`: shifts).
 *  @{ */
QORM_API qorStatus qormMul_mm_32f(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                  int32_t src1Width, int32_t src1Height, const float* pSrc2,
                                  int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
                                  int32_t src2Height, float* pDst, int32_t dstStride1,
                                  int32_t dstStride2);
QORM_API qorStatus qormMul_mm_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                    int32_t src1Width, int32_t src1Height,
                                    const float* const* ppSrc2, int32_t src2Shift,
                                    int32_t src2Width, int32_t src2Height, float* const* ppDst,
                                    int32_t dstShift);
QORM_API qorStatus qormMul_mm_64f(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                  int32_t src1Width, int32_t src1Height, const double* pSrc2,
                                  int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
                                  int32_t src2Height, double* pDst, int32_t dstStride1,
                                  int32_t dstStride2);
QORM_API qorStatus qormMul_mm_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                    int32_t src1Width, int32_t src1Height,
                                    const double* const* ppSrc2, int32_t src2Shift,
                                    int32_t src2Width, int32_t src2Height, double* const* ppDst,
                                    int32_t dstShift);
QORM_API qorStatus qormMul_tm_32f(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                  int32_t src1Width, int32_t src1Height, const float* pSrc2,
                                  int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
                                  int32_t src2Height, float* pDst, int32_t dstStride1,
                                  int32_t dstStride2);
QORM_API qorStatus qormMul_tm_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                    int32_t src1Width, int32_t src1Height,
                                    const float* const* ppSrc2, int32_t src2Shift,
                                    int32_t src2Width, int32_t src2Height, float* const* ppDst,
                                    int32_t dstShift);
QORM_API qorStatus qormMul_tm_64f(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                  int32_t src1Width, int32_t src1Height, const double* pSrc2,
                                  int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
                                  int32_t src2Height, double* pDst, int32_t dstStride1,
                                  int32_t dstStride2);
QORM_API qorStatus qormMul_tm_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                    int32_t src1Width, int32_t src1Height,
                                    const double* const* ppSrc2, int32_t src2Shift,
                                    int32_t src2Width, int32_t src2Height, double* const* ppDst,
                                    int32_t dstShift);
QORM_API qorStatus qormMul_mt_32f(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                  int32_t src1Width, int32_t src1Height, const float* pSrc2,
                                  int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
                                  int32_t src2Height, float* pDst, int32_t dstStride1,
                                  int32_t dstStride2);
QORM_API qorStatus qormMul_mt_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                    int32_t src1Width, int32_t src1Height,
                                    const float* const* ppSrc2, int32_t src2Shift,
                                    int32_t src2Width, int32_t src2Height, float* const* ppDst,
                                    int32_t dstShift);
QORM_API qorStatus qormMul_mt_64f(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                  int32_t src1Width, int32_t src1Height, const double* pSrc2,
                                  int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
                                  int32_t src2Height, double* pDst, int32_t dstStride1,
                                  int32_t dstStride2);
QORM_API qorStatus qormMul_mt_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                    int32_t src1Width, int32_t src1Height,
                                    const double* const* ppSrc2, int32_t src2Shift,
                                    int32_t src2Width, int32_t src2Height, double* const* ppDst,
                                    int32_t dstShift);
QORM_API qorStatus qormMul_tt_32f(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                  int32_t src1Width, int32_t src1Height, const float* pSrc2,
                                  int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
                                  int32_t src2Height, float* pDst, int32_t dstStride1,
                                  int32_t dstStride2);
QORM_API qorStatus qormMul_tt_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                    int32_t src1Width, int32_t src1Height,
                                    const float* const* ppSrc2, int32_t src2Shift,
                                    int32_t src2Width, int32_t src2Height, float* const* ppDst,
                                    int32_t dstShift);
QORM_API qorStatus qormMul_tt_64f(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                  int32_t src1Width, int32_t src1Height, const double* pSrc2,
                                  int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
                                  int32_t src2Height, double* pDst, int32_t dstStride1,
                                  int32_t dstStride2);
QORM_API qorStatus qormMul_tt_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                    int32_t src1Width, int32_t src1Height,
                                    const double* const* ppSrc2, int32_t src2Shift,
                                    int32_t src2Width, int32_t src2Height, double* const* ppDst,
                                    int32_t dstShift);
/** @} */

/** @name Product of each matrix of an array and one matrix: dstₙ = Aₙ·B
 *  Checks, in this order: null pointer, count, sizes, size match, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormMul_mam_32f(const float* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                   int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
                                   const float* pSrc2, int32_t src2Stride1, int32_t src2Stride2,
                                   int32_t src2Width, int32_t src2Height, float* pDst,
                                   int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                   int32_t count);
QORM_API qorStatus qormMul_mam_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride0, int32_t src1Width, int32_t src1Height,
                                     const float* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Width, int32_t src2Height, float* const* ppDst,
                                     int32_t dstShift, int32_t dstStride0, int32_t count);
QORM_API qorStatus qormMul_mam_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                                     int32_t src1Height, const float* pSrc2, int32_t src2Stride1,
                                     int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
                                     float* const* ppDst, int32_t dstShift, int32_t dstStride1,
                                     int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_mam_64f(const double* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                   int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
                                   const double* pSrc2, int32_t src2Stride1, int32_t src2Stride2,
                                   int32_t src2Width, int32_t src2Height, double* pDst,
                                   int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                   int32_t count);
QORM_API qorStatus qormMul_mam_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride0, int32_t src1Width, int32_t src1Height,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Width, int32_t src2Height, double* const* ppDst,
                                     int32_t dstShift, int32_t dstStride0, int32_t count);
QORM_API qorStatus qormMul_mam_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                                     int32_t src1Height, const double* pSrc2, int32_t src2Stride1,
                                     int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
                                     double* const* ppDst, int32_t dstShift, int32_t dstStride1,
                                     int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_tam_32f(const float* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                   int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
                                   const float* pSrc2, int32_t src2Stride1, int32_t src2Stride2,
                                   int32_t src2Width, int32_t src2Height, float* pDst,
                                   int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                   int32_t count);
QORM_API qorStatus qormMul_tam_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride0, int32_t src1Width, int32_t src1Height,
                                     const float* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Width, int32_t src2Height, float* const* ppDst,
                                     int32_t dstShift, int32_t dstStride0, int32_t count);
QORM_API qorStatus qormMul_tam_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                                     int32_t src1Height, const float* pSrc2, int32_t src2Stride1,
                                     int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
                                     float* const* ppDst, int32_t dstShift, int32_t dstStride1,
                                     int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_tam_64f(const double* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                   int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
                                   const double* pSrc2, int32_t src2Stride1, int32_t src2Stride2,
                                   int32_t src2Width, int32_t src2Height, double* pDst,
                                   int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                   int32_t count);
QORM_API qorStatus qormMul_tam_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride0, int32_t src1Width, int32_t src1Height,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Width, int32_t src2Height, double* const* ppDst,
                                     int32_t dstShift, int32_t dstStride0, int32_t count);
QORM_API qorStatus qormMul_tam_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                                     int32_t src1Height, const double* pSrc2, int32_t src2Stride1,
                                     int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
                                     double* const* ppDst, int32_t dstShift, int32_t dstStride1,
                                     int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_mat_32f(const float* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                   int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
                                   const float* pSrc2, int32_t src2Stride1, int32_t src2Stride2,
                                   int32_t src2Width, int32_t src2Height, float* pDst,
                                   int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                   int32_t count);
QORM_API qorStatus qormMul_mat_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride0, int32_t src1Width, int32_t src1Height,
                                     const float* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Width, int32_t src2Height, float* const* ppDst,
                                     int32_t dstShift, int32_t dstStride0, int32_t count);
QORM_API qorStatus qormMul_mat_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                                     int32_t src1Height, const float* pSrc2, int32_t src2Stride1,
                                     int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
                                     float* const* ppDst, int32_t dstShift, int32_t dstStride1,
                                     int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_mat_64f(const double* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                   int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
                                   const double* pSrc2, int32_t src2Stride1, int32_t src2Stride2,
                                   int32_t src2Width, int32_t src2Height, double* pDst,
                                   int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                   int32_t count);
QORM_API qorStatus qormMul_mat_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride0, int32_t src1Width, int32_t src1Height,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Width, int32_t src2Height, double* const* ppDst,
                                     int32_t dstShift, int32_t dstStride0, int32_t count);
QORM_API qorStatus qormMul_mat_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                                     int32_t src1Height, const double* pSrc2, int32_t src2Stride1,
                                     int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
                                     double* const* ppDst, int32_t dstShift, int32_t dstStride1,
                                     int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_tat_32f(const float* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                   int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
                                   const float* pSrc2, int32_t src2Stride1, int32_t src2Stride2,
                                   int32_t src2Width, int32_t src2Height, float* pDst,
                                   int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                   int32_t count);
QORM_API qorStatus qormMul_tat_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride0, int32_t src1Width, int32_t src1Height,
                                     const float* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Width, int32_t src2Height, float* const* ppDst,
                                     int32_t dstShift, int32_t dstStride0, int32_t count);
QORM_API qorStatus qormMul_tat_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                                     int32_t src1Height, const float* pSrc2, int32_t src2Stride1,
                                     int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
                                     float* const* ppDst, int32_t dstShift, int32_t dstStride1,
                                     int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_tat_64f(const double* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                   int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
                                   const double* pSrc2, int32_t src2Stride1, int32_t src2Stride2,
                                   int32_t src2Width, int32_t src2Height, double* pDst,
                                   int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                   int32_t count);
QORM_API qorStatus qormMul_tat_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride0, int32_t src1Width, int32_t src1Height,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Width, int32_t src2Height, double* const* ppDst,
                                     int32_t dstShift, int32_t dstStride0, int32_t count);
QORM_API qorStatus qormMul_tat_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                                     int32_t src1Height, const double* pSrc2, int32_t src2Stride1,
                                     int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
                                     double* const* ppDst, int32_t dstShift, int32_t dstStride1,
                                     int32_t dstStride2, int32_t count);
/** @} */

/** @name Product of one matrix and each matrix of an array: dstₙ = A·Bₙ
 *  Checks, in this order: null pointer, count, sizes, size match, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormMul_mma_32f(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                   int32_t src1Width, int32_t src1Height, const float* pSrc2,
                                   int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2,
                                   int32_t src2Width, int32_t src2Height, float* pDst,
                                   int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                   int32_t count);
QORM_API qorStatus qormMul_mma_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Width, int32_t src1Height,
                                     const float* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride0, int32_t src2Width, int32_t src2Height,
                                     float* const* ppDst, int32_t dstShift, int32_t dstStride0,
                                     int32_t count);
QORM_API qorStatus qormMul_mma_32f_L(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                     int32_t src1Width, int32_t src1Height,
                                     const float* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
                                     int32_t src2Height, float* const* ppDst, int32_t dstShift,
                                     int32_t dstStride1, int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_mma_64f(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                   int32_t src1Width, int32_t src1Height, const double* pSrc2,
                                   int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2,
                                   int32_t src2Width, int32_t src2Height, double* pDst,
                                   int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                   int32_t count);
QORM_API qorStatus qormMul_mma_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Width, int32_t src1Height,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride0, int32_t src2Width, int32_t src2Height,
                                     double* const* ppDst, int32_t dstShift, int32_t dstStride0,
                                     int32_t count);
QORM_API qorStatus qormMul_mma_64f_L(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                     int32_t src1Width, int32_t src1Height,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
                                     int32_t src2Height, double* const* ppDst, int32_t dstShift,
                                     int32_t dstStride1, int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_tma_32f(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                   int32_t src1Width, int32_t src1Height, const float* pSrc2,
                                   int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2,
                                   int32_t src2Width, int32_t src2Height, float* pDst,
                                   int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                   int32_t count);
QORM_API qorStatus qormMul_tma_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Width, int32_t src1Height,
                                     const float* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride0, int32_t src2Width, int32_t src2Height,
                                     float* const* ppDst, int32_t dstShift, int32_t dstStride0,
                                     int32_t count);
QORM_API qorStatus qormMul_tma_32f_L(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                     int32_t src1Width, int32_t src1Height,
                                     const float* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
                                     int32_t src2Height, float* const* ppDst, int32_t dstShift,
                                     int32_t dstStride1, int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_tma_64f(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                   int32_t src1Width, int32_t src1Height, const double* pSrc2,
                                   int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2,
                                   int32_t src2Width, int32_t src2Height, double* pDst,
                                   int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                   int32_t count);
QORM_API qorStatus qormMul_tma_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Width, int32_t src1Height,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride0, int32_t src2Width, int32_t src2Height,
                                     double* const* ppDst, int32_t dstShift, int32_t dstStride0,
                                     int32_t count);
QORM_API qorStatus qormMul_tma_64f_L(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                     int32_t src1Width, int32_t src1Height,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
                                     int32_t src2Height, double* const* ppDst, int32_t dstShift,
                                     int32_t dstStride1, int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_mta_32f(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                   int32_t src1Width, int32_t src1Height, const float* pSrc2,
                                   int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2,
                                   int32_t src2Width, int32_t src2Height, float* pDst,
                                   int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                   int32_t count);
QORM_API qorStatus qormMul_mta_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Width, int32_t src1Height,
                                     const float* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride0, int32_t src2Width, int32_t src2Height,
                                     float* const* ppDst, int32_t dstShift, int32_t dstStride0,
                                     int32_t count);
QORM_API qorStatus qormMul_mta_32f_L(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                     int32_t src1Width, int32_t src1Height,
                                     const float* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
                                     int32_t src2Height, float* const* ppDst, int32_t dstShift,
                                     int32_t dstStride1, int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_mta_64f(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                   int32_t src1Width, int32_t src1Height, const double* pSrc2,
                                   int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2,
                                   int32_t src2Width, int32_t src2Height, double* pDst,
                                   int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                   int32_t count);
QORM_API qorStatus qormMul_mta_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Width, int32_t src1Height,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride0, int32_t src2Width, int32_t src2Height,
                                     double* const* ppDst, int32_t dstShift, int32_t dstStride0,
                                     int32_t count);
QORM_API qorStatus qormMul_mta_64f_L(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                     int32_t src1Width, int32_t src1Height,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
                                     int32_t src2Height, double* const* ppDst, int32_t dstShift,
                                     int32_t dstStride1, int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_tta_32f(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                   int32_t src1Width, int32_t src1Height, const float* pSrc2,
                                   int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2,
                                   int32_t src2Width, int32_t src2Height, float* pDst,
                                   int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                   int32_t count);
QORM_API qorStatus qormMul_tta_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Width, int32_t src1Height,
                                     const float* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride0, int32_t src2Width, int32_t src2Height,
                                     float* const* ppDst, int32_t dstShift, int32_t dstStride0,
                                     int32_t count);
QORM_API qorStatus qormMul_tta_32f_L(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                     int32_t src1Width, int32_t src1Height,
                                     const float* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
                                     int32_t src2Height, float* const* ppDst, int32_t dstShift,
                                     int32_t dstStride1, int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_tta_64f(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                   int32_t src1Width, int32_t src1Height, const double* pSrc2,
                                   int32_t src2Stride0, int32_t src2Stride1, int32_t src2Stride2,
                                   int32_t src2Width, int32_t src2Height, double* pDst,
                                   int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                   int32_t count);
QORM_API qorStatus qormMul_tta_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Width, int32_t src1Height,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride0, int32_t src2Width, int32_t src2Height,
                                     double* const* ppDst, int32_t dstShift, int32_t dstStride0,
                                     int32_t count);
QORM_API qorStatus qormMul_tta_64f_L(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                     int32_t src1Width, int32_t src1Height,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride1, int32_t src2Stride2, int32_t src2Width,
                                     int32_t src2Height, double* const* ppDst, int32_t dstShift,
                                     int32_t dstStride1, int32_t dstStride2, int32_t count);
/** @} */

/** @name Product of corresponding matrices of two arrays: dstₙ = Aₙ·Bₙ
 *  Checks, in this order: null pointer, count, sizes, size match, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormMul_mama_32f(const float* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                    int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
                                    const float* pSrc2, int32_t src2Stride0, int32_t src2Stride1,
                                    int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
                                    float* pDst, int32_t dstStride0, int32_t dstStride1,
                                    int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_mama_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride0, int32_t src1Width, int32_t src1Height,
                                      const float* const* ppSrc2, int32_t src2Shift,
                                      int32_t src2Stride0, int32_t src2Width, int32_t src2Height,
                                      float* const* ppDst, int32_t dstShift, int32_t dstStride0,
                                      int32_t count);
QORM_API qorStatus qormMul_mama_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                                      int32_t src1Height, const float* const* ppSrc2,
                                      int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2,
                                      int32_t src2Width, int32_t src2Height, float* const* ppDst,
                                      int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                      int32_t count);
QORM_API qorStatus qormMul_mama_64f(const double* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                    int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
                                    const double* pSrc2, int32_t src2Stride0, int32_t src2Stride1,
                                    int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
                                    double* pDst, int32_t dstStride0, int32_t dstStride1,
                                    int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_mama_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride0, int32_t src1Width, int32_t src1Height,
                                      const double* const* ppSrc2, int32_t src2Shift,
                                      int32_t src2Stride0, int32_t src2Width, int32_t src2Height,
                                      double* const* ppDst, int32_t dstShift, int32_t dstStride0,
                                      int32_t count);
QORM_API qorStatus qormMul_mama_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                                      int32_t src1Height, const double* const* ppSrc2,
                                      int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2,
                                      int32_t src2Width, int32_t src2Height, double* const* ppDst,
                                      int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                      int32_t count);
QORM_API qorStatus qormMul_tama_32f(const float* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                    int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
                                    const float* pSrc2, int32_t src2Stride0, int32_t src2Stride1,
                                    int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
                                    float* pDst, int32_t dstStride0, int32_t dstStride1,
                                    int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_tama_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride0, int32_t src1Width, int32_t src1Height,
                                      const float* const* ppSrc2, int32_t src2Shift,
                                      int32_t src2Stride0, int32_t src2Width, int32_t src2Height,
                                      float* const* ppDst, int32_t dstShift, int32_t dstStride0,
                                      int32_t count);
QORM_API qorStatus qormMul_tama_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                                      int32_t src1Height, const float* const* ppSrc2,
                                      int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2,
                                      int32_t src2Width, int32_t src2Height, float* const* ppDst,
                                      int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                      int32_t count);
QORM_API qorStatus qormMul_tama_64f(const double* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                    int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
                                    const double* pSrc2, int32_t src2Stride0, int32_t src2Stride1,
                                    int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
                                    double* pDst, int32_t dstStride0, int32_t dstStride1,
                                    int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_tama_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride0, int32_t src1Width, int32_t src1Height,
                                      const double* const* ppSrc2, int32_t src2Shift,
                                      int32_t src2Stride0, int32_t src2Width, int32_t src2Height,
                                      double* const* ppDst, int32_t dstShift, int32_t dstStride0,
                                      int32_t count);
QORM_API qorStatus qormMul_tama_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                                      int32_t src1Height, const double* const* ppSrc2,
                                      int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2,
                                      int32_t src2Width, int32_t src2Height, double* const* ppDst,
                                      int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                      int32_t count);
QORM_API qorStatus qormMul_mata_32f(const float* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                    int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
                                    const float* pSrc2, int32_t src2Stride0, int32_t src2Stride1,
                                    int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
                                    float* pDst, int32_t dstStride0, int32_t dstStride1,
                                    int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_mata_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride0, int32_t src1Width, int32_t src1Height,
                                      const float* const* ppSrc2, int32_t src2Shift,
                                      int32_t src2Stride0, int32_t src2Width, int32_t src2Height,
                                      float* const* ppDst, int32_t dstShift, int32_t dstStride0,
                                      int32_t count);
QORM_API qorStatus qormMul_mata_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                                      int32_t src1Height, const float* const* ppSrc2,
                                      int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2,
                                      int32_t src2Width, int32_t src2Height, float* const* ppDst,
                                      int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                      int32_t count);
QORM_API qorStatus qormMul_mata_64f(const double* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                    int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
                                    const double* pSrc2, int32_t src2Stride0, int32_t src2Stride1,
                                    int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
                                    double* pDst, int32_t dstStride0, int32_t dstStride1,
                                    int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_mata_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride0, int32_t src1Width, int32_t src1Height,
                                      const double* const* ppSrc2, int32_t src2Shift,
                                      int32_t src2Stride0, int32_t src2Width, int32_t src2Height,
                                      double* const* ppDst, int32_t dstShift, int32_t dstStride0,
                                      int32_t count);
QORM_API qorStatus qormMul_mata_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                                      int32_t src1Height, const double* const* ppSrc2,
                                      int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2,
                                      int32_t src2Width, int32_t src2Height, double* const* ppDst,
                                      int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                      int32_t count);
QORM_API qorStatus qormMul_tata_32f(const float* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                    int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
                                    const float* pSrc2, int32_t src2Stride0, int32_t src2Stride1,
                                    int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
                                    float* pDst, int32_t dstStride0, int32_t dstStride1,
                                    int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_tata_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride0, int32_t src1Width, int32_t src1Height,
                                      const float* const* ppSrc2, int32_t src2Shift,
                                      int32_t src2Stride0, int32_t src2Width, int32_t src2Height,
                                      float* const* ppDst, int32_t dstShift, int32_t dstStride0,
                                      int32_t count);
QORM_API qorStatus qormMul_tata_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                                      int32_t src1Height, const float* const* ppSrc2,
                                      int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2,
                                      int32_t src2Width, int32_t src2Height, float* const* ppDst,
                                      int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                      int32_t count);
QORM_API qorStatus qormMul_tata_64f(const double* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                    int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
                                    const double* pSrc2, int32_t src2Stride0, int32_t src2Stride1,
                                    int32_t src2Stride2, int32_t src2Width, int32_t src2Height,
                                    double* pDst, int32_t dstStride0, int32_t dstStride1,
                                    int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_tata_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride0, int32_t src1Width, int32_t src1Height,
                                      const double* const* ppSrc2, int32_t src2Shift,
                                      int32_t src2Stride0, int32_t src2Width, int32_t src2Height,
                                      double* const* ppDst, int32_t dstShift, int32_t dstStride0,
                                      int32_t count);
QORM_API qorStatus qormMul_tata_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                                      int32_t src1Height, const double* const* ppSrc2,
                                      int32_t src2Shift, int32_t src2Stride1, int32_t src2Stride2,
                                      int32_t src2Width, int32_t src2Height, double* const* ppDst,
                                      int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                      int32_t count);
/** @} */

/** @} */

/** @defgroup MulVectors Mul: products of a matrix and a vector
 *  Products of a matrix, read as stored or transposed, and a vector.
 *
 *  ## Shapes
 *
 *  | Letters | dst(i) =       | dst length   | Have to be equal           |
 *  |---------|----------------|--------------|----------------------------|
 *  | m, v    | Σₖ A(i,k)·x(k) | `src1Height` | `src1Width` and `src2Len`  |
 *  | t, v    | Σₖ A(k,i)·x(k) | `src1Width`  | `src1Height` and `src2Len` |
 *
 *  `src1Width` and `src1Height` are the sizes of the matrix **as it lies in memory**, also where it
 *  is read transposed. An `a` behind a letter changes nothing in the table:
 *
 *  | Shapes        | Formula      | Layouts             |
 *  |---------------|--------------|---------------------|
 *  | `mv` `tv`     | dst = A·x    | strides, `_P`       |
 *  | `mav` `tav`   | dstₙ = Aₙ·x  | strides, `_P`, `_L` |
 *  | `mva` `tva`   | dstₙ = A·xₙ  | strides, `_P`, `_L` |
 *  | `mava` `tava` | dstₙ = Aₙ·xₙ | strides, `_P`, `_L` |
 *
 *  ## Arithmetic
 *
 *  Each sum runs over ascending k from left to right, every product and every sum rounded. Where
 *  all three sizes are 3, all 4, all 5 or all 6 it starts with the first product, at all other
 *  sizes with +0. That shows in the sign of a zero alone: products that are all -0 add up to -0 in
 *  the former and to +0 in the latter.
 *
 *  **One member, #qormMul_mva_32f, sums in another order** where `src1Stride2`, `src2Stride2` and
 *  `dstStride2` are all 4. Its last bits may then differ from those of all other forms, and with
 *  alignment and length. Let p₀, p₁, … be the terms of a sum, and a call aligned where `pSrc1`,
 *  `src1Stride1`, `pSrc2`, `src2Stride0`, `pDst` and `dstStride0` are all multiples of 16:
 *
 *  | Matrix | Aligned | Not aligned   |
 *  |---|---|---------------|
 *  | 3x3 | left to right | left to right |
 *  | 4x4, 5x5, 6x6 | ((0+p₀) + (0+p₁)) + ((0+p₂) + (0+p₃)), then + p₄, + p₅ | left to right |
 *  | others, `src2Len` from 11 | in blocks | in blocks     |
 *  | others, `src2Len` 8, 9, 10 | in blocks | left to right |
 *  | others, `src2Len` below 8 | left to right | left to right |
 *
 *  In blocks: eight partial sums L₀ to L₇ start at +0 and take the products in blocks of eight, q₀
 *  to q₇, Lₜ taking qₜ. To ((L₀+L₄) + (L₁+L₅)) + ((L₂+L₆) + (L₃+L₇)) the products left over are
 *  added one by one. In an aligned call the blocks begin at p₀. In others the address of the
 *  object's vector decides: if it is no multiple of 4, there are no blocks, and the sum runs from
 *  left to right; else the products before the first multiple of 16, none to three, are added up
 *  first, from left to right, and L₀ starts with their sum.
 *
 *  ## In place
 *
 *  Where all three sizes are 3, all 4, all 5 or all 6, the destination may coincide, object for
 *  object, with the vector, but in array forms not with a single one. At all other sizes it must
 *  not overlap the vector in any way. It must never overlap a matrix. Overlap is not tested; it
 *  makes the product wrong.
 *
 *  ## Cost
 *
 *  A multiplication for each element of the matrix. A call spreads over threads where its work W
 *  reaches 36865 by strides (general 18433), 9217 in `_P`, 18433 in `_L`. With w and h for
 *  `src1Width` and `src1Height`:
 *
 *  | Shapes        | W                 |
 *  |---------------|-------------------|
 *  | `mav`         | h·(w + 1)·c + w   |
 *  | `tav`         | w·(h + 1)·c + h   |
 *  | `mva` `tva`   | w·h + (w + h)·c   |
 *  | `mava` `tava` | (w·(h + 1) + h)·c |
 *
 *  ## Statuses
 *
 *  None but that of a failed check is ever returned; NaN and infinity take their course.
 *
 *  @{
 */

/** @name Product of a matrix and a vector: dst = A·x, the matrix as its letter reads it
 *  Checks, in this order: null pointer, sizes, size match, strides (`_P`: shifts).
 *  @{ */
QORM_API qorStatus qormMul_mv_32f(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                  int32_t src1Width, int32_t src1Height, const float* pSrc2,
                                  int32_t src2Stride2, int32_t src2Len, float* pDst,
                                  int32_t dstStride2);
QORM_API qorStatus qormMul_mv_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                    int32_t src1Width, int32_t src1Height,
                                    const float* const* ppSrc2, int32_t src2Shift, int32_t src2Len,
                                    float* const* ppDst, int32_t dstShift);
QORM_API qorStatus qormMul_mv_64f(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                  int32_t src1Width, int32_t src1Height, const double* pSrc2,
                                  int32_t src2Stride2, int32_t src2Len, double* pDst,
                                  int32_t dstStride2);
QORM_API qorStatus qormMul_mv_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                    int32_t src1Width, int32_t src1Height,
                                    const double* const* ppSrc2, int32_t src2Shift, int32_t src2Len,
                                    double* const* ppDst, int32_t dstShift);
QORM_API qorStatus qormMul_tv_32f(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                  int32_t src1Width, int32_t src1Height, const float* pSrc2,
                                  int32_t src2Stride2, int32_t src2Len, float* pDst,
                                  int32_t dstStride2);
QORM_API qorStatus qormMul_tv_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                    int32_t src1Width, int32_t src1Height,
                                    const float* const* ppSrc2, int32_t src2Shift, int32_t src2Len,
                                    float* const* ppDst, int32_t dstShift);
QORM_API qorStatus qormMul_tv_64f(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                  int32_t src1Width, int32_t src1Height, const double* pSrc2,
                                  int32_t src2Stride2, int32_t src2Len, double* pDst,
                                  int32_t dstStride2);
QORM_API qorStatus qormMul_tv_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                    int32_t src1Width, int32_t src1Height,
                                    const double* const* ppSrc2, int32_t src2Shift, int32_t src2Len,
                                    double* const* ppDst, int32_t dstShift);
/** @} */

/** @name Product of each matrix of an array and one vector: dstₙ = Aₙ·x
 *  Checks, in this order: null pointer, count, sizes, size match, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormMul_mav_32f(const float* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                   int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
                                   const float* pSrc2, int32_t src2Stride2, int32_t src2Len,
                                   float* pDst, int32_t dstStride0, int32_t dstStride2,
                                   int32_t count);
QORM_API qorStatus qormMul_mav_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride0, int32_t src1Width, int32_t src1Height,
                                     const float* const* ppSrc2, int32_t src2Shift, int32_t src2Len,
                                     float* const* ppDst, int32_t dstShift, int32_t dstStride0,
                                     int32_t count);
QORM_API qorStatus qormMul_mav_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                                     int32_t src1Height, const float* pSrc2, int32_t src2Stride2,
                                     int32_t src2Len, float* const* ppDst, int32_t dstShift,
                                     int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_mav_64f(const double* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                   int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
                                   const double* pSrc2, int32_t src2Stride2, int32_t src2Len,
                                   double* pDst, int32_t dstStride0, int32_t dstStride2,
                                   int32_t count);
QORM_API qorStatus qormMul_mav_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride0, int32_t src1Width, int32_t src1Height,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Len, double* const* ppDst, int32_t dstShift,
                                     int32_t dstStride0, int32_t count);
QORM_API qorStatus qormMul_mav_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                                     int32_t src1Height, const double* pSrc2, int32_t src2Stride2,
                                     int32_t src2Len, double* const* ppDst, int32_t dstShift,
                                     int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_tav_32f(const float* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                   int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
                                   const float* pSrc2, int32_t src2Stride2, int32_t src2Len,
                                   float* pDst, int32_t dstStride0, int32_t dstStride2,
                                   int32_t count);
QORM_API qorStatus qormMul_tav_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride0, int32_t src1Width, int32_t src1Height,
                                     const float* const* ppSrc2, int32_t src2Shift, int32_t src2Len,
                                     float* const* ppDst, int32_t dstShift, int32_t dstStride0,
                                     int32_t count);
QORM_API qorStatus qormMul_tav_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                                     int32_t src1Height, const float* pSrc2, int32_t src2Stride2,
                                     int32_t src2Len, float* const* ppDst, int32_t dstShift,
                                     int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_tav_64f(const double* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                   int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
                                   const double* pSrc2, int32_t src2Stride2, int32_t src2Len,
                                   double* pDst, int32_t dstStride0, int32_t dstStride2,
                                   int32_t count);
QORM_API qorStatus qormMul_tav_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride0, int32_t src1Width, int32_t src1Height,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Len, double* const* ppDst, int32_t dstShift,
                                     int32_t dstStride0, int32_t count);
QORM_API qorStatus qormMul_tav_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                                     int32_t src1Height, const double* pSrc2, int32_t src2Stride2,
                                     int32_t src2Len, double* const* ppDst, int32_t dstShift,
                                     int32_t dstStride2, int32_t count);
/** @} */

/** @name Product of one matrix and each vector of an array: dstₙ = A·xₙ
 *  The sums of #qormMul_mva_32f have an order of their own, see above.
 *  Checks, in this order: null pointer, count, sizes, size match, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormMul_mva_32f(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                   int32_t src1Width, int32_t src1Height, const float* pSrc2,
                                   int32_t src2Stride0, int32_t src2Stride2, int32_t src2Len,
                                   float* pDst, int32_t dstStride0, int32_t dstStride2,
                                   int32_t count);
QORM_API qorStatus qormMul_mva_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Width, int32_t src1Height,
                                     const float* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride0, int32_t src2Len, float* const* ppDst,
                                     int32_t dstShift, int32_t dstStride0, int32_t count);
QORM_API qorStatus qormMul_mva_32f_L(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                     int32_t src1Width, int32_t src1Height,
                                     const float* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride2, int32_t src2Len, float* const* ppDst,
                                     int32_t dstShift, int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_mva_64f(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                   int32_t src1Width, int32_t src1Height, const double* pSrc2,
                                   int32_t src2Stride0, int32_t src2Stride2, int32_t src2Len,
                                   double* pDst, int32_t dstStride0, int32_t dstStride2,
                                   int32_t count);
QORM_API qorStatus qormMul_mva_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Width, int32_t src1Height,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride0, int32_t src2Len, double* const* ppDst,
                                     int32_t dstShift, int32_t dstStride0, int32_t count);
QORM_API qorStatus qormMul_mva_64f_L(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                     int32_t src1Width, int32_t src1Height,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride2, int32_t src2Len, double* const* ppDst,
                                     int32_t dstShift, int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_tva_32f(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                   int32_t src1Width, int32_t src1Height, const float* pSrc2,
                                   int32_t src2Stride0, int32_t src2Stride2, int32_t src2Len,
                                   float* pDst, int32_t dstStride0, int32_t dstStride2,
                                   int32_t count);
QORM_API qorStatus qormMul_tva_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Width, int32_t src1Height,
                                     const float* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride0, int32_t src2Len, float* const* ppDst,
                                     int32_t dstShift, int32_t dstStride0, int32_t count);
QORM_API qorStatus qormMul_tva_32f_L(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                     int32_t src1Width, int32_t src1Height,
                                     const float* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride2, int32_t src2Len, float* const* ppDst,
                                     int32_t dstShift, int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_tva_64f(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                   int32_t src1Width, int32_t src1Height, const double* pSrc2,
                                   int32_t src2Stride0, int32_t src2Stride2, int32_t src2Len,
                                   double* pDst, int32_t dstStride0, int32_t dstStride2,
                                   int32_t count);
QORM_API qorStatus qormMul_tva_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Width, int32_t src1Height,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride0, int32_t src2Len, double* const* ppDst,
                                     int32_t dstShift, int32_t dstStride0, int32_t count);
QORM_API qorStatus qormMul_tva_64f_L(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                     int32_t src1Width, int32_t src1Height,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride2, int32_t src2Len, double* const* ppDst,
                                     int32_t dstShift, int32_t dstStride2, int32_t count);
/** @} */

/** @name Product of corresponding matrices and vectors of two arrays: dstₙ = Aₙ·xₙ
 *  Checks, in this order: null pointer, count, sizes, size match, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormMul_mava_32f(const float* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                    int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
                                    const float* pSrc2, int32_t src2Stride0, int32_t src2Stride2,
                                    int32_t src2Len, float* pDst, int32_t dstStride0,
                                    int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_mava_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride0, int32_t src1Width, int32_t src1Height,
                                      const float* const* ppSrc2, int32_t src2Shift,
                                      int32_t src2Stride0, int32_t src2Len, float* const* ppDst,
                                      int32_t dstShift, int32_t dstStride0, int32_t count);
QORM_API qorStatus qormMul_mava_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                                      int32_t src1Height, const float* const* ppSrc2,
                                      int32_t src2Shift, int32_t src2Stride2, int32_t src2Len,
                                      float* const* ppDst, int32_t dstShift, int32_t dstStride2,
                                      int32_t count);
QORM_API qorStatus qormMul_mava_64f(const double* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                    int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
                                    const double* pSrc2, int32_t src2Stride0, int32_t src2Stride2,
                                    int32_t src2Len, double* pDst, int32_t dstStride0,
                                    int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_mava_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride0, int32_t src1Width, int32_t src1Height,
                                      const double* const* ppSrc2, int32_t src2Shift,
                                      int32_t src2Stride0, int32_t src2Len, double* const* ppDst,
                                      int32_t dstShift, int32_t dstStride0, int32_t count);
QORM_API qorStatus qormMul_mava_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                                      int32_t src1Height, const double* const* ppSrc2,
                                      int32_t src2Shift, int32_t src2Stride2, int32_t src2Len,
                                      double* const* ppDst, int32_t dstShift, int32_t dstStride2,
                                      int32_t count);
QORM_API qorStatus qormMul_tava_32f(const float* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                    int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
                                    const float* pSrc2, int32_t src2Stride0, int32_t src2Stride2,
                                    int32_t src2Len, float* pDst, int32_t dstStride0,
                                    int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_tava_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride0, int32_t src1Width, int32_t src1Height,
                                      const float* const* ppSrc2, int32_t src2Shift,
                                      int32_t src2Stride0, int32_t src2Len, float* const* ppDst,
                                      int32_t dstShift, int32_t dstStride0, int32_t count);
QORM_API qorStatus qormMul_tava_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                                      int32_t src1Height, const float* const* ppSrc2,
                                      int32_t src2Shift, int32_t src2Stride2, int32_t src2Len,
                                      float* const* ppDst, int32_t dstShift, int32_t dstStride2,
                                      int32_t count);
QORM_API qorStatus qormMul_tava_64f(const double* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                    int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
                                    const double* pSrc2, int32_t src2Stride0, int32_t src2Stride2,
                                    int32_t src2Len, double* pDst, int32_t dstStride0,
                                    int32_t dstStride2, int32_t count);
QORM_API qorStatus qormMul_tava_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride0, int32_t src1Width, int32_t src1Height,
                                      const double* const* ppSrc2, int32_t src2Shift,
                                      int32_t src2Stride0, int32_t src2Len, double* const* ppDst,
                                      int32_t dstShift, int32_t dstStride0, int32_t count);
QORM_API qorStatus qormMul_tava_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride1, int32_t src1Stride2, int32_t src1Width,
                                      int32_t src1Height, const double* const* ppSrc2,
                                      int32_t src2Shift, int32_t src2Stride2, int32_t src2Len,
                                      double* const* ppDst, int32_t dstShift, int32_t dstStride2,
                                      int32_t count);
/** @} */

/** @} */

/** @defgroup MulConstants Mul: scaling by a constant
 *  Products of a matrix or a vector and a constant.
 *
 *  ## Shapes
 *
 *  | Shape | Formula               | Shape | Formula                 |
 *  |-------|-----------------------|-------|-------------------------|
 *  | `mc`  | dst(i,j) = A(i,j)·val | `mac` | dstₙ(i,j) = Aₙ(i,j)·val |
 *  | `tc`  | dst(i,j) = A(j,i)·val | `tac` | dstₙ(i,j) = Aₙ(j,i)·val |
 *  | `vc`  | dst(i) = x(i)·val     | `vac` | dstₙ(i) = xₙ(i)·val     |
 *
 *  `width` and `height` are those of the destination: a matrix read transposed lies in memory with
 *  `width` rows and `height` columns. A vector and its destination have `len` elements. Array forms
 *  exist in all three layouts, others by strides and in `_P`.
 *
 *  ## Arithmetic
 *
 *  One multiplication per element; no other bits are possible on any path. No value of `val` is
 *  treated apart: 0 times infinity is NaN.
 *
 *  ## In place
 *
 *  The destination may coincide with a source read as stored; one that overlaps a transposed source
 *  is not defined. Other overlaps are defined only for `vc` by strides where both are the element
 *  size: elements are done one by one, i ascending.
 *
 *  ## Cost
 *
 *  One multiplication per element: the time is that of the memory that is touched. A call spreads
 *  over threads where its work W reaches
 *
 *  | Shapes      | W         | strides              | `_P`  | `_L`                         |
 *  |-------------|-----------|----------------------|-------|------------------------------|
 *  | `mac` `tac` | 2w·h·c    | 35001                | 17001 | 35001, general 15001 / 35001 |
 *  | `vac`       | 2·`len`·c | 36865, general 18433 | 9217  | 18433                        |
 *
 *  ## Statuses
 *
 *  None but that of a failed check is ever returned; NaN and infinity take their course.
 *
 *  @{
 */

/** @name Product of a matrix and a constant: dst = A·val
 *  Checks, in this order: null pointer, size, strides (`_P`: shifts).
 *  @{ */
QORM_API qorStatus qormMul_mc_32f(const float* pSrc, int32_t srcStride1, int32_t srcStride2,
                                  float val, float* pDst, int32_t dstStride1, int32_t dstStride2,
                                  int32_t width, int32_t height);
QORM_API qorStatus qormMul_mc_32f_P(const float* const* ppSrc, int32_t srcShift, float val,
                                    float* const* ppDst, int32_t dstShift, int32_t width,
                                    int32_t height);
QORM_API qorStatus qormMul_mc_64f(const double* pSrc, int32_t srcStride1, int32_t srcStride2,
                                  double val, double* pDst, int32_t dstStride1, int32_t dstStride2,
                                  int32_t width, int32_t height);
QORM_API qorStatus qormMul_mc_64f_P(const double* const* ppSrc, int32_t srcShift, double val,
                                    double* const* ppDst, int32_t dstShift, int32_t width,
                                    int32_t height);
QORM_API qorStatus qormMul_tc_32f(const float* pSrc, int32_t srcStride1, int32_t srcStride2,
                                  float val, float* pDst, int32_t dstStride1, int32_t dstStride2,
                                  int32_t width, int32_t height);
QORM_API qorStatus qormMul_tc_32f_P(const float* const* ppSrc, int32_t srcShift, float val,
                                    float* const* ppDst, int32_t dstShift, int32_t width,
                                    int32_t height);
QORM_API qorStatus qormMul_tc_64f(const double* pSrc, int32_t srcStride1, int32_t srcStride2,
                                  double val, double* pDst, int32_t dstStride1, int32_t dstStride2,
                                  int32_t width, int32_t height);
QORM_API qorStatus qormMul_tc_64f_P(const double* const* ppSrc, int32_t srcShift, double val,
                                    double* const* ppDst, int32_t dstShift, int32_t width,
                                    int32_t height);
/** @} */

/** @name Product of a vector and a constant: dst(i) = x(i)·val
 *  Checks, in this order: null pointer, size, strides (`_P`: shifts).
 *  @{ */
QORM_API qorStatus qormMul_vc_32f(const float* pSrc, int32_t srcStride2, float val, float* pDst,
                                  int32_t dstStride2, int32_t len);
QORM_API qorStatus qormMul_vc_32f_P(const float* const* ppSrc, int32_t srcShift, float val,
                                    float* const* ppDst, int32_t dstShift, int32_t len);
QORM_API qorStatus qormMul_vc_64f(const double* pSrc, int32_t srcStride2, double val, double* pDst,
                                  int32_t dstStride2, int32_t len);
QORM_API qorStatus qormMul_vc_64f_P(const double* const* ppSrc, int32_t srcShift, double val,
                                    double* const* ppDst, int32_t dstShift, int32_t len);
/** @} */

/** @name Product of each matrix of an array and a constant: dstₙ = Aₙ·val
 *  Checks, in this order: null pointer, count, size, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormMul_mac_32f(const float* pSrc, int32_t srcStride0, int32_t srcStride1,
                                   int32_t srcStride2, float val, float* pDst, int32_t dstStride0,
                                   int32_t dstStride1, int32_t dstStride2, int32_t width,
                                   int32_t height, int32_t count);
QORM_API qorStatus qormMul_mac_32f_P(const float* const* ppSrc, int32_t srcShift,
                                     int32_t srcStride0, float val, float* const* ppDst,
                                     int32_t dstShift, int32_t dstStride0, int32_t width,
                                     int32_t height, int32_t count);
QORM_API qorStatus qormMul_mac_32f_L(const float* const* ppSrc, int32_t srcShift,
                                     int32_t srcStride1, int32_t srcStride2, float val,
                                     float* const* ppDst, int32_t dstShift, int32_t dstStride1,
                                     int32_t dstStride2, int32_t width, int32_t height,
                                     int32_t count);
QORM_API qorStatus qormMul_mac_64f(const double* pSrc, int32_t srcStride0, int32_t srcStride1,
                                   int32_t srcStride2, double val, double* pDst, int32_t dstStride0,
                                   int32_t dstStride1, int32_t dstStride2, int32_t width,
                                   int32_t height, int32_t count);
QORM_API qorStatus qormMul_mac_64f_P(const double* const* ppSrc, int32_t srcShift,
                                     int32_t srcStride0, double val, double* const* ppDst,
                                     int32_t dstShift, int32_t dstStride0, int32_t width,
                                     int32_t height, int32_t count);
QORM_API qorStatus qormMul_mac_64f_L(const double* const* ppSrc, int32_t srcShift,
                                     int32_t srcStride1, int32_t srcStride2, double val,
                                     double* const* ppDst, int32_t dstShift, int32_t dstStride1,
                                     int32_t dstStride2, int32_t width, int32_t height,
                                     int32_t count);
QORM_API qorStatus qormMul_tac_32f(const float* pSrc, int32_t srcStride0, int32_t srcStride1,
                                   int32_t srcStride2, float val, float* pDst, int32_t dstStride0,
                                   int32_t dstStride1, int32_t dstStride2, int32_t width,
                                   int32_t height, int32_t count);
QORM_API qorStatus qormMul_tac_32f_P(const float* const* ppSrc, int32_t srcShift,
                                     int32_t srcStride0, float val, float* const* ppDst,
                                     int32_t dstShift, int32_t dstStride0, int32_t width,
                                     int32_t height, int32_t count);
QORM_API qorStatus qormMul_tac_32f_L(const float* const* ppSrc, int32_t srcShift,
                                     int32_t srcStride1, int32_t srcStride2, float val,
                                     float* const* ppDst, int32_t dstShift, int32_t dstStride1,
                                     int32_t dstStride2, int32_t width, int32_t height,
                                     int32_t count);
QORM_API qorStatus qormMul_tac_64f(const double* pSrc, int32_t srcStride0, int32_t srcStride1,
                                   int32_t srcStride2, double val, double* pDst, int32_t dstStride0,
                                   int32_t dstStride1, int32_t dstStride2, int32_t width,
                                   int32_t height, int32_t count);
QORM_API qorStatus qormMul_tac_64f_P(const double* const* ppSrc, int32_t srcShift,
                                     int32_t srcStride0, double val, double* const* ppDst,
                                     int32_t dstShift, int32_t dstStride0, int32_t width,
                                     int32_t height, int32_t count);
QORM_API qorStatus qormMul_tac_64f_L(const double* const* ppSrc, int32_t srcShift,
                                     int32_t srcStride1, int32_t srcStride2, double val,
                                     double* const* ppDst, int32_t dstShift, int32_t dstStride1,
                                     int32_t dstStride2, int32_t width, int32_t height,
                                     int32_t count);
/** @} */

/** @name Product of each vector of an array and a constant: dstₙ(i) = xₙ(i)·val
 *  Checks, in this order: null pointer, count, size, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormMul_vac_32f(const float* pSrc, int32_t srcStride0, int32_t srcStride2,
                                   float val, float* pDst, int32_t dstStride0, int32_t dstStride2,
                                   int32_t len, int32_t count);
QORM_API qorStatus qormMul_vac_32f_P(const float* const* ppSrc, int32_t srcShift,
                                     int32_t srcStride0, float val, float* const* ppDst,
                                     int32_t dstShift, int32_t dstStride0, int32_t len,
                                     int32_t count);
QORM_API qorStatus qormMul_vac_32f_L(const float* const* ppSrc, int32_t srcShift,
                                     int32_t srcStride2, float val, float* const* ppDst,
                                     int32_t dstShift, int32_t dstStride2, int32_t len,
                                     int32_t count);
QORM_API qorStatus qormMul_vac_64f(const double* pSrc, int32_t srcStride0, int32_t srcStride2,
                                   double val, double* pDst, int32_t dstStride0, int32_t dstStride2,
                                   int32_t len, int32_t count);
QORM_API qorStatus qormMul_vac_64f_P(const double* const* ppSrc, int32_t srcShift,
                                     int32_t srcStride0, double val, double* const* ppDst,
                                     int32_t dstShift, int32_t dstStride0, int32_t len,
                                     int32_t count);
QORM_API qorStatus qormMul_vac_64f_L(const double* const* ppSrc, int32_t srcShift,
                                     int32_t srcStride2, double val, double* const* ppDst,
                                     int32_t dstShift, int32_t dstStride2, int32_t len,
                                     int32_t count);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
