/** @defgroup Saxpy Saxpy: a scaled vector plus a vector
 *  Sums of a vector times a constant and another vector: dst = x·val + y.
 *
 *  ## Shapes
 *
 *  | Shape  | Formula                     |
 *  |--------|-----------------------------|
 *  | `vv`   | dst(i) = x(i)·val + y(i)    |
 *  | `vav`  | dstₙ(i) = xₙ(i)·val + y(i)  |
 *  | `vva`  | dstₙ(i) = x(i)·val + yₙ(i)  |
 *  | `vava` | dstₙ(i) = xₙ(i)·val + yₙ(i) |
 *
 *  `pSrc1` is x, `val` stands behind it, `pSrc2` is y. All vectors have `len` elements; `val`
 *  serves every object. Array forms exist in all three layouts, `vv` by strides and in `_P`. The
 *  operation is the saxpy of Golub and Van Loan, "Matrix Computations", section 1.1, with a
 *  destination of its own.
 *
 *  ## Arithmetic
 *
 *  Two operations per element: the product is rounded, then the sum; they are never fused. No other
 *  bits are possible on any path. No value of `val` is treated apart: 0 times infinity is NaN.
 *
 *  ## In place
 *
 *  The destination may coincide with a vector. Other overlaps are defined only for `vv` by strides
 *  where every `stride2` is the element size, at lengths other than 3 to 6: elements are done one
 *  by one, i ascending.
 *
 *  ## Cost
 *
 *  One multiplication and one addition per element. A call spreads over threads where its work W
 *  reaches 40001, in every layout:
 *
 *  | Shapes      | W              |
 *  |-------------|----------------|
 *  | `vav` `vva` | `len`·(2c + 1) |
 *  | `vava`      | 3·`len`·c      |
 *
 *  ## Statuses
 *
 *  None but that of a failed check is ever returned; NaN and infinity take their course.
 *
 *  @{
 */
#ifndef QORM_SAXPY_H
#define QORM_SAXPY_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name One vector times a constant, plus one vector: dst(i) = x(i)·val + y(i)
 *  Checks, in this order: null pointer, size, strides (`_P`: shifts).
 *  @{ */
QORM_API qorStatus qormSaxpy_vv_32f(const float* pSrc1, int32_t src1Stride2, float val,
                                    const float* pSrc2, int32_t src2Stride2, float* pDst,
                                    int32_t dstStride2, int32_t len);
QORM_API qorStatus qormSaxpy_vv_32f_P(const float* const* ppSrc1, int32_t src1Shift, float val,
                                      const float* const* ppSrc2, int32_t src2Shift,
                                      float* const* ppDst, int32_t dstShift, int32_t len);
QORM_API qorStatus qormSaxpy_vv_64f(const double* pSrc1, int32_t src1Stride2, double val,
                                    const double* pSrc2, int32_t src2Stride2, double* pDst,
                                    int32_t dstStride2, int32_t len);
QORM_API qorStatus qormSaxpy_vv_64f_P(const double* const* ppSrc1, int32_t src1Shift, double val,
                                      const double* const* ppSrc2, int32_t src2Shift,
                                      double* const* ppDst, int32_t dstShift, int32_t len);
/** @} */

/** @name Each vector of an array times a constant, plus one vector: dstₙ(i) = xₙ(i)·val + y(i)
 *  Checks, in this order: null pointer, count, size, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormSaxpy_vav_32f(const float* pSrc1, int32_t src1Stride0, int32_t src1Stride2,
                                     float val, const float* pSrc2, int32_t src2Stride2,
                                     float* pDst, int32_t dstStride0, int32_t dstStride2,
                                     int32_t len, int32_t count);
QORM_API qorStatus qormSaxpy_vav_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                       int32_t src1Stride0, float val, const float* const* ppSrc2,
                                       int32_t src2Shift, float* const* ppDst, int32_t dstShift,
                                       int32_t dstStride0, int32_t len, int32_t count);
QORM_API qorStatus qormSaxpy_vav_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                       int32_t src1Stride2, float val, const float* pSrc2,
                                       int32_t src2Stride2, float* const* ppDst, int32_t dstShift,
                                       int32_t dstStride2, int32_t len, int32_t count);
QORM_API qorStatus qormSaxpy_vav_64f(const double* pSrc1, int32_t src1Stride0, int32_t src1Stride2,
                                     double val, const double* pSrc2, int32_t src2Stride2,
                                     double* pDst, int32_t dstStride0, int32_t dstStride2,
                                     int32_t len, int32_t count);
QORM_API qorStatus qormSaxpy_vav_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                       int32_t src1Stride0, double val, const double* const* ppSrc2,
                                       int32_t src2Shift, double* const* ppDst, int32_t dstShift,
                                       int32_t dstStride0, int32_t len, int32_t count);
QORM_API qorStatus qormSaxpy_vav_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                       int32_t src1Stride2, double val, const double* pSrc2,
                                       int32_t src2Stride2, double* const* ppDst, int32_t dstShift,
                                       int32_t dstStride2, int32_t len, int32_t count);
/** @} */

/** @name One vector times a constant, plus each vector of an array: dstₙ(i) = x(i)·val + yₙ(i)
 *  Checks, in this order: null pointer, count, size, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormSaxpy_vva_32f(const float* pSrc1, int32_t src1Stride2, float val,
                                     const float* pSrc2, int32_t src2Stride0, int32_t src2Stride2,
                                     float* pDst, int32_t dstStride0, int32_t dstStride2,
                                     int32_t len, int32_t count);
QORM_API qorStatus qormSaxpy_vva_32f_P(const float* const* ppSrc1, int32_t src1Shift, float val,
                                       const float* const* ppSrc2, int32_t src2Shift,
                                       int32_t src2Stride0, float* const* ppDst, int32_t dstShift,
                                       int32_t dstStride0, int32_t len, int32_t count);
QORM_API qorStatus qormSaxpy_vva_32f_L(const float* pSrc1, int32_t src1Stride2, float val,
                                       const float* const* ppSrc2, int32_t src2Shift,
                                       int32_t src2Stride2, float* const* ppDst, int32_t dstShift,
                                       int32_t dstStride2, int32_t len, int32_t count);
QORM_API qorStatus qormSaxpy_vva_64f(const double* pSrc1, int32_t src1Stride2, double val,
                                     const double* pSrc2, int32_t src2Stride0, int32_t src2Stride2,
                                     double* pDst, int32_t dstStride0, int32_t dstStride2,
                                     int32_t len, int32_t count);
QORM_API qorStatus qormSaxpy_vva_64f_P(const double* const* ppSrc1, int32_t src1Shift, double val,
                                       const double* const* ppSrc2, int32_t src2Shift,
                                       int32_t src2Stride0, double* const* ppDst, int32_t dstShift,
                                       int32_t dstStride0, int32_t len, int32_t count);
QORM_API qorStatus qormSaxpy_vva_64f_L(const double* pSrc1, int32_t src1Stride2, double val,
                                       const double* const* ppSrc2, int32_t src2Shift,
                                       int32_t src2Stride2, double* const* ppDst, int32_t dstShift,
                                       int32_t dstStride2, int32_t len, int32_t count);
/** @} */

/** @name Each vector of an array times a constant, plus its partner: dstₙ(i) = xₙ(i)·val + yₙ(i)
 *  Checks, in this order: null pointer, count, size, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormSaxpy_vava_32f(const float* pSrc1, int32_t src1Stride0, int32_t src1Stride2,
                                      float val, const float* pSrc2, int32_t src2Stride0,
                                      int32_t src2Stride2, float* pDst, int32_t dstStride0,
                                      int32_t dstStride2, int32_t len, int32_t count);
QORM_API qorStatus qormSaxpy_vava_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                        int32_t src1Stride0, float val, const float* const* ppSrc2,
                                        int32_t src2Shift, int32_t src2Stride0, float* const* ppDst,
                                        int32_t dstShift, int32_t dstStride0, int32_t len,
                                        int32_t count);
QORM_API qorStatus qormSaxpy_vava_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                        int32_t src1Stride2, float val, const float* const* ppSrc2,
                                        int32_t src2Shift, int32_t src2Stride2, float* const* ppDst,
                                        int32_t dstShift, int32_t dstStride2, int32_t len,
                                        int32_t count);
QORM_API qorStatus qormSaxpy_vava_64f(const double* pSrc1, int32_t src1Stride0, int32_t src1Stride2,
                                      double val, const double* pSrc2, int32_t src2Stride0,
                                      int32_t src2Stride2, double* pDst, int32_t dstStride0,
                                      int32_t dstStride2, int32_t len, int32_t count);
QORM_API qorStatus qormSaxpy_vava_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                        int32_t src1Stride0, double val,
                                        const double* const* ppSrc2, int32_t src2Shift,
                                        int32_t src2Stride0, double* const* ppDst, int32_t dstShift,
                                        int32_t dstStride0, int32_t len, int32_t count);
QORM_API qorStatus qormSaxpy_vava_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                        int32_t src1Stride2, double val,
                                        const double* const* ppSrc2, int32_t src2Shift,
                                        int32_t src2Stride2, double* const* ppDst, int32_t dstShift,
                                        int32_t dstStride2, int32_t len, int32_t count);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
