/** @defgroup Transpose Transpose: of matrices
 *  Transposes of matrices, written to a destination of their own.
 *
 *  ## Shapes
 *
 *  | Shape | Formula               | Layouts             |
 *  |-------|-----------------------|---------------------|
 *  | `m`   | dst(j,i) = src(i,j)   | strides, `_P`       |
 *  | `ma`  | dstₙ(j,i) = srcₙ(i,j) | strides, `_P`, `_L` |
 *
 *  `width` and `height` are **those of the source**, which has `height` rows and `width` columns;
 *  the destination has `width` rows and `height` columns. Both are in the same layout, each with
 *  strides, or pointers and a shift, of its own. Tables of `_P` have the rows of their own matrix:
 *  source element (i,j) is entry `i*width + j` of `ppSrc`, destination element (j,i) is entry
 *  `j*height + i` of `ppDst`.
 *
 *  A matrix that is only to be read transposed needs no copy: exchange its strides, or take a
 *  function with the letter `t`.
 *
 *  ## Bits
 *
 *  Elements are moved, never computed with: every bit pattern passes unchanged, NaN included.
 *
 *  ## In place
 *
 *  Elements are loaded and stored one at a time, in this order:
 *
 *  | Sizes and layouts        | Order                                                         |
 *  |--------------------------|---------------------------------------------------------------|
 *  | 3x3, 4x4, 5x5, 6x6       | rows of the destination from the top, each from left to right |
 *  | others, strides and `_L` | the same                                                      |
 *  | others, `_P`             | rows of the source from the top, each from left to right      |
 *
 *  **So a square matrix is not transposed in place.** Where source and destination coincide, object
 *  for object, the matrix becomes symmetric: the elements above the diagonal take the values below
 *  it, which stay; in the last line of the table it is those below that take the values above. That
 *  is not tested. Any other overlap is not defined.
 *
 *  ## Cost
 *
 *  A load and a store per element. A call of `ma` spreads over threads where its work W reaches
 *
 *  | W      | strides | `_P`  | `_L`                         |
 *  |--------|---------|-------|------------------------------|
 *  | 2w·h·c | 20001   | 20001 | 40001 / 20001, general 20001 |
 *
 *  ## Statuses
 *
 *  None but that of a failed check is ever returned.
 *
 *  @{
 */
#ifndef QORM_TRANSPOSE_H
#define QORM_TRANSPOSE_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Transpose of one matrix: dst(j,i) = src(i,j)
 *  Checks, in this order: null pointer, size, strides (`_P`: shifts).
 *  @{ */
QORM_API qorStatus qormTranspose_m_32f(const float* pSrc, int32_t srcStride1, int32_t srcStride2,
                                       int32_t width, int32_t height, float* pDst,
                                       int32_t dstStride1, int32_t dstStride2);
QORM_API qorStatus qormTranspose_m_32f_P(const float* const* ppSrc, int32_t srcShift, int32_t width,
                                         int32_t height, float* const* ppDst, int32_t dstShift);
QORM_API qorStatus qormTranspose_m_64f(const double* pSrc, int32_t srcStride1, int32_t srcStride2,
                                       int32_t width, int32_t height, double* pDst,
                                       int32_t dstStride1, int32_t dstStride2);
QORM_API qorStatus qormTranspose_m_64f_P(const double* const* ppSrc, int32_t srcShift,
                                         int32_t width, int32_t height, double* const* ppDst,
                                         int32_t dstShift);
/** @} */

/** @name Transposes of an array of matrices: dstₙ(j,i) = srcₙ(i,j)
 *  Checks, in this order: null pointer, count, size, strides, shifts (`_P`, `_L`).
 *  @{ */
QORM_API qorStatus qormTranspose_ma_32f(const float* pSrc, int32_t srcStride0, int32_t srcStride1,
                                        int32_t srcStride2, int32_t width, int32_t height,
                                        float* pDst, int32_t dstStride0, int32_t dstStride1,
                                        int32_t dstStride2, int32_t count);
QORM_API qorStatus qormTranspose_ma_32f_P(const float* const* ppSrc, int32_t srcShift,
                                          int32_t srcStride0, int32_t width, int32_t height,
                                          float* const* ppDst, int32_t dstShift, int32_t dstStride0,
                                          int32_t count);
QORM_API qorStatus qormTranspose_ma_32f_L(const float* const* ppSrc, int32_t srcShift,
                                          int32_t srcStride1, int32_t srcStride2, int32_t width,
                                          int32_t height, float* const* ppDst, int32_t dstShift,
                                          int32_t dstStride1, int32_t dstStride2, int32_t count);
QORM_API qorStatus qormTranspose_ma_64f(const double* pSrc, int32_t srcStride0, int32_t srcStride1,
                                        int32_t srcStride2, int32_t width, int32_t height,
                                        double* pDst, int32_t dstStride0, int32_t dstStride1,
                                        int32_t dstStride2, int32_t count);
QORM_API qorStatus qormTranspose_ma_64f_P(const double* const* ppSrc, int32_t srcShift,
                                          int32_t srcStride0, int32_t width, int32_t height,
                                          double* const* ppDst, int32_t dstShift,
                                          int32_t dstStride0, int32_t count);
QORM_API qorStatus qormTranspose_ma_64f_L(const double* const* ppSrc, int32_t srcShift,
                                          int32_t srcStride1, int32_t srcStride2, int32_t width,
                                          int32_t height, double* const* ppDst, int32_t dstShift,
                                          int32_t dstStride1, int32_t dstStride2, int32_t count);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
