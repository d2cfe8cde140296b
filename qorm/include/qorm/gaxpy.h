/** @defgroup Gaxpy Gaxpy: a product plus a vector
 *  Sums of a matrix-vector product and a vector: dst = A·x + y.
 *
 *  ## Shapes
 *
 *  | Shape | Formula          | Layouts             |
 *  |-------|------------------|---------------------|
 *  | `mv`  | dst = A·x + y    | strides, `_P`       |
 *  | `mva` | dstₙ = A·xₙ + yₙ | strides, `_P`, `_L` |
 *
 *  | Argument | Operand | Size                                                   |
 *  |----------|---------|--------------------------------------------------------|
 *  | `pSrc1`  | A       | `src1Width` columns, `src1Height` rows, read as stored |
 *  | `pSrc2`  | x       | `src2Len` elements, which has to be `src1Width`        |
 *  | `pSrc3`  | y       | `src3Len` elements, which has to be `src1Height`       |
 *  | `pDst`   | dst     | `src3Len` elements                                     |
 *
 *  In `mva` x, y and the destination are arrays of `count` vectors, and A serves every object. No
 *  stride may be 0: to add one y to every product, use `_L` with a table that repeats its pointer.
 *  The operation is the gaxpy of Golub and Van Loan, "Matrix Computations", section 1.1, with a
 *  destination of its own.
 *
 *  ## Arithmetic
 *
 *      dst(i) = (A(i,0)·x(0) + A(i,1)·x(1) + …) + y(i)
 *
 *  with the products added from left to right and y(i) last, every product and every sum rounded.
 *  Where A is 3x3, 4x4, 5x5 or 6x6 the sum starts with the first product, at all other sizes with
 *  +0; that shows in the sign of a zero alone. The bits do not depend on the alignment either.
 *
 *  ## In place
 *
 *  **Where A is 3x3, 4x4, 5x5 or 6x6, and only there**, the destination may coincide, object for
 *  object, with y or with x. At all other sizes it must not overlap an operand: elements are
 *  written before y and the rest of x are read, and with `pDst` equal to `pSrc3` y is lost and the
 *  result is 2·A·x. That is not tested. In `mva` the destination must never overlap A.
 *
 *  ## Cost
 *
 *  A multiplication for each element of A. A call of `mva` spreads over threads from smaller arrays
 *  on than other products do: where its work W = (`src2Len` + 2·`src3Len`)·c reaches 5001, in every
 *  layout.
 *
 *  ## Statuses
 *
 *  None but that of a failed check is ever returned; NaN and infinity take their course.
 *
 *  ## Example
 *
 *  A step of a thousand linear systems, each state with an input of its own, in place:
 *
 *      double f[4][4];
 *      struct System { double state[4], input[4]; } s[1000];
 *      const int32_t step = sizeof(struct System);
 *      fill(f, s);
 *      qormGaxpy_mva_64f(f[0], 32, 8, 4, 4, s->state, step, 8, 4, s->input, step, 8, 4,
 *                        s->state, step, 8, 1000);
 *
 *  @{
 */
#ifndef QORM_GAXPY_H
#define QORM_GAXPY_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name One matrix with one x and y: dst = A·x + y
 *  Checks, in this order: null pointer, sizes, size match, strides (`_P`: shifts).
 *  @{ */
QORM_API qorStatus qormGaxpy_mv_32f(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                    int32_t src1Width, int32_t src1Height, const float* pSrc2,
                                    int32_t src2Stride2, int32_t src2Len, const float* pSrc3,
                                    int32_t src3Stride2, int32_t src3Len, float* pDst,
                                    int32_t dstStride2);
QORM_API qorStatus qormGaxpy_mv_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Width, int32_t src1Height,
                                      const float* const* ppSrc2, int32_t src2Shift,
                                      int32_t src2Len, const float* const* ppSrc3,
                                      int32_t src3Shift, int32_t src3Len, float* const* ppDst,
                                      int32_t dstShift);
QORM_API qorStatus qormGaxpy_mv_64f(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                    int32_t src1Width, int32_t src1Height, const double* pSrc2,
                                    int32_t src2Stride2, int32_t src2Len, const double* pSrc3,
                                    int32_t src3Stride2, int32_t src3Len, double* pDst,
                                    int32_t dstStride2);
QORM_API qorStatus qormGaxpy_mv_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                      int32_t src1Width, int32_t src1Height,
                                      const double* const* ppSrc2, int32_t src2Shift,
                                      int32_t src2Len, const double* const* ppSrc3,
                                      int32_t src3Shift, int32_t src3Len, double* const* ppDst,
                                      int32_t dstShift);
/** @} */

/** @name One matrix with arrays of vectors x and y: dstₙ = A·xₙ + yₙ
 *  In `_L` forms the matrix is in the layout without suffix, the vectors are in lists.
 *  Checks, in this order: null pointer, count, sizes, size match, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormGaxpy_mva_32f(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                     int32_t src1Width, int32_t src1Height, const float* pSrc2,
                                     int32_t src2Stride0, int32_t src2Stride2, int32_t src2Len,
                                     const float* pSrc3, int32_t src3Stride0, int32_t src3Stride2,
                                     int32_t src3Len, float* pDst, int32_t dstStride0,
                                     int32_t dstStride2, int32_t count);
QORM_API qorStatus qormGaxpy_mva_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                       int32_t src1Width, int32_t src1Height,
                                       const float* const* ppSrc2, int32_t src2Shift,
                                       int32_t src2Stride0, int32_t src2Len,
                                       const float* const* ppSrc3, int32_t src3Shift,
                                       int32_t src3Stride0, int32_t src3Len, float* const* ppDst,
                                       int32_t dstShift, int32_t dstStride0, int32_t count);
QORM_API qorStatus qormGaxpy_mva_32f_L(const float* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                       int32_t src1Width, int32_t src1Height,
                                       const float* const* ppSrc2, int32_t src2Shift,
                                       int32_t src2Stride2, int32_t src2Len,
                                       const float* const* ppSrc3, int32_t src3Shift,
                                       int32_t src3Stride2, int32_t src3Len, float* const* ppDst,
                                       int32_t dstShift, int32_t dstStride2, int32_t count);
QORM_API qorStatus qormGaxpy_mva_64f(const double* pSrc1, int32_t src1Stride1, int32_t src1Stride2,
                                     int32_t src1Width, int32_t src1Height, const double* pSrc2,
                                     int32_t src2Stride0, int32_t src2Stride2, int32_t src2Len,
                                     const double* pSrc3, int32_t src3Stride0, int32_t src3Stride2,
                                     int32_t src3Len, double* pDst, int32_t dstStride0,
                                     int32_t dstStride2, int32_t count);
QORM_API qorStatus qormGaxpy_mva_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                       int32_t src1Width, int32_t src1Height,
                                       const double* const* ppSrc2, int32_t src2Shift,
                                       int32_t src2Stride0, int32_t src2Len,
                                       const double* const* ppSrc3, int32_t src3Shift,
                                       int32_t src3Stride0, int32_t src3Len, double* const* ppDst,
                                       int32_t dstShift, int32_t dstStride0, int32_t count);
QORM_API qorStatus qormGaxpy_mva_64f_L(const double* pSrc1, int32_t src1Stride1,
                                       int32_t src1Stride2, int32_t src1Width, int32_t src1Height,
                                       const double* const* ppSrc2, int32_t src2Shift,
                                       int32_t src2Stride2, int32_t src2Len,
                                       const double* const* ppSrc3, int32_t src3Shift,
                                       int32_t src3Stride2, int32_t src3Len, double* const* ppDst,
                                       int32_t dstShift, int32_t dstStride2, int32_t count);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
