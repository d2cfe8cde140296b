/** @file types.h
 *  What every header of qorm shares: the status, and the conventions of the arguments.
 *
 *  Names. `qorm`, the operation, an underscore, the shape, the element type, the layout:
 *  `qormAdd_tam_64f_L`. Shape letters stand for the operands in their order: `m` a matrix, `t` a
 *  matrix read transposed, `v` a vector, `c` a constant passed by value; an `a` behind a letter
 *  makes it an array of `count` such objects. Types are `32f` (float) and `64f` (double).
 *
 *  Layouts. Element (i, j) of object n of an operand lies, in bytes, at
 *
 *      (no suffix)  pSrc + n*srcStride0 + i*srcStride1 + j*srcStride2      strides
 *      _P           ppSrc[i*width + j] + srcShift + n*srcStride0           a pointer per element
 *      _L           ppSrc[n] + srcShift + i*srcStride1 + j*srcStride2      a pointer per object
 *
 *  A vector has no stride1. A single operand (without `a`) has no stride0; in `_L` forms it is
 *  passed as in the layout without suffix. A table of `_P` has one pointer per element position,
 *  row by row, an operand read transposed being tabled as it lies in memory.
 *
 *  Units. **All strides and shifts are bytes.** A stride is at least 1, a shift at least 0, and
 *  both are multiples of the element size. Nothing is asked of the alignment of pointers. No
 *  stride is compared with another: objects may be interleaved, transposed in place by exchanged
 *  strides, or packed. Entries of a table are not tested.
 *
 *  Statuses. A call with faulty arguments answers with the status of its first failing check and
 *  reads and writes no element; the order of the checks stands with each group of functions.
 *
 *  Threads. Every function may be called from any thread at any time. Array forms above a size
 *  threshold spread their objects over the threads of `threads_omp_of_n_qor` (see qorcore.h) by a
 *  fixed split that trusts to get them all: called from inside a parallel region that is not
 *  nested, or under a runtime that grants fewer threads than asked for, **only the objects of the
 *  threads that really run are computed**. Set the thread count to 1 before such calls.
 *
 *  Bits. The results of an object do not depend on the layout, the strides, the count, the thread
 *  count or the processor, unless a function's description says otherwise.
 */
#ifndef QORM_TYPES_H
#define QORM_TYPES_H

#include <stdint.h>

#if defined(__GNUC__)
#define QORM_API __attribute__((visibility("default")))
#else
#define QORM_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/** Result of every operation: #qorStatusOk or one of the negative codes below. */
typedef int32_t qorStatus;

enum {
    qorStatusOk = 0,                     /**< success */
    qorStatusBadSize = -6,               /**< a width, height, length or size is below 1 */
    qorStatusNullPointer = -8,           /**< a pointer argument is null */
    qorStatusDivideByZero = -10,         /**< QR: a column vanishes */
    qorStatusNotPositiveDefinite = -179, /**< Cholesky: a pivot is not positive */
    qorStatusBadStride = -182,    /**< a stride is below 1 or no multiple of the element size */
    qorStatusSingular = -195,     /**< inverse, LU, eigenproblem: the matrix is singular */
    qorStatusBadShift = -202,     /**< a shift is negative or no multiple of the element size */
    qorStatusBadCount = -203,     /**< count is below 1 */
    qorStatusSizeMismatch = -204, /**< the sizes of the operands don't fit one another */
    qorStatusNoConvergence = -205 /**< eigenproblem: the iteration does not settle */
};

#ifdef __cplusplus
}
#endif

#endif
