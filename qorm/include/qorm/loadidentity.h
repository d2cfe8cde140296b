/** @defgroup LoadIdentity LoadIdentity: identity matrices
 *  Identity matrices into an array in any layout.
 *
 *  ## Shapes
 *
 *  | Shape | Formula                         | Layouts             |
 *  |-------|---------------------------------|---------------------|
 *  | `ma`  | dstₙ(i,j) = 1 if i = j, else +0 | strides, `_P`, `_L` |
 *
 *  The destination is an array of `count` matrices of `height` rows and `width` columns. They need
 *  not be square: element (i,i) is 1 up to the smaller of the two sizes.
 *
 *  The size comes before the count among the checks; #qormLoadIdentity_ma_32f_P tests its shift
 *  between them. **Of a single object no `dstStride0` is tested**: with a `count` of 1 it is
 *  ignored.
 *
 *  ## Overlap
 *
 *  Where elements of the destination coincide, the last one written stays. The order is fixed:
 *  objects ascending, in each its rows from the top, in each row +0 into all elements and then
 *  the 1.
 *
 *  ## Cost
 *
 *  A store per element. A call never spreads over threads, however large the array is.
 *
 *  ## Statuses
 *
 *  None but that of a failed check is ever returned.
 *
 *  @{
 */
#ifndef QORM_LOADIDENTITY_H
#define QORM_LOADIDENTITY_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Identity matrices: dstₙ(i,j) = 1 if i = j, else 0
 *  Checks, in this order, `dstStride0` only if `count` is above 1:
 *
 *  | Layout      | Checks                                                           |
 *  |-------------|------------------------------------------------------------------|
 *  | strides     | null pointer, size, count, dstStride1 and dstStride2, dstStride0 |
 *  | `_P`, `32f` | null pointer, size, dstShift, count, dstStride0                  |
 *  | `_P`, `64f` | null pointer, size, count, dstShift, dstStride0                  |
 *  | `_L`        | null pointer, size, count, dstStride1 and dstStride2, dstShift   |
 *
 *  @{ */
QORM_API qorStatus qormLoadIdentity_ma_32f(float* pDst, int32_t dstStride0, int32_t dstStride1,
                                           int32_t dstStride2, int32_t width, int32_t height,
                                           int32_t count);
QORM_API qorStatus qormLoadIdentity_ma_32f_P(float* const* ppDst, int32_t dstShift,
                                             int32_t dstStride0, int32_t width, int32_t height,
                                             int32_t count);
QORM_API qorStatus qormLoadIdentity_ma_32f_L(float* const* ppDst, int32_t dstShift,
                                             int32_t dstStride1, int32_t dstStride2, int32_t width,
                                             int32_t height, int32_t count);
QORM_API qorStatus qormLoadIdentity_ma_64f(double* pDst, int32_t dstStride0, int32_t dstStride1,
                                           int32_t dstStride2, int32_t width, int32_t height,
                                           int32_t count);
QORM_API qorStatus qormLoadIdentity_ma_64f_P(double* const* ppDst, int32_t dstShift,
                                             int32_t dstStride0, int32_t width, int32_t height,
                                             int32_t count);
QORM_API qorStatus qormLoadIdentity_ma_64f_L(double* const* ppDst, int32_t dstShift,
                                             int32_t dstStride1, int32_t dstStride2, int32_t width,
                                             int32_t height, int32_t count);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
