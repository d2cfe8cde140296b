/** @defgroup CrossProduct CrossProduct: vector products
 *  Vector products of vectors of three elements: dst = a × b.
 *
 *  ## Shapes
 *
 *  | Shape  | Formula        | Layouts             |
 *  |--------|----------------|---------------------|
 *  | `vv`   | dst = a × b    | strides, `_P`       |
 *  | `vav`  | dstₙ = aₙ × b  | strides, `_P`, `_L` |
 *  | `vva`  | dstₙ = a × bₙ  | strides, `_P`, `_L` |
 *  | `vava` | dstₙ = aₙ × bₙ | strides, `_P`, `_L` |
 *
 *  `pSrc1` is a, `pSrc2` is b. All vectors have three elements; no argument tells that.
 *
 *  ## Arithmetic
 *
 *      dst(0) = a(1)·b(2) - a(2)·b(1)
 *      dst(1) = a(2)·b(0) - a(0)·b(2)
 *      dst(2) = a(0)·b(1) - a(1)·b(0)
 *
 *  Every product and every difference is rounded; they are never fused. No other bits are possible
 *  on any path. An element has an error of a few roundings of its products: where these cancel, as
 *  between nearly parallel vectors, few digits may be right.
 *
 *  ## In place
 *
 *  In `vava` the destination may coincide with an operand, object for object. In the other shapes
 *  it must not overlap an operand: `vv` writes an element before it reads what the next ones need.
 *  That is not tested.
 *
 *  ## Cost
 *
 *  Six multiplications and three subtractions per object. A call spreads over threads where its
 *  work W reaches
 *
 *  | Shapes      | W      | strides | `_P`  | `_L`          |
 *  |-------------|--------|---------|-------|---------------|
 *  | `vav` `vva` | 2c + 1 | 20001   | 20001 | 40001 / 20001 |
 *  | `vava`      | 3c     | 20001   | 20001 | 40001 / 20001 |
 *
 *  #qormCrossProduct_vva_64f_P never spreads.
 *
 *  ## Statuses
 *
 *  None but that of a failed check is ever returned; NaN and infinity take their course.
 *
 *  ## Example
 *
 *  Normals of a thousand triangles from two edges each, and their lengths, which are twice the
 *  areas:
 *
 *      struct Triangle { float u[3], v[3], normal[3]; } t[1000];
 *      float lengths[1000];
 *      const int32_t step = sizeof(struct Triangle);
 *      fill(t);
 *      qormCrossProduct_vava_32f(t->u, step, 4, t->v, step, 4, t->normal, step, 4, 1000);
 *      qormL2Norm_va_32f(t->normal, step, 4, lengths, 3, 1000);
 *
 *  @{
 */
#ifndef QORM_CROSSPRODUCT_H
#define QORM_CROSSPRODUCT_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Product of two vectors: dst = a × b
 *  Checks, in this order: null pointer, strides (`_P`: shifts).
 *  @{ */
QORM_API qorStatus qormCrossProduct_vv_32f(const float* pSrc1, int32_t src1Stride2,
                                           const float* pSrc2, int32_t src2Stride2, float* pDst,
                                           int32_t dstStride2);
QORM_API qorStatus qormCrossProduct_vv_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                             const float* const* ppSrc2, int32_t src2Shift,
                                             float* const* ppDst, int32_t dstShift);
QORM_API qorStatus qormCrossProduct_vv_64f(const double* pSrc1, int32_t src1Stride2,
                                           const double* pSrc2, int32_t src2Stride2, double* pDst,
                                           int32_t dstStride2);
QORM_API qorStatus qormCrossProduct_vv_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                             const double* const* ppSrc2, int32_t src2Shift,
                                             double* const* ppDst, int32_t dstShift);
/** @} */

/** @name Product of each vector of an array and one vector: dstₙ = aₙ × b
 *  Checks, in this order: null pointer, strides, count; shifts come behind the count in `_P` and
 *  before it in `_L`.
 *  @{ */
QORM_API qorStatus qormCrossProduct_vav_32f(const float* pSrc1, int32_t src1Stride0,
                                            int32_t src1Stride2, const float* pSrc2,
                                            int32_t src2Stride2, float* pDst, int32_t dstStride0,
                                            int32_t dstStride2, int32_t count);
QORM_API qorStatus qormCrossProduct_vav_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                              int32_t src1Stride0, const float* const* ppSrc2,
                                              int32_t src2Shift, float* const* ppDst,
                                              int32_t dstShift, int32_t dstStride0, int32_t count);
QORM_API qorStatus qormCrossProduct_vav_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                              int32_t src1Stride2, const float* pSrc2,
                                              int32_t src2Stride2, float* const* ppDst,
                                              int32_t dstShift, int32_t dstStride2, int32_t count);
QORM_API qorStatus qormCrossProduct_vav_64f(const double* pSrc1, int32_t src1Stride0,
                                            int32_t src1Stride2, const double* pSrc2,
                                            int32_t src2Stride2, double* pDst, int32_t dstStride0,
                                            int32_t dstStride2, int32_t count);
QORM_API qorStatus qormCrossProduct_vav_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                              int32_t src1Stride0, const double* const* ppSrc2,
                                              int32_t src2Shift, double* const* ppDst,
                                              int32_t dstShift, int32_t dstStride0, int32_t count);
QORM_API qorStatus qormCrossProduct_vav_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                              int32_t src1Stride2, const double* pSrc2,
                                              int32_t src2Stride2, double* const* ppDst,
                                              int32_t dstShift, int32_t dstStride2, int32_t count);
/** @} */

/** @name Product of one vector and each vector of an array: dstₙ = a × bₙ
 *  Checks, in this order: null pointer, count, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormCrossProduct_vva_32f(const float* pSrc1, int32_t src1Stride2,
                                            const float* pSrc2, int32_t src2Stride0,
                                            int32_t src2Stride2, float* pDst, int32_t dstStride0,
                                            int32_t dstStride2, int32_t count);
QORM_API qorStatus qormCrossProduct_vva_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                              const float* const* ppSrc2, int32_t src2Shift,
                                              int32_t src2Stride0, float* const* ppDst,
                                              int32_t dstShift, int32_t dstStride0, int32_t count);
QORM_API qorStatus qormCrossProduct_vva_32f_L(const float* pSrc1, int32_t src1Stride2,
                                              const float* const* ppSrc2, int32_t src2Shift,
                                              int32_t src2Stride2, float* const* ppDst,
                                              int32_t dstShift, int32_t dstStride2, int32_t count);
QORM_API qorStatus qormCrossProduct_vva_64f(const double* pSrc1, int32_t src1Stride2,
                                            const double* pSrc2, int32_t src2Stride0,
                                            int32_t src2Stride2, double* pDst, int32_t dstStride0,
                                            int32_t dstStride2, int32_t count);
QORM_API qorStatus qormCrossProduct_vva_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                              const double* const* ppSrc2, int32_t src2Shift,
                                              int32_t src2Stride0, double* const* ppDst,
                                              int32_t dstShift, int32_t dstStride0, int32_t count);
QORM_API qorStatus qormCrossProduct_vva_64f_L(const double* pSrc1, int32_t src1Stride2,
                                              const double* const* ppSrc2, int32_t src2Shift,
                                              int32_t src2Stride2, double* const* ppDst,
                                              int32_t dstShift, int32_t dstStride2, int32_t count);
/** @} */

/** @name Product of two arrays, object by object: dstₙ = aₙ × bₙ
 *  Checks, in this order: null pointer, count, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormCrossProduct_vava_32f(const float* pSrc1, int32_t src1Stride0,
                                             int32_t src1Stride2, const float* pSrc2,
                                             int32_t src2Stride0, int32_t src2Stride2, float* pDst,
                                             int32_t dstStride0, int32_t dstStride2, int32_t count);
QORM_API qorStatus qormCrossProduct_vava_32f_P(const float* const* ppSrc1, int32_t src1Shift,
                                               int32_t src1Stride0, const float* const* ppSrc2,
                                               int32_t src2Shift, int32_t src2Stride0,
                                               float* const* ppDst, int32_t dstShift,
                                               int32_t dstStride0, int32_t count);
QORM_API qorStatus qormCrossProduct_vava_32f_L(const float* const* ppSrc1, int32_t src1Shift,
                                               int32_t src1Stride2, const float* const* ppSrc2,
                                               int32_t src2Shift, int32_t src2Stride2,
                                               float* const* ppDst, int32_t dstShift,
                                               int32_t dstStride2, int32_t count);
QORM_API qorStatus qormCrossProduct_vava_64f(const double* pSrc1, int32_t src1Stride0,
                                             int32_t src1Stride2, const double* pSrc2,
                                             int32_t src2Stride0, int32_t src2Stride2, double* pDst,
                                             int32_t dstStride0, int32_t dstStride2, int32_t count);
QORM_API qorStatus qormCrossProduct_vava_64f_P(const double* const* ppSrc1, int32_t src1Shift,
                                               int32_t src1Stride0, const double* const* ppSrc2,
                                               int32_t src2Shift, int32_t src2Stride0,
                                               double* const* ppDst, int32_t dstShift,
                                               int32_t dstStride0, int32_t count);
QORM_API qorStatus qormCrossProduct_vava_64f_L(const double* const* ppSrc1, int32_t src1Shift,
                                               int32_t src1Stride2, const double* const* ppSrc2,
                                               int32_t src2Shift, int32_t src2Stride2,
                                               double* const* ppDst, int32_t dstShift,
                                               int32_t dstStride2, int32_t count);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
