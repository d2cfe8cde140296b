/** @defgroup LComb LComb: linear combinations of two vectors
 *  Linear combinations of two vectors: dst = x·val1 + y·val2.
 *
 *  ## Shapes
 *
 *  | Shape  | Formula                           |
 *  |--------|-----------------------------------|
 *  | `vv`   | dst(i) = x(i)·val1 + y(i)·val2    |
 *  | `vav`  | dstₙ(i) = xₙ(i)·val1 + y(i)·val2  |
 *  | `vava` | dstₙ(i) = xₙ(i)·val1 + yₙ(i)·val2 |
 *
 *  `pSrc1` is x, `pSrc2` is y; each is followed by its constant among the arguments. All vectors
 *  have `len` elements; the constants serve every object. Array forms exist in all three layouts,
 *  `vv` by strides and in `_P`.
 *
 *  ## Arithmetic
 *
 *  Three operations per element: both products are rounded, then the sum; they are never fused. No
 *  other bits are possible on any path. No value of a constant is treated apart: 0 times infinity
 *  is NaN.
 *
 *  ## In place
 *
 *  The destination may coincide with a vector. Other overlaps are defined only for `vv` by strides
 *  where every `stride2` is the element size: elements are done one by one, i ascending.
 *
 *  ## Cost
 *
 *  Two multiplications and one addition per element. A call spreads over threads where its work W
 *  reaches
 *
 *  | Shape  | W              | strides | `_P`  | `_L`                         |
 *  |--------|----------------|---------|-------|------------------------------|
 *  | `vav`  | `len`·(2c + 1) | 20001   | 20001 | 40001 / 20001, general 20001 |
 *  | `vava` | 3·`len`·c      | 20001   | 20001 | 40001 / 20001, general 20001 |
 *
 *  ## Statuses
 *
 *  None but that of a failed check is ever returned; NaN and infinity take their course.
 *
 *  @{
 */
#ifndef QORM_LCOMB_H
#define QORM_LCOMB_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Combination of two vectors: dst(i) = x(i)·val1 + y(i)·val2
 *  Checks, in this order: null pointer, size, strides (`_P`: shifts).
 *  @{ */
QORM_API qorStatus qormLComb_vv_32f(const float* pSrc1, int32_t src1Stride2, float val1,
                                    const float* pSrc2, int32_t src2Stride2, float val2,
                                    float* pDst, int32_t dstStride2, int32_t len);
QORM_API qorStatus qormLComb_vv_32f_P(const float* const* ppSrc1, int32_t src1Shift, float val1,
                                      const float* const* ppSrc2, int32_t src2Shift, float val2,
                                      float* const* ppDst, int32_t dstShift, int32_t len);
QORM_API qorStatus qormLComb_vv_64f(const double* pSrc1, int32_t src1Stride2, double val1,
                                    const double* pSrc2, int32_t src2Stride2, double val2,
                                    double* pDst, int32_t dstStride2, int32_t len);
QORM_API qorStatus qormLComb_vv_64f_P(const double* const* ppSrc1, int32_t src1Shift, double val1,
                                      const double* const* ppSrc2, int32_t src2Shift, double val2,
                                      double* const* ppDst, int32_t dstShift, int32_t len);
/** @} */

/** @name Combination of each vector of an array and one vector: dstₙ(i) = xₙ(i)·val1 + y(i)·val2
 *  Checks, in this order: null pointer, count, size, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormLComb_vav_32f(const float* pSrc1, int32_t src1Stride0, int32_t src1Stride2,
                                     float val1, const float* pSrc2, int32_t src2Stride2,
                                     float val2, float* pDst, int32_t dstStride0,
                                     int32_t dstStride2, int32_t len, int32_t count);
QORM_API qorStatus qormLComb_vav_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                       int32_t src1Stride0, float val1, const float* const* ppSrc2,
                                       int32_t src2Shift, float val2, float* const* ppDst,
                                       int32_t dstShift, int32_t dstStride0, int32_t len,
                                       int32_t count);
QORM_API qorStatus qormLComb_vav_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                       int32_t src1Stride2, float val1, const float* pSrc2,
                                       int32_t src2Stride2, float val2, float* const* ppDst,
                                       int32_t dstShift, int32_t dstStride2, int32_t len,
                                       int32_t count);
QORM_API qorStatus qormLComb_vav_64f(const double* pSrc1, int32_t src1Stride0, int32_t src1Stride2,
                                     double val1, const double* pSrc2, int32_t src2Stride2,
                                     double val2, double* pDst, int32_t dstStride0,
                                     int32_t dstStride2, int32_t len, int32_t count);
QORM_API qorStatus qormLComb_vav_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                       int32_t src1Stride0, double val1,
                                       const double* const* ppSrc2, int32_t src2Shift, double val2,
                                       double* const* ppDst, int32_t dstShift, int32_t dstStride0,
                                       int32_t len, int32_t count);
QORM_API qorStatus qormLComb_vav_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                       int32_t src1Stride2, double val1, const double* pSrc2,
                                       int32_t src2Stride2, double val2, double* const* ppDst,
                                       int32_t dstShift, int32_t dstStride2, int32_t len,
                                       int32_t count);
/** @} */

/** @name Combination of two arrays, object by object: dstₙ(i) = xₙ(i)·val1 + yₙ(i)·val2
 *  Checks, in this order: null pointer, count, size, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormLComb_vava_32f(const float* pSrc1, int32_t src1Stride0, int32_t src1Stride2,
                                      float val1, const float* pSrc2, int32_t src2Stride0,
                                      int32_t src2Stride2, float val2, float* pDst,
                                      int32_t dstStride0, int32_t dstStride2, int32_t len,
                                      int32_t count);
QORM_API qorStatus qormLComb_vava_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                        int32_t src1Stride0, float val1, const float* const* ppSrc2,
                                        int32_t src2Shift, int32_t src2Stride0, float val2,
                                        float* const* ppDst, int32_t dstShift, int32_t dstStride0,
                                        int32_t len, int32_t count);
QORM_API qorStatus qormLComb_vava_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                        int32_t src1Stride2, float val1, const float* const* ppSrc2,
                                        int32_t src2Shift, int32_t src2Stride2, float val2,
                                        float* const* ppDst, int32_t dstShift, int32_t dstStride2,
                                        int32_t len, int32_t count);
QORM_API qorStatus qormLComb_vava_64f(const double* pSrc1, int32_t src1Stride0, int32_t src1Stride2,
                                      double val1, const double* pSrc2, int32_t src2Stride0,
                                      int32_t src2Stride2, double val2, double* pDst,
                                      int32_t dstStride0, int32_t dstStride2, int32_t len,
                                      int32_t count);
QORM_API qorStatus qormLComb_vava_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                        int32_t src1Stride0, double val1,
                                        const double* const* ppSrc2, int32_t src2Shift,
                                        int32_t src2Stride0, double val2, double* const* ppDst,
                                        int32_t dstShift, int32_t dstStride0, int32_t len,
                                        int32_t count);
QORM_API qorStatus qormLComb_vava_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                        int32_t src1Stride2, double val1,
                                        const double* const* ppSrc2, int32_t src2Shift,
                                        int32_t src2Stride2, double val2, double* const* ppDst,
                                        int32_t dstShift, int32_t dstStride2, int32_t len,
                                        int32_t count);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
