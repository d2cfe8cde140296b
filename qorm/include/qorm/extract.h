/** @defgroup Extract Extract: into a plain array
 *  Elements of vectors and matrices in any layout into a plain array without gaps.
 *
 *  ## Shapes
 *
 *  | Shape | Formula                                      | Layouts             |
 *  |-------|----------------------------------------------|---------------------|
 *  | `v`   | `pDst[i]` = src(i)                           | strides, `_P`       |
 *  | `va`  | `pDst[n*len + i]` = srcₙ(i)                  | strides, `_P`, `_L` |
 *  | `m`   | `pDst[i*width + j]` = src(i,j)               | strides, `_P`       |
 *  | `t`   | `pDst[i*width + j]` = src(j,i)               | strides, `_P`       |
 *  | `ma`  | `pDst[(n*height + i)*width + j]` = srcₙ(i,j) | strides, `_P`, `_L` |
 *  | `ta`  | `pDst[(n*height + i)*width + j]` = srcₙ(j,i) | strides, `_P`, `_L` |
 *
 *  `pDst` is a plain array in every layout and takes no strides. `width` and `height` are **those
 *  of the result**: a matrix read transposed (`t`, `ta`) lies in memory with `width` rows and
 *  `height` columns, and its table of `_P` has element (j,i) at entry `j*height + i`.
 *
 *  The size comes before the count among the checks, and in `_P` and `_L` forms the shift before
 *  the strides. `_P` forms of `m` and `t`, and #qormExtract_v_64f_P, test the size even before the
 *  pointers. Unlike in @ref Copy and @ref LoadIdentity, `srcStride0` is tested at every `count`.
 *
 *  ## Bits
 *
 *  Elements are moved, never computed with: every bit pattern passes unchanged, NaN included.
 *
 *  ## In place
 *
 *  Elements are moved one by one in the order of the destination, but in `_P` forms of arrays
 *  position by position, each for all objects. An element that a move has overwritten is read with
 *  its new value by the moves behind it. So `v`, `va`, `m` and `ma` can close gaps between
 *  elements, rows and objects in place, but not in `_P` forms of arrays. In `_P` forms of `t` and
 *  `ta` a destination that overlaps the source is not defined.
 *
 *  ## Cost
 *
 *  A load and a store per element: the time is that of the memory that is touched. A call never
 *  spreads over threads, however large the arrays are.
 *
 *  ## Statuses
 *
 *  None but that of a failed check is ever returned.
 *
 *  @{
 */
#ifndef QORM_EXTRACT_H
#define QORM_EXTRACT_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Elements of one vector
 *  Checks, in this order: null pointer, size, stride (`_P`: shift); in #qormExtract_v_64f_P size,
 *  null pointer, shift.
 *  @{ */
QORM_API qorStatus qormExtract_v_32f(const float* pSrc, int32_t srcStride2, float* pDst,
                                     int32_t len);
QORM_API qorStatus qormExtract_v_32f_P(const float* const* ppSrc, int32_t srcShift, float* pDst,
                                       int32_t len);
QORM_API qorStatus qormExtract_v_64f(const double* pSrc, int32_t srcStride2, double* pDst,
                                     int32_t len);
QORM_API qorStatus qormExtract_v_64f_P(const double* const* ppSrc, int32_t srcShift, double* pDst,
                                       int32_t len);
/** @} */

/** @name Elements of an array of vectors
 *  Checks, in this order: null pointer, size, count, shift (`_P`, `_L`), strides.
 *  @{ */
QORM_API qorStatus qormExtract_va_32f(const float* pSrc, int32_t srcStride0, int32_t srcStride2,
                                      float* pDst, int32_t len, int32_t count);
QORM_API qorStatus qormExtract_va_32f_P(const float* const* ppSrc, int32_t srcShift,
                                        int32_t srcStride0, float* pDst, int32_t len,
                                        int32_t count);
QORM_API qorStatus qormExtract_va_32f_L(const float* const* ppSrc, int32_t srcShift,
                                        int32_t srcStride2, float* pDst, int32_t len,
                                        int32_t count);
QORM_API qorStatus qormExtract_va_64f(const double* pSrc, int32_t srcStride0, int32_t srcStride2,
                                      double* pDst, int32_t len, int32_t count);
QORM_API qorStatus qormExtract_va_64f_P(const double* const* ppSrc, int32_t srcShift,
                                        int32_t srcStride0, double* pDst, int32_t len,
                                        int32_t count);
QORM_API qorStatus qormExtract_va_64f_L(const double* const* ppSrc, int32_t srcShift,
                                        int32_t srcStride2, double* pDst, int32_t len,
                                        int32_t count);
/** @} */

/** @name Elements of one matrix
 *  Checks, in this order: null pointer, size, strides; in `_P` forms size, null pointer, shift.
 *  @{ */
QORM_API qorStatus qormExtract_m_32f(const float* pSrc, int32_t srcStride1, int32_t srcStride2,
                                     float* pDst, int32_t width, int32_t height);
QORM_API qorStatus qormExtract_m_32f_P(const float* const* ppSrc, int32_t srcShift, float* pDst,
                                       int32_t width, int32_t height);
QORM_API qorStatus qormExtract_m_64f(const double* pSrc, int32_t srcStride1, int32_t srcStride2,
                                     double* pDst, int32_t width, int32_t height);
QORM_API qorStatus qormExtract_m_64f_P(const double* const* ppSrc, int32_t srcShift, double* pDst,
                                       int32_t width, int32_t height);
/** @} */

/** @name Elements of one matrix read transposed
 *  Checks, in this order: null pointer, size, strides; in `_P` forms size, null pointer, shift.
 *  @{ */
QORM_API qorStatus qormExtract_t_32f(const float* pSrc, int32_t srcStride1, int32_t srcStride2,
                                     float* pDst, int32_t width, int32_t height);
QORM_API qorStatus qormExtract_t_32f_P(const float* const* ppSrc, int32_t srcShift, float* pDst,
                                       int32_t width, int32_t height);
QORM_API qorStatus qormExtract_t_64f(const double* pSrc, int32_t srcStride1, int32_t srcStride2,
                                     double* pDst, int32_t width, int32_t height);
QORM_API qorStatus qormExtract_t_64f_P(const double* const* ppSrc, int32_t srcShift, double* pDst,
                                       int32_t width, int32_t height);
/** @} */

/** @name Elements of an array of matrices
 *  Checks, in this order: null pointer, size, count, shift (`_P`, `_L`), strides.
 *  @{ */
QORM_API qorStatus qormExtract_ma_32f(const float* pSrc, int32_t srcStride0, int32_t srcStride1,
                                      int32_t srcStride2, float* pDst, int32_t width,
                                      int32_t height, int32_t count);
QORM_API qorStatus qormExtract_ma_32f_P(const float* const* ppSrc, int32_t srcShift,
                                        int32_t srcStride0, float* pDst, int32_t width,
                                        int32_t height, int32_t count);
QORM_API qorStatus qormExtract_ma_32f_L(const float* const* ppSrc, int32_t srcShift,
                                        int32_t srcStride1, int32_t srcStride2, float* pDst,
                                        int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormExtract_ma_64f(const double* pSrc, int32_t srcStride0, int32_t srcStride1,
                                      int32_t srcStride2, double* pDst, int32_t width,
                                      int32_t height, int32_t count);
QORM_API qorStatus qormExtract_ma_64f_P(const double* const* ppSrc, int32_t srcShift,
                                        int32_t srcStride0, double* pDst, int32_t width,
                                        int32_t height, int32_t count);
QORM_API qorStatus qormExtract_ma_64f_L(const double* const* ppSrc, int32_t srcShift,
                                        int32_t srcStride1, int32_t srcStride2, double* pDst,
                                        int32_t width, int32_t height, int32_t count);
/** @} */

/** @name Elements of an array of matrices read transposed
 *  Checks, in this order: null pointer, size, count, shift (`_P`, `_L`), strides.
 *  @{ */
QORM_API qorStatus qormExtract_ta_32f(const float* pSrc, int32_t srcStride0, int32_t srcStride1,
                                      int32_t srcStride2, float* pDst, int32_t width,
                                      int32_t height, int32_t count);
QORM_API qorStatus qormExtract_ta_32f_P(const float* const* ppSrc, int32_t srcShift,
                                        int32_t srcStride0, float* pDst, int32_t width,
                                        int32_t height, int32_t count);
QORM_API qorStatus qormExtract_ta_32f_L(const float* const* ppSrc, int32_t srcShift,
                                        int32_t srcStride1, int32_t srcStride2, float* pDst,
                                        int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormExtract_ta_64f(const double* pSrc, int32_t srcStride0, int32_t srcStride1,
                                      int32_t srcStride2, double* pDst, int32_t width,
                                      int32_t height, int32_t count);
QORM_API qorStatus qormExtract_ta_64f_P(const double* const* ppSrc, int32_t srcShift,
                                        int32_t srcStride0, double* pDst, int32_t width,
                                        int32_t height, int32_t count);
QORM_API qorStatus qormExtract_ta_64f_L(const double* const* ppSrc, int32_t srcShift,
                                        int32_t srcStride1, int32_t srcStride2, double* pDst,
                                        int32_t width, int32_t height, int32_t count);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
