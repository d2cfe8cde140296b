/** @file sub.h
 *  Differences, element by element: of matrices, of vectors, and of a vector and a constant.
 *
 *  Shapes. Of matrices, `width` and `height` are those of the destination. An operand used as
 *  stored (`m`, `ma`) has the same; an operand used transposed (`t`, `ta`) lies in memory with
 *  `width` rows and `height` columns. Of vectors, all have `len` elements. In array forms the
 *  destination is an array of `count` objects and a single operand or constant serves every object.
 *
 *  Arithmetic. One IEEE subtraction per element, in the element type; the bits do not depend on the
 *  path, the layout or the threads. No status but that of a failed check is ever returned.
 *
 *  In place. The destination may coincide with an operand used as stored of the same shape and
 *  strides. A destination that overlaps a transposed operand, or a single operand of an array form,
 *  is not defined. Other overlaps are defined only for `vv`, `vc` and `cv` without suffix where
 *  every stride is the element size (`vv` not at lengths 3 to 6): elements are done one by one, i
 *  ascending.
 *
 *  Threads. Whether a call of `cva` spreads depends on `count` alone, not on `len`;
 *  #qormSub_vva_64f_P never does.
 *
 *  Layouts, units and statuses: qorm/types.h.
 */
#ifndef QORM_SUB_H
#define QORM_SUB_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Difference of two matrices: dst(i,j) = A(i,j) - B(i,j)
 *  Checks, in this order: null pointer, size, strides (`_P`: shifts).
 *  @{ */
QORM_API qorStatus qormSub_mm_32f(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                  const float* pSrc2, int32_t src2Stride1, int32_t src2Stride2,
                                  float* pDst, int32_t dstStride1, int32_t dstStride2,
                                  int32_t width, int32_t height);
QORM_API qorStatus qormSub_mm_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                    const float* const* ppSrc2, int32_t src2Shift,
                                    float* const* ppDst, int32_t dstShift, int32_t width,
                                    int32_t height);
QORM_API qorStatus qormSub_mm_64f(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                  const double* pSrc2, int32_t src2Stride1, int32_t src2Stride2,
                                  double* pDst, int32_t dstStride1, int32_t dstStride2,
                                  int32_t width, int32_t height);
QORM_API qorStatus qormSub_mm_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                    const double* const* ppSrc2, int32_t src2Shift,
                                    double* const* ppDst, int32_t dstShift, int32_t width,
                                    int32_t height);
QORM_API qorStatus qormSub_tm_32f(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                  const float* pSrc2, int32_t src2Stride1, int32_t src2Stride2,
                                  float* pDst, int32_t dstStride1, int32_t dstStride2,
                                  int32_t width, int32_t height);
QORM_API qorStatus qormSub_tm_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                    const float* const* ppSrc2, int32_t src2Shift,
                                    float* const* ppDst, int32_t dstShift, int32_t width,
                                    int32_t height);
QORM_API qorStatus qormSub_tm_64f(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                  const double* pSrc2, int32_t src2Stride1, int32_t src2Stride2,
                                  double* pDst, int32_t dstStride1, int32_t dstStride2,
                                  int32_t width, int32_t height);
QORM_API qorStatus qormSub_tm_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                    const double* const* ppSrc2, int32_t src2Shift,
                                    double* const* ppDst, int32_t dstShift, int32_t width,
                                    int32_t height);
QORM_API qorStatus qormSub_mt_32f(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                  const float* pSrc2, int32_t src2Stride1, int32_t src2Stride2,
                                  float* pDst, int32_t dstStride1, int32_t dstStride2,
                                  int32_t width, int32_t height);
QORM_API qorStatus qormSub_mt_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                    const float* const* ppSrc2, int32_t src2Shift,
                                    float* const* ppDst, int32_t dstShift, int32_t width,
                                    int32_t height);
QORM_API qorStatus qormSub_mt_64f(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                  const double* pSrc2, int32_t src2Stride1, int32_t src2Stride2,
                                  double* pDst, int32_t dstStride1, int32_t dstStride2,
                                  int32_t width, int32_t height);
QORM_API qorStatus qormSub_mt_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                    const double* const* ppSrc2, int32_t src2Shift,
                                    double* const* ppDst, int32_t dstShift, int32_t width,
                                    int32_t height);
QORM_API qorStatus qormSub_tt_32f(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                  const float* pSrc2, int32_t src2Stride1, int32_t src2Stride2,
                                  float* pDst, int32_t dstStride1, int32_t dstStride2,
                                  int32_t width, int32_t height);
QORM_API qorStatus qormSub_tt_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                    const float* const* ppSrc2, int32_t src2Shift,
                                    float* const* ppDst, int32_t dstShift, int32_t width,
                                    int32_t height);
QORM_API qorStatus qormSub_tt_64f(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                  const double* pSrc2, int32_t src2Stride1, int32_t src2Stride2,
                                  double* pDst, int32_t dstStride1, int32_t dstStride2,
                                  int32_t width, int32_t height);
QORM_API qorStatus qormSub_tt_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                    const double* const* ppSrc2, int32_t src2Shift,
                                    double* const* ppDst, int32_t dstShift, int32_t width,
                                    int32_t height);
/** @} */

/** @name Each matrix of an array less one matrix: dst_n(i,j) = A_n(i,j) - B(i,j)
 *  Checks, in this order: null pointer, count, size, strides, shifts (`_P`, `_L`).
 *  The forms of `mam` without suffix alone test the strides before the size.
 *  @{ */
QORM_API qorStatus qormSub_mam_32f(const float* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                   int32_t src1Stride2, const float* pSrc2, int32_t src2Stride1,
                                   int32_t src2Stride2, float* pDst, int32_t dstStride0,
                                   int32_t dstStride1, int32_t dstStride2, int32_t width,
                                   int32_t height, int32_t count);
QORM_API qorStatus qormSub_mam_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride0, const float* const* ppSrc2,
                                     int32_t src2Shift, float* const* ppDst, int32_t dstShift,
                                     int32_t dstStride0, int32_t width, int32_t height,
                                     int32_t count);
QORM_API qorStatus qormSub_mam_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride1, int32_t src1Stride2, const float* pSrc2,
                                     int32_t src2Stride1, int32_t src2Stride2, float* const* ppDst,
                                     int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                     int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormSub_mam_64f(const double* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                   int32_t src1Stride2, const double* pSrc2, int32_t src2Stride1,
                                   int32_t src2Stride2, double* pDst, int32_t dstStride0,
                                   int32_t dstStride1, int32_t dstStride2, int32_t width,
                                   int32_t height, int32_t count);
QORM_API qorStatus qormSub_mam_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride0, const double* const* ppSrc2,
                                     int32_t src2Shift, double* const* ppDst, int32_t dstShift,
                                     int32_t dstStride0, int32_t width, int32_t height,
                                     int32_t count);
QORM_API qorStatus qormSub_mam_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride1, int32_t src1Stride2, const double* pSrc2,
                                     int32_t src2Stride1, int32_t src2Stride2, double* const* ppDst,
                                     int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                     int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormSub_tam_32f(const float* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                   int32_t src1Stride2, const float* pSrc2, int32_t src2Stride1,
                                   int32_t src2Stride2, float* pDst, int32_t dstStride0,
                                   int32_t dstStride1, int32_t dstStride2, int32_t width,
                                   int32_t height, int32_t count);
QORM_API qorStatus qormSub_tam_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride0, const float* const* ppSrc2,
                                     int32_t src2Shift, float* const* ppDst, int32_t dstShift,
                                     int32_t dstStride0, int32_t width, int32_t height,
                                     int32_t count);
QORM_API qorStatus qormSub_tam_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride1, int32_t src1Stride2, const float* pSrc2,
                                     int32_t src2Stride1, int32_t src2Stride2, float* const* ppDst,
                                     int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                     int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormSub_tam_64f(const double* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                   int32_t src1Stride2, const double* pSrc2, int32_t src2Stride1,
                                   int32_t src2Stride2, double* pDst, int32_t dstStride0,
                                   int32_t dstStride1, int32_t dstStride2, int32_t width,
                                   int32_t height, int32_t count);
QORM_API qorStatus qormSub_tam_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride0, const double* const* ppSrc2,
                                     int32_t src2Shift, double* const* ppDst, int32_t dstShift,
                                     int32_t dstStride0, int32_t width, int32_t height,
                                     int32_t count);
QORM_API qorStatus qormSub_tam_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride1, int32_t src1Stride2, const double* pSrc2,
                                     int32_t src2Stride1, int32_t src2Stride2, double* const* ppDst,
                                     int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                     int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormSub_mat_32f(const float* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                   int32_t src1Stride2, const float* pSrc2, int32_t src2Stride1,
                                   int32_t src2Stride2, float* pDst, int32_t dstStride0,
                                   int32_t dstStride1, int32_t dstStride2, int32_t width,
                                   int32_t height, int32_t count);
QORM_API qorStatus qormSub_mat_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride0, const float* const* ppSrc2,
                                     int32_t src2Shift, float* const* ppDst, int32_t dstShift,
                                     int32_t dstStride0, int32_t width, int32_t height,
                                     int32_t count);
QORM_API qorStatus qormSub_mat_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride1, int32_t src1Stride2, const float* pSrc2,
                                     int32_t src2Stride1, int32_t src2Stride2, float* const* ppDst,
                                     int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                     int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormSub_mat_64f(const double* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                   int32_t src1Stride2, const double* pSrc2, int32_t src2Stride1,
                                   int32_t src2Stride2, double* pDst, int32_t dstStride0,
                                   int32_t dstStride1, int32_t dstStride2, int32_t width,
                                   int32_t height, int32_t count);
QORM_API qorStatus qormSub_mat_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride0, const double* const* ppSrc2,
                                     int32_t src2Shift, double* const* ppDst, int32_t dstShift,
                                     int32_t dstStride0, int32_t width, int32_t height,
                                     int32_t count);
QORM_API qorStatus qormSub_mat_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride1, int32_t src1Stride2, const double* pSrc2,
                                     int32_t src2Stride1, int32_t src2Stride2, double* const* ppDst,
                                     int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                     int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormSub_tat_32f(const float* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                   int32_t src1Stride2, const float* pSrc2, int32_t src2Stride1,
                                   int32_t src2Stride2, float* pDst, int32_t dstStride0,
                                   int32_t dstStride1, int32_t dstStride2, int32_t width,
                                   int32_t height, int32_t count);
QORM_API qorStatus qormSub_tat_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride0, const float* const* ppSrc2,
                                     int32_t src2Shift, float* const* ppDst, int32_t dstShift,
                                     int32_t dstStride0, int32_t width, int32_t height,
                                     int32_t count);
QORM_API qorStatus qormSub_tat_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride1, int32_t src1Stride2, const float* pSrc2,
                                     int32_t src2Stride1, int32_t src2Stride2, float* const* ppDst,
                                     int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                     int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormSub_tat_64f(const double* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                   int32_t src1Stride2, const double* pSrc2, int32_t src2Stride1,
                                   int32_t src2Stride2, double* pDst, int32_t dstStride0,
                                   int32_t dstStride1, int32_t dstStride2, int32_t width,
                                   int32_t height, int32_t count);
QORM_API qorStatus qormSub_tat_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride0, const double* const* ppSrc2,
                                     int32_t src2Shift, double* const* ppDst, int32_t dstShift,
                                     int32_t dstStride0, int32_t width, int32_t height,
                                     int32_t count);
QORM_API qorStatus qormSub_tat_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride1, int32_t src1Stride2, const double* pSrc2,
                                     int32_t src2Stride1, int32_t src2Stride2, double* const* ppDst,
                                     int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                     int32_t width, int32_t height, int32_t count);
/** @} */

/** @name One matrix less each matrix of an array: dst_n(i,j) = A(i,j) - B_n(i,j)
 *  Checks, in this order: null pointer, count, size, strides, shifts (`_P`, `_L`).
 *  The forms of `mma` without suffix alone test the strides before the size.
 *  @{ */
QORM_API qorStatus qormSub_mma_32f(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                   const float* pSrc2, int32_t src2Stride0, int32_t src2Stride1,
                                   int32_t src2Stride2, float* pDst, int32_t dstStride0,
                                   int32_t dstStride1, int32_t dstStride2, int32_t width,
                                   int32_t height, int32_t count);
QORM_API qorStatus qormSub_mma_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                     const float* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride0, float* const* ppDst, int32_t dstShift,
                                     int32_t dstStride0, int32_t width, int32_t height,
                                     int32_t count);
QORM_API qorStatus qormSub_mma_32f_L(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                     const float* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride1, int32_t src2Stride2, float* const* ppDst,
                                     int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                     int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormSub_mma_64f(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                   const double* pSrc2, int32_t src2Stride0, int32_t src2Stride1,
                                   int32_t src2Stride2, double* pDst, int32_t dstStride0,
                                   int32_t dstStride1, int32_t dstStride2, int32_t width,
                                   int32_t height, int32_t count);
QORM_API qorStatus qormSub_mma_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride0, double* const* ppDst, int32_t dstShift,
                                     int32_t dstStride0, int32_t width, int32_t height,
                                     int32_t count);
QORM_API qorStatus qormSub_mma_64f_L(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride1, int32_t src2Stride2, double* const* ppDst,
                                     int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                     int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormSub_tma_32f(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                   const float* pSrc2, int32_t src2Stride0, int32_t src2Stride1,
                                   int32_t src2Stride2, float* pDst, int32_t dstStride0,
                                   int32_t dstStride1, int32_t dstStride2, int32_t width,
                                   int32_t height, int32_t count);
QORM_API qorStatus qormSub_tma_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                     const float* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride0, float* const* ppDst, int32_t dstShift,
                                     int32_t dstStride0, int32_t width, int32_t height,
                                     int32_t count);
QORM_API qorStatus qormSub_tma_32f_L(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                     const float* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride1, int32_t src2Stride2, float* const* ppDst,
                                     int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                     int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormSub_tma_64f(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                   const double* pSrc2, int32_t src2Stride0, int32_t src2Stride1,
                                   int32_t src2Stride2, double* pDst, int32_t dstStride0,
                                   int32_t dstStride1, int32_t dstStride2, int32_t width,
                                   int32_t height, int32_t count);
QORM_API qorStatus qormSub_tma_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride0, double* const* ppDst, int32_t dstShift,
                                     int32_t dstStride0, int32_t width, int32_t height,
                                     int32_t count);
QORM_API qorStatus qormSub_tma_64f_L(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride1, int32_t src2Stride2, double* const* ppDst,
                                     int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                     int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormSub_mta_32f(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                   const float* pSrc2, int32_t src2Stride0, int32_t src2Stride1,
                                   int32_t src2Stride2, float* pDst, int32_t dstStride0,
                                   int32_t dstStride1, int32_t dstStride2, int32_t width,
                                   int32_t height, int32_t count);
QORM_API qorStatus qormSub_mta_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                     const float* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride0, float* const* ppDst, int32_t dstShift,
                                     int32_t dstStride0, int32_t width, int32_t height,
                                     int32_t count);
QORM_API qorStatus qormSub_mta_32f_L(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                     const float* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride1, int32_t src2Stride2, float* const* ppDst,
                                     int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                     int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormSub_mta_64f(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                   const double* pSrc2, int32_t src2Stride0, int32_t src2Stride1,
                                   int32_t src2Stride2, double* pDst, int32_t dstStride0,
                                   int32_t dstStride1, int32_t dstStride2, int32_t width,
                                   int32_t height, int32_t count);
QORM_API qorStatus qormSub_mta_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride0, double* const* ppDst, int32_t dstShift,
                                     int32_t dstStride0, int32_t width, int32_t height,
                                     int32_t count);
QORM_API qorStatus qormSub_mta_64f_L(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride1, int32_t src2Stride2, double* const* ppDst,
                                     int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                     int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormSub_tta_32f(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                   const float* pSrc2, int32_t src2Stride0, int32_t src2Stride1,
                                   int32_t src2Stride2, float* pDst, int32_t dstStride0,
                                   int32_t dstStride1, int32_t dstStride2, int32_t width,
                                   int32_t height, int32_t count);
QORM_API qorStatus qormSub_tta_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                     const float* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride0, float* const* ppDst, int32_t dstShift,
                                     int32_t dstStride0, int32_t width, int32_t height,
                                     int32_t count);
QORM_API qorStatus qormSub_tta_32f_L(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                     const float* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride1, int32_t src2Stride2, float* const* ppDst,
                                     int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                     int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormSub_tta_64f(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                   const double* pSrc2, int32_t src2Stride0, int32_t src2Stride1,
                                   int32_t src2Stride2, double* pDst, int32_t dstStride0,
                                   int32_t dstStride1, int32_t dstStride2, int32_t width,
                                   int32_t height, int32_t count);
QORM_API qorStatus qormSub_tta_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride0, double* const* ppDst, int32_t dstShift,
                                     int32_t dstStride0, int32_t width, int32_t height,
                                     int32_t count);
QORM_API qorStatus qormSub_tta_64f_L(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride1, int32_t src2Stride2, double* const* ppDst,
                                     int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                     int32_t width, int32_t height, int32_t count);
/** @} */

/** @name Difference of two arrays, object by object: dst_n(i,j) = A_n(i,j) - B_n(i,j)
 *  Checks, in this order: null pointer, count, size, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormSub_mama_32f(const float* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                    int32_t src1Stride2, const float* pSrc2, int32_t src2Stride0,
                                    int32_t src2Stride1, int32_t src2Stride2, float* pDst,
                                    int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                    int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormSub_mama_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride0, const float* const* ppSrc2,
                                      int32_t src2Shift, int32_t src2Stride0, float* const* ppDst,
                                      int32_t dstShift, int32_t dstStride0, int32_t width,
                                      int32_t height, int32_t count);
QORM_API qorStatus qormSub_mama_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride1, int32_t src1Stride2,
                                      const float* const* ppSrc2, int32_t src2Shift,
                                      int32_t src2Stride1, int32_t src2Stride2, float* const* ppDst,
                                      int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                      int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormSub_mama_64f(const double* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                    int32_t src1Stride2, const double* pSrc2, int32_t src2Stride0,
                                    int32_t src2Stride1, int32_t src2Stride2, double* pDst,
                                    int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                    int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormSub_mama_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride0, const double* const* ppSrc2,
                                      int32_t src2Shift, int32_t src2Stride0, double* const* ppDst,
                                      int32_t dstShift, int32_t dstStride0, int32_t width,
                                      int32_t height, int32_t count);
QORM_API qorStatus qormSub_mama_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride1, int32_t src1Stride2,
                                      const double* const* ppSrc2, int32_t src2Shift,
                                      int32_t src2Stride1, int32_t src2Stride2,
                                      double* const* ppDst, int32_t dstShift, int32_t dstStride1,
                                      int32_t dstStride2, int32_t width, int32_t height,
                                      int32_t count);
QORM_API qorStatus qormSub_tama_32f(const float* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                    int32_t src1Stride2, const float* pSrc2, int32_t src2Stride0,
                                    int32_t src2Stride1, int32_t src2Stride2, float* pDst,
                                    int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                    int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormSub_tama_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride0, const float* const* ppSrc2,
                                      int32_t src2Shift, int32_t src2Stride0, float* const* ppDst,
                                      int32_t dstShift, int32_t dstStride0, int32_t width,
                                      int32_t height, int32_t count);
QORM_API qorStatus qormSub_tama_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride1, int32_t src1Stride2,
                                      const float* const* ppSrc2, int32_t src2Shift,
                                      int32_t src2Stride1, int32_t src2Stride2, float* const* ppDst,
                                      int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                      int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormSub_tama_64f(const double* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                    int32_t src1Stride2, const double* pSrc2, int32_t src2Stride0,
                                    int32_t src2Stride1, int32_t src2Stride2, double* pDst,
                                    int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                    int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormSub_tama_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride0, const double* const* ppSrc2,
                                      int32_t src2Shift, int32_t src2Stride0, double* const* ppDst,
                                      int32_t dstShift, int32_t dstStride0, int32_t width,
                                      int32_t height, int32_t count);
QORM_API qorStatus qormSub_tama_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride1, int32_t src1Stride2,
                                      const double* const* ppSrc2, int32_t src2Shift,
                                      int32_t src2Stride1, int32_t src2Stride2,
                                      double* const* ppDst, int32_t dstShift, int32_t dstStride1,
                                      int32_t dstStride2, int32_t width, int32_t height,
                                      int32_t count);
QORM_API qorStatus qormSub_mata_32f(const float* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                    int32_t src1Stride2, const float* pSrc2, int32_t src2Stride0,
                                    int32_t src2Stride1, int32_t src2Stride2, float* pDst,
                                    int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                    int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormSub_mata_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride0, const float* const* ppSrc2,
                                      int32_t src2Shift, int32_t src2Stride0, float* const* ppDst,
                                      int32_t dstShift, int32_t dstStride0, int32_t width,
                                      int32_t height, int32_t count);
QORM_API qorStatus qormSub_mata_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride1, int32_t src1Stride2,
                                      const float* const* ppSrc2, int32_t src2Shift,
                                      int32_t src2Stride1, int32_t src2Stride2, float* const* ppDst,
                                      int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                      int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormSub_mata_64f(const double* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                    int32_t src1Stride2, const double* pSrc2, int32_t src2Stride0,
                                    int32_t src2Stride1, int32_t src2Stride2, double* pDst,
                                    int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                    int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormSub_mata_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride0, const double* const* ppSrc2,
                                      int32_t src2Shift, int32_t src2Stride0, double* const* ppDst,
                                      int32_t dstShift, int32_t dstStride0, int32_t width,
                                      int32_t height, int32_t count);
QORM_API qorStatus qormSub_mata_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride1, int32_t src1Stride2,
                                      const double* const* ppSrc2, int32_t src2Shift,
                                      int32_t src2Stride1, int32_t src2Stride2,
                                      double* const* ppDst, int32_t dstShift, int32_t dstStride1,
                                      int32_t dstStride2, int32_t width, int32_t height,
                                      int32_t count);
QORM_API qorStatus qormSub_tata_32f(const float* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                    int32_t src1Stride2, const float* pSrc2, int32_t src2Stride0,
                                    int32_t src2Stride1, int32_t src2Stride2, float* pDst,
                                    int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                    int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormSub_tata_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride0, const float* const* ppSrc2,
                                      int32_t src2Shift, int32_t src2Stride0, float* const* ppDst,
                                      int32_t dstShift, int32_t dstStride0, int32_t width,
                                      int32_t height, int32_t count);
QORM_API qorStatus qormSub_tata_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride1, int32_t src1Stride2,
                                      const float* const* ppSrc2, int32_t src2Shift,
                                      int32_t src2Stride1, int32_t src2Stride2, float* const* ppDst,
                                      int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                      int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormSub_tata_64f(const double* pSrc1, int32_t src1Stride0, int32_t src1Stride1,
                                    int32_t src1Stride2, const double* pSrc2, int32_t src2Stride0,
                                    int32_t src2Stride1, int32_t src2Stride2, double* pDst,
                                    int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                    int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormSub_tata_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride0, const double* const* ppSrc2,
                                      int32_t src2Shift, int32_t src2Stride0, double* const* ppDst,
                                      int32_t dstShift, int32_t dstStride0, int32_t width,
                                      int32_t height, int32_t count);
QORM_API qorStatus qormSub_tata_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride1, int32_t src1Stride2,
                                      const double* const* ppSrc2, int32_t src2Shift,
                                      int32_t src2Stride1, int32_t src2Stride2,
                                      double* const* ppDst, int32_t dstShift, int32_t dstStride1,
                                      int32_t dstStride2, int32_t width, int32_t height,
                                      int32_t count);
/** @} */

/** @name Difference of two vectors: dst(i) = x(i) - y(i)
 *  Checks, in this order: null pointer, size, strides (`_P`: shifts).
 *  @{ */
QORM_API qorStatus qormSub_vv_32f(const float* pSrc1, int32_t src1Stride2, const float* pSrc2,
                                  int32_t src2Stride2, float* pDst, int32_t dstStride2,
                                  int32_t len);
QORM_API qorStatus qormSub_vv_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                    const float* const* ppSrc2, int32_t src2Shift,
                                    float* const* ppDst, int32_t dstShift, int32_t len);
QORM_API qorStatus qormSub_vv_64f(const double* pSrc1, int32_t src1Stride2, const double* pSrc2,
                                  int32_t src2Stride2, double* pDst, int32_t dstStride2,
                                  int32_t len);
QORM_API qorStatus qormSub_vv_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                    const double* const* ppSrc2, int32_t src2Shift,
                                    double* const* ppDst, int32_t dstShift, int32_t len);
/** @} */

/** @name A vector less a constant: dst(i) = x(i) - val
 *  Checks, in this order: null pointer, size, strides (`_P`: shifts).
 *  @{ */
QORM_API qorStatus qormSub_vc_32f(const float* pSrc, int32_t srcStride2, float val, float* pDst,
                                  int32_t dstStride2, int32_t len);
QORM_API qorStatus qormSub_vc_32f_P(const float* const* ppSrc, int32_t srcShift, float val,
                                    float* const* ppDst, int32_t dstShift, int32_t len);
QORM_API qorStatus qormSub_vc_64f(const double* pSrc, int32_t srcStride2, double val, double* pDst,
                                  int32_t dstStride2, int32_t len);
QORM_API qorStatus qormSub_vc_64f_P(const double* const* ppSrc, int32_t srcShift, double val,
                                    double* const* ppDst, int32_t dstShift, int32_t len);
/** @} */

/** @name A constant less a vector: dst(i) = val - x(i)
 *  Among the arguments the vector stands before the constant.
 *  Checks, in this order: null pointer, size, strides (`_P`: shifts).
 *  @{ */
QORM_API qorStatus qormSub_cv_32f(const float* pSrc, int32_t srcStride2, float val, float* pDst,
                                  int32_t dstStride2, int32_t len);
QORM_API qorStatus qormSub_cv_32f_P(const float* const* ppSrc, int32_t srcShift, float val,
                                    float* const* ppDst, int32_t dstShift, int32_t len);
QORM_API qorStatus qormSub_cv_64f(const double* pSrc, int32_t srcStride2, double val, double* pDst,
                                  int32_t dstStride2, int32_t len);
QORM_API qorStatus qormSub_cv_64f_P(const double* const* ppSrc, int32_t srcShift, double val,
                                    double* const* ppDst, int32_t dstShift, int32_t len);
/** @} */

/** @name Each vector of an array less one vector: dst_n(i) = x_n(i) - y(i)
 *  Checks, in this order: null pointer, size, strides, count; shifts come behind the count in `_P`
 *  and before it in `_L`.
 *  @{ */
QORM_API qorStatus qormSub_vav_32f(const float* pSrc1, int32_t src1Stride0, int32_t src1Stride2,
                                   const float* pSrc2, int32_t src2Stride2, float* pDst,
                                   int32_t dstStride0, int32_t dstStride2, int32_t len,
                                   int32_t count);
QORM_API qorStatus qormSub_vav_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride0, const float* const* ppSrc2,
                                     int32_t src2Shift, float* const* ppDst, int32_t dstShift,
                                     int32_t dstStride0, int32_t len, int32_t count);
QORM_API qorStatus qormSub_vav_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride2, const float* pSrc2, int32_t src2Stride2,
                                     float* const* ppDst, int32_t dstShift, int32_t dstStride2,
                                     int32_t len, int32_t count);
QORM_API qorStatus qormSub_vav_64f(const double* pSrc1, int32_t src1Stride0, int32_t src1Stride2,
                                   const double* pSrc2, int32_t src2Stride2, double* pDst,
                                   int32_t dstStride0, int32_t dstStride2, int32_t len,
                                   int32_t count);
QORM_API qorStatus qormSub_vav_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride0, const double* const* ppSrc2,
                                     int32_t src2Shift, double* const* ppDst, int32_t dstShift,
                                     int32_t dstStride0, int32_t len, int32_t count);
QORM_API qorStatus qormSub_vav_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                     int32_t src1Stride2, const double* pSrc2, int32_t src2Stride2,
                                     double* const* ppDst, int32_t dstShift, int32_t dstStride2,
                                     int32_t len, int32_t count);
/** @} */

/** @name One vector less each vector of an array: dst_n(i) = x(i) - y_n(i)
 *  Checks, in this order: null pointer, count, size, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormSub_vva_32f(const float* pSrc1, int32_t src1Stride2, const float* pSrc2,
                                   int32_t src2Stride0, int32_t src2Stride2, float* pDst,
                                   int32_t dstStride0, int32_t dstStride2, int32_t len,
                                   int32_t count);
QORM_API qorStatus qormSub_vva_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                     const float* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride0, float* const* ppDst, int32_t dstShift,
                                     int32_t dstStride0, int32_t len, int32_t count);
QORM_API qorStatus qormSub_vva_32f_L(const float* pSrc1, int32_t src1Stride2,
                                     const float* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride2, float* const* ppDst, int32_t dstShift,
                                     int32_t dstStride2, int32_t len, int32_t count);
QORM_API qorStatus qormSub_vva_64f(const double* pSrc1, int32_t src1Stride2, const double* pSrc2,
                                   int32_t src2Stride0, int32_t src2Stride2, double* pDst,
                                   int32_t dstStride0, int32_t dstStride2, int32_t len,
                                   int32_t count);
QORM_API qorStatus qormSub_vva_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride0, double* const* ppDst, int32_t dstShift,
                                     int32_t dstStride0, int32_t len, int32_t count);
QORM_API qorStatus qormSub_vva_64f_L(const double* pSrc1, int32_t src1Stride2,
                                     const double* const* ppSrc2, int32_t src2Shift,
                                     int32_t src2Stride2, double* const* ppDst, int32_t dstShift,
                                     int32_t dstStride2, int32_t len, int32_t count);
/** @} */

/** @name Each vector of an array less a constant: dst_n(i) = x_n(i) - val
 *  Checks, in this order: null pointer, count, size, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormSub_vac_32f(const float* pSrc, int32_t srcStride0, int32_t srcStride2,
                                   float val, float* pDst, int32_t dstStride0, int32_t dstStride2,
                                   int32_t len, int32_t count);
QORM_API qorStatus qormSub_vac_32f_P(const float* const* ppSrc, int32_t srcShift,
                                     int32_t srcStride0, float val, float* const* ppDst,
                                     int32_t dstShift, int32_t dstStride0, int32_t len,
                                     int32_t count);
QORM_API qorStatus qormSub_vac_32f_L(const float* const* ppSrc, int32_t srcShift,
                                     int32_t srcStride2, float val, float* const* ppDst,
                                     int32_t dstShift, int32_t dstStride2, int32_t len,
                                     int32_t count);
QORM_API qorStatus qormSub_vac_64f(const double* pSrc, int32_t srcStride0, int32_t srcStride2,
                                   double val, double* pDst, int32_t dstStride0, int32_t dstStride2,
                                   int32_t len, int32_t count);
QORM_API qorStatus qormSub_vac_64f_P(const double* const* ppSrc, int32_t srcShift,
                                     int32_t srcStride0, double val, double* const* ppDst,
                                     int32_t dstShift, int32_t dstStride0, int32_t len,
                                     int32_t count);
QORM_API qorStatus qormSub_vac_64f_L(const double* const* ppSrc, int32_t srcShift,
                                     int32_t srcStride2, double val, double* const* ppDst,
                                     int32_t dstShift, int32_t dstStride2, int32_t len,
                                     int32_t count);
/** @} */

/** @name A constant less each vector of an array: dst_n(i) = val - x_n(i)
 *  Among the arguments the vectors stand before the constant.
 *  Checks, in this order: null pointer, count, size, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormSub_cva_32f(const float* pSrc, int32_t srcStride0, int32_t srcStride2,
                                   float val, float* pDst, int32_t dstStride0, int32_t dstStride2,
                                   int32_t len, int32_t count);
QORM_API qorStatus qormSub_cva_32f_P(const float* const* ppSrc, int32_t srcShift,
                                     int32_t srcStride0, float val, float* const* ppDst,
                                     int32_t dstShift, int32_t dstStride0, int32_t len,
                                     int32_t count);
QORM_API qorStatus qormSub_cva_32f_L(const float* const* ppSrc, int32_t srcShift,
                                     int32_t srcStride2, float val, float* const* ppDst,
                                     int32_t dstShift, int32_t dstStride2, int32_t len,
                                     int32_t count);
QORM_API qorStatus qormSub_cva_64f(const double* pSrc, int32_t srcStride0, int32_t srcStride2,
                                   double val, double* pDst, int32_t dstStride0, int32_t dstStride2,
                                   int32_t len, int32_t count);
QORM_API qorStatus qormSub_cva_64f_P(const double* const* ppSrc, int32_t srcShift,
                                     int32_t srcStride0, double val, double* const* ppDst,
                                     int32_t dstShift, int32_t dstStride0, int32_t len,
                                     int32_t count);
QORM_API qorStatus qormSub_cva_64f_L(const double* const* ppSrc, int32_t srcShift,
                                     int32_t srcStride2, double val, double* const* ppDst,
                                     int32_t dstShift, int32_t dstStride2, int32_t len,
                                     int32_t count);
/** @} */

/** @name Difference of two arrays of vectors, object by object: dst_n(i) = x_n(i) - y_n(i)
 *  Checks, in this order: null pointer, count, size, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormSub_vava_32f(const float* pSrc1, int32_t src1Stride0, int32_t src1Stride2,
                                    const float* pSrc2, int32_t src2Stride0, int32_t src2Stride2,
                                    float* pDst, int32_t dstStride0, int32_t dstStride2,
                                    int32_t len, int32_t count);
QORM_API qorStatus qormSub_vava_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride0, const float* const* ppSrc2,
                                      int32_t src2Shift, int32_t src2Stride0, float* const* ppDst,
                                      int32_t dstShift, int32_t dstStride0, int32_t len,
                                      int32_t count);
QORM_API qorStatus qormSub_vava_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride2, const float* const* ppSrc2,
                                      int32_t src2Shift, int32_t src2Stride2, float* const* ppDst,
                                      int32_t dstShift, int32_t dstStride2, int32_t len,
                                      int32_t count);
QORM_API qorStatus qormSub_vava_64f(const double* pSrc1, int32_t src1Stride0, int32_t src1Stride2,
                                    const double* pSrc2, int32_t src2Stride0, int32_t src2Stride2,
                                    double* pDst, int32_t dstStride0, int32_t dstStride2,
                                    int32_t len, int32_t count);
QORM_API qorStatus qormSub_vava_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride0, const double* const* ppSrc2,
                                      int32_t src2Shift, int32_t src2Stride0, double* const* ppDst,
                                      int32_t dstShift, int32_t dstStride0, int32_t len,
                                      int32_t count);
QORM_API qorStatus qormSub_vava_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Stride2, const double* const* ppSrc2,
                                      int32_t src2Shift, int32_t src2Stride2, double* const* ppDst,
                                      int32_t dstShift, int32_t dstStride2, int32_t len,
                                      int32_t count);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
