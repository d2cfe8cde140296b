/** @file mul.h
 *  Products: of matrices, of a matrix and a vector, and of a matrix or a vector and a constant.
 *
 *  Shapes. `src1Width`, `src1Height`, `src2Width`, `src2Height` and, of a vector, `src2Len` are the
 *  sizes of the operands **as they lie in memory**, also where they are read transposed (`t`,
 *  `ta`). Those of the destination follow:
 *
 *      letters   dst(i,j) = sum over k of   dst height   dst width    have to be equal
 *      m, m      A(i,k) * B(k,j)            src1Height   src2Width    src1Width  and src2Height
 *      t, m      A(k,i) * B(k,j)            src1Width    src2Width    src1Height and src2Height
 *      m, t      A(i,k) * B(j,k)            src1Height   src2Height   src1Width  and src2Width
 *      t, t      A(k,i) * B(j,k)            src1Width    src2Height   src1Height and src2Width
 *
 *      letters   dst(i) = sum over k of     dst length                have to be equal
 *      m, v      A(i,k) * x(k)              src1Height                src1Width  and src2Len
 *      t, v      A(k,i) * x(k)              src1Width                 src1Height and src2Len
 *
 *  An `a` behind a letter changes nothing in these tables. In array forms the destination is an
 *  array of `count` objects and a single operand or constant serves every object.
 *
 *  With a constant, `width` and `height` are **those of the destination**, as in add.h: a matrix
 *  read transposed (`tc`, `tac`) lies in memory with `width` rows and `height` columns. A vector
 *  and its destination have `len` elements.
 *
 *  Arithmetic. Each sum runs over ascending k from left to right, every product and every sum
 *  rounded to the element type: no wider accumulator, no fused multiply-add. Where all sizes of
 *  both operands are 3, all 4, all 5 or all 6 it starts with the first product, at all other sizes
 *  with +0. That shows in the sign of a zero alone: products that are all -0 add up to -0 in the
 *  former and to +0 in the latter. With a constant there is one multiplication per element, and no
 *  value of `val` is treated apart: 0 times infinity is NaN.
 *
 *  **One member, #qormMul_mva_32f, sums in another order** where `src1Stride2`, `src2Stride2` and
 *  `dstStride2` are all 4. Its last bits may then differ from those of all other forms, and with
 *  alignment and length. Let p(k) be the terms of a sum, and a call aligned where `pSrc1`,
 *  `src1Stride1`, `pSrc2`, `src2Stride0`, `pDst` and `dstStride0` are all multiples of 16:
 *
 *      matrix             aligned                                   not aligned
 *      3x3                left to right                             left to right
 *      4x4, 5x5, 6x6      ((0+p0) + (0+p1)) + ((0+p2) + (0+p3)),    left to right
 *                         then + p4, + p5
 *      others: src2Len    below 8 left to right,                    below 11 left to right,
 *                         from 8 in blocks                          from 11 in blocks
 *
 *  In blocks: eight partial sums L0 to L7 start at +0 and take the products in blocks of eight, q0
 *  to q7, Lt taking qt. To ((L0+L4) + (L1+L5)) + ((L2+L6) + (L3+L7)) the products left over are
 *  added one by one. In an aligned call the blocks begin at p0. In others the address of the
 *  object's vector decides: if it is no multiple of 4, there are no blocks, and the sum runs from
 *  left to right; else the products before the first multiple of 16, none to three, are added up
 *  first, from left to right, and L0 starts with their sum.
 *
 *  In place, products of matrices. Where all four sizes are 3, all 4, all 5 or all 6, the
 *  destination may coincide, object for object, with the second operand; in `_P` forms it may as
 *  well coincide with the first. That is for operands of the destination's kind: in array forms the
 *  destination must not overlap a single operand. There are members where it must not coincide with
 *  the second operand if any of `src1Stride2`, `src2Stride2` and `dstStride2` differs from the
 *  element size:
 *
 *      qormMul_mm_32f, qormMul_mma_32f_L, qormMul_mama_32f_L    at sizes 4 to 6
 *      qormMul_mm_64f, qormMul_mma_64f_L, qormMul_mama_64f_L    at sizes 3 to 6
 *
 *  In place, products with a vector. Where all three sizes are 3, all 4, all 5 or all 6, the
 *  destination may coincide, object for object, with the vector, but in array forms not with a
 *  single one. It must not overlap a matrix.
 *
 *  At all other sizes the destination of these products must not overlap an operand in any way.
 *  Overlap is not tested; it makes the product wrong.
 *
 *  In place, products with a constant. The destination may coincide with a source used as stored of
 *  the same strides; one that overlaps a transposed source is not defined. Other overlaps are
 *  defined only for `vc` without suffix where both strides are the element size: elements are done
 *  one by one, i ascending.
 *
 *  **Two members treat small sizes in a way of their own**: #qormMul_mm_32f_P and
 *  #qormMul_tt_64f_P. Where none of the four sizes is above 3, and there is a 3 among them or
 *  both a 1 and a 2, they work as if all sizes were 3, with i, j and k from 0 to 2; only the rows
 *  of the tables keep their lengths:
 *
 *      mm_32f_P    A(i,k) = ppSrc1[i*src1Width + k]    B(k,j) = ppSrc2[k*src2Width + j]
 *      tt_64f_P    A(k,i) = ppSrc1[k*src1Width + i]    B(j,k) = ppSrc2[j*src2Width + k]
 *      both        dst(i,j) = ppDst[i*src2Width + j]
 *
 *  So the tables need valid pointers up to entry 2*src1Width + 2 in `ppSrc1` and 2*src2Width + 2
 *  in `ppSrc2` and `ppDst`: what lies behind the matrices is read and written, too. The product
 *  is right only if the sizes that have to be equal are 3, and in `tt_64f_P` `src2Height`
 *  besides. `mama_32f_P` and `tata_64f_P` with a count of 1 know no such case.
 *
 *  Statuses. None but that of a failed check is ever returned; NaN and infinity take their
 *  course.
 *
 *  Layouts, units and statuses: qorm/types.h.
 */
#ifndef QORM_MUL_H
#define QORM_MUL_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Product of two matrices: dst = A * B, each as its letter reads it
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

/** @name Product of each matrix of an array and one matrix: dst_n = A_n * B
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

/** @name Product of one matrix and each matrix of an array: dst_n = A * B_n
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

/** @name Product of corresponding matrices of two arrays: dst_n = A_n * B_n
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

/** @name Product of a matrix and a vector: dst = A * x, the matrix as its letter reads it
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

/** @name Product of each matrix of an array and one vector: dst_n = A_n * x
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

/** @name Product of one matrix and each vector of an array: dst_n = A * x_n
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

/** @name Product of corresponding matrices and vectors of two arrays: dst_n = A_n * x_n
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

/** @name Product of a matrix and a constant: dst(i,j) = A(i,j) * val, in `tc` A(j,i) * val
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

/** @name Product of a vector and a constant: dst(i) = x(i) * val
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

/** @name Product of each matrix of an array and a constant: dst_n(i,j) = A_n(i,j) * val,
 *  in `tac` A_n(j,i) * val
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

/** @name Product of each vector of an array and a constant: dst_n(i) = x_n(i) * val
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

#ifdef __cplusplus
}
#endif

#endif
