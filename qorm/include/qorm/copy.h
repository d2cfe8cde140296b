/** @defgroup Copy Copy: between layouts
 *  Copies of arrays from any layout into any layout.
 *
 *  ## Shapes
 *
 *  | Shape | Formula               | Objects                                               |
 *  |-------|-----------------------|-------------------------------------------------------|
 *  | `va`  | dstₙ(i) = srcₙ(i)     | `count` vectors of `len` elements                     |
 *  | `ma`  | dstₙ(i,j) = srcₙ(i,j) | `count` matrices of `height` rows and `width` columns |
 *
 *  ## Layouts
 *
 *  The two letters at the end of a name tell the layouts, **that of the source first**. Source and
 *  destination each bring the arguments of their own layout, behind the pointer or the table:
 *
 *  | Letter | Layout                | Arguments of `va`    | Arguments of `ma`               |
 *  |--------|-----------------------|----------------------|---------------------------------|
 *  | `S`    | strides               | `stride0`, `stride2` | `stride0`, `stride1`, `stride2` |
 *  | `P`    | a pointer per element | `shift`, `stride0`   | `shift`, `stride0`              |
 *  | `L`    | a pointer per object  | `shift`, `stride2`   | `shift`, `stride1`, `stride2`   |
 *
 *  Tables of `P` have the same order of positions on either side: of a matrix row by row. The size
 *  comes before the count among the checks, and **of a single object no `stride0` is tested**: with
 *  a `count` of 1 it is ignored.
 *
 *  ## Bits
 *
 *  Elements are moved, never computed with: every bit pattern passes unchanged, NaN included.
 *
 *  ## In place
 *
 *  Source and destination may overlap in any way, since the order of the moves is fixed: objects
 *  ascending, in each its rows from the top, in each row its elements from left to right, each one
 *  loaded and stored before the next. **An element that a move has overwritten is read with its new
 *  value** by the moves behind it: gaps between elements, rows and objects can be closed in place,
 *  but not opened, nor closed between the positions of arrays in pointer layout, since objects go
 *  outermost. Where elements of the destination coincide, the last one moved stays.
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
 *  ## Example
 *
 *  The positions of a thousand particles out of an array of structures, an array for each
 *  coordinate, and back:
 *
 *      struct Particle { double position[3], velocity[3]; } particles[1000];
 *      double x[1000], y[1000], z[1000];
 *      double* const xyz[3] = {x, y, z};
 *      const int32_t step = sizeof(struct Particle);
 *      fill(particles);
 *      qormCopy_va_64f_SP(particles->position, step, 8, xyz, 0, 8, 3, 1000);
 *      work(x, y, z);
 *      qormCopy_va_64f_PS((const double* const*)xyz, 0, 8, particles->position, step, 8, 3, 1000);
 *
 *  @{
 */
#ifndef QORM_COPY_H
#define QORM_COPY_H

#include "qorm/types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @name Copies of an array of vectors: dstₙ(i) = srcₙ(i)
 *  Checks, in this order: null pointer, size, count, then by the letters
 *
 *  | Letters     | Then                                |
 *  |-------------|-------------------------------------|
 *  | `SS`        | both stride2; both stride0          |
 *  | `SP`, `32f` | dstShift; srcStride2; both stride0  |
 *  | `SP`, `64f` | srcStride2; dstShift; both stride0  |
 *  | `SL`        | both stride2; dstShift; srcStride0  |
 *  | `PS`        | dstStride2; srcShift; both stride0  |
 *  | `PP`        | both shifts; both stride0           |
 *  | `PL`        | dstStride2; both shifts; srcStride0 |
 *  | `LS`        | both stride2; srcShift; dstStride0  |
 *  | `LP`, `32f` | both shifts; srcStride2; dstStride0 |
 *  | `LP`, `64f` | srcStride2; both shifts; dstStride0 |
 *  | `LL`        | both stride2; both shifts           |
 *
 *  each `stride0` only if `count` is above 1.
 *  @{ */
QORM_API qorStatus qormCopy_va_32f_SS(const float* pSrc, int32_t srcStride0, int32_t srcStride2,
                                      float* pDst, int32_t dstStride0, int32_t dstStride2,
                                      int32_t len, int32_t count);
QORM_API qorStatus qormCopy_va_32f_SP(const float* pSrc, int32_t srcStride0, int32_t srcStride2,
                                      float* const* ppDst, int32_t dstShift, int32_t dstStride0,
                                      int32_t len, int32_t count);
QORM_API qorStatus qormCopy_va_32f_SL(const float* pSrc, int32_t srcStride0, int32_t srcStride2,
                                      float* const* ppDst, int32_t dstShift, int32_t dstStride2,
                                      int32_t len, int32_t count);
QORM_API qorStatus qormCopy_va_32f_PS(const float* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride0, float* pDst, int32_t dstStride0,
                                      int32_t dstStride2, int32_t len, int32_t count);
QORM_API qorStatus qormCopy_va_32f_PP(const float* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride0, float* const* ppDst, int32_t dstShift,
                                      int32_t dstStride0, int32_t len, int32_t count);
QORM_API qorStatus qormCopy_va_32f_PL(const float* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride0, float* const* ppDst, int32_t dstShift,
                                      int32_t dstStride2, int32_t len, int32_t count);
QORM_API qorStatus qormCopy_va_32f_LS(const float* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride2, float* pDst, int32_t dstStride0,
                                      int32_t dstStride2, int32_t len, int32_t count);
QORM_API qorStatus qormCopy_va_32f_LP(const float* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride2, float* const* ppDst, int32_t dstShift,
                                      int32_t dstStride0, int32_t len, int32_t count);
QORM_API qorStatus qormCopy_va_32f_LL(const float* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride2, float* const* ppDst, int32_t dstShift,
                                      int32_t dstStride2, int32_t len, int32_t count);
QORM_API qorStatus qormCopy_va_64f_SS(const double* pSrc, int32_t srcStride0, int32_t srcStride2,
                                      double* pDst, int32_t dstStride0, int32_t dstStride2,
                                      int32_t len, int32_t count);
QORM_API qorStatus qormCopy_va_64f_SP(const double* pSrc, int32_t srcStride0, int32_t srcStride2,
                                      double* const* ppDst, int32_t dstShift, int32_t dstStride0,
                                      int32_t len, int32_t count);
QORM_API qorStatus qormCopy_va_64f_SL(const double* pSrc, int32_t srcStride0, int32_t srcStride2,
                                      double* const* ppDst, int32_t dstShift, int32_t dstStride2,
                                      int32_t len, int32_t count);
QORM_API qorStatus qormCopy_va_64f_PS(const double* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride0, double* pDst, int32_t dstStride0,
                                      int32_t dstStride2, int32_t len, int32_t count);
QORM_API qorStatus qormCopy_va_64f_PP(const double* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride0, double* const* ppDst, int32_t dstShift,
                                      int32_t dstStride0, int32_t len, int32_t count);
QORM_API qorStatus qormCopy_va_64f_PL(const double* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride0, double* const* ppDst, int32_t dstShift,
                                      int32_t dstStride2, int32_t len, int32_t count);
QORM_API qorStatus qormCopy_va_64f_LS(const double* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride2, double* pDst, int32_t dstStride0,
                                      int32_t dstStride2, int32_t len, int32_t count);
QORM_API qorStatus qormCopy_va_64f_LP(const double* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride2, double* const* ppDst, int32_t dstShift,
                                      int32_t dstStride0, int32_t len, int32_t count);
QORM_API qorStatus qormCopy_va_64f_LL(const double* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride2, double* const* ppDst, int32_t dstShift,
                                      int32_t dstStride2, int32_t len, int32_t count);
/** @} */

/** @name Copies of an array of matrices: dstₙ(i,j) = srcₙ(i,j)
 *  Checks, in this order: null pointer, size, count, `stride1` and `stride2` of operands that have
 *  them, shifts of operands that have one, each `stride0` only if `count` is above 1.
 *  @{ */
QORM_API qorStatus qormCopy_ma_32f_SS(const float* pSrc, int32_t srcStride0, int32_t srcStride1,
                                      int32_t srcStride2, float* pDst, int32_t dstStride0,
                                      int32_t dstStride1, int32_t dstStride2, int32_t width,
                                      int32_t height, int32_t count);
QORM_API qorStatus qormCopy_ma_32f_SP(const float* pSrc, int32_t srcStride0, int32_t srcStride1,
                                      int32_t srcStride2, float* const* ppDst, int32_t dstShift,
                                      int32_t dstStride0, int32_t width, int32_t height,
                                      int32_t count);
QORM_API qorStatus qormCopy_ma_32f_SL(const float* pSrc, int32_t srcStride0, int32_t srcStride1,
                                      int32_t srcStride2, float* const* ppDst, int32_t dstShift,
                                      int32_t dstStride1, int32_t dstStride2, int32_t width,
                                      int32_t height, int32_t count);
QORM_API qorStatus qormCopy_ma_32f_PS(const float* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride0, float* pDst, int32_t dstStride0,
                                      int32_t dstStride1, int32_t dstStride2, int32_t width,
                                      int32_t height, int32_t count);
QORM_API qorStatus qormCopy_ma_32f_PP(const float* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride0, float* const* ppDst, int32_t dstShift,
                                      int32_t dstStride0, int32_t width, int32_t height,
                                      int32_t count);
QORM_API qorStatus qormCopy_ma_32f_PL(const float* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride0, float* const* ppDst, int32_t dstShift,
                                      int32_t dstStride1, int32_t dstStride2, int32_t width,
                                      int32_t height, int32_t count);
QORM_API qorStatus qormCopy_ma_32f_LS(const float* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride1, int32_t srcStride2, float* pDst,
                                      int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                      int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormCopy_ma_32f_LP(const float* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride1, int32_t srcStride2, float* const* ppDst,
                                      int32_t dstShift, int32_t dstStride0, int32_t width,
                                      int32_t height, int32_t count);
QORM_API qorStatus qormCopy_ma_32f_LL(const float* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride1, int32_t srcStride2, float* const* ppDst,
                                      int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                      int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormCopy_ma_64f_SS(const double* pSrc, int32_t srcStride0, int32_t srcStride1,
                                      int32_t srcStride2, double* pDst, int32_t dstStride0,
                                      int32_t dstStride1, int32_t dstStride2, int32_t width,
                                      int32_t height, int32_t count);
QORM_API qorStatus qormCopy_ma_64f_SP(const double* pSrc, int32_t srcStride0, int32_t srcStride1,
                                      int32_t srcStride2, double* const* ppDst, int32_t dstShift,
                                      int32_t dstStride0, int32_t width, int32_t height,
                                      int32_t count);
QORM_API qorStatus qormCopy_ma_64f_SL(const double* pSrc, int32_t srcStride0, int32_t srcStride1,
                                      int32_t srcStride2, double* const* ppDst, int32_t dstShift,
                                      int32_t dstStride1, int32_t dstStride2, int32_t width,
                                      int32_t height, int32_t count);
QORM_API qorStatus qormCopy_ma_64f_PS(const double* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride0, double* pDst, int32_t dstStride0,
                                      int32_t dstStride1, int32_t dstStride2, int32_t width,
                                      int32_t height, int32_t count);
QORM_API qorStatus qormCopy_ma_64f_PP(const double* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride0, double* const* ppDst, int32_t dstShift,
                                      int32_t dstStride0, int32_t width, int32_t height,
                                      int32_t count);
QORM_API qorStatus qormCopy_ma_64f_PL(const double* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride0, double* const* ppDst, int32_t dstShift,
                                      int32_t dstStride1, int32_t dstStride2, int32_t width,
                                      int32_t height, int32_t count);
QORM_API qorStatus qormCopy_ma_64f_LS(const double* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride1, int32_t srcStride2, double* pDst,
                                      int32_t dstStride0, int32_t dstStride1, int32_t dstStride2,
                                      int32_t width, int32_t height, int32_t count);
QORM_API qorStatus qormCopy_ma_64f_LP(const double* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride1, int32_t srcStride2, double* const* ppDst,
                                      int32_t dstShift, int32_t dstStride0, int32_t width,
                                      int32_t height, int32_t count);
QORM_API qorStatus qormCopy_ma_64f_LL(const double* const* ppSrc, int32_t srcShift,
                                      int32_t srcStride1, int32_t srcStride2, double* const* ppDst,
                                      int32_t dstShift, int32_t dstStride1, int32_t dstStride2,
                                      int32_t width, int32_t height, int32_t count);
/** @} */

/** @} */

#ifdef __cplusplus
}
#endif

#endif
