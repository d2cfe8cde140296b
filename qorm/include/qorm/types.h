/** @defgroup conventions Conventions
 *  What all families share: names, layouts, arguments, checks, statuses, threads, bits.
 *
 *  ## Names
 *
 *  `qorm`, the operation, an underscore, the shape, the element type, the layout:
 *  `qormAdd_tam_64f_L` adds, to each matrix of an array (`a`), read transposed (`t`), one matrix
 *  (`m`), in double precision (`64f`), the array being a list of pointers (`_L`). Shape letters
 *  stand for the operands in their order:
 *
 *  | Letter | Operand                                                  |
 *  |--------|----------------------------------------------------------|
 *  | `m`    | a matrix, read as stored                                 |
 *  | `t`    | a matrix, read transposed                                |
 *  | `v`    | a vector                                                 |
 *  | `c`    | a constant, passed by value                              |
 *  | `…a`   | behind `m`, `t` or `v`: an array of `count` such objects |
 *
 *  A form with an array writes an array of `count` objects, and its single operands serve every
 *  object. Element types are `32f` (`float`) and `64f` (`double`); "the element size" is 4 or 8.
 *
 *  ## Layouts
 *
 *  Where element (i,j) of object n lies, in bytes, rows i and columns j counted from 0:
 *
 *  | Suffix | Layout                | Address                                             |
 *  |--------|-----------------------|-----------------------------------------------------|
 *  | none   | strides               | `pSrc + n*srcStride0 + i*srcStride1 + j*srcStride2` |
 *  | `_P`   | a pointer per element | `ppSrc[i*width + j] + srcShift + n*srcStride0`      |
 *  | `_L`   | a pointer per object  | `ppSrc[n] + srcShift + i*srcStride1 + j*srcStride2` |
 *
 *  Element i of a vector is found in the same way, by `stride2` and at table entry i; a vector has
 *  no `stride1`. A single operand has no `stride0`; in `_L` forms it is passed as in the layout
 *  without suffix, in `_P` forms it has a table of its own. A table of `_P` has one pointer per
 *  element position, row by row; that of an operand read transposed describes the matrix as it lies
 *  in memory. **Strides** below means the layout without suffix.
 *
 *  ## Arguments
 *
 *  As a rule operands come in the order of the shape's letters, then the destination, then sizes,
 *  then `count`; products have the sizes of each operand behind it. The prototypes have the last
 *  word. Argument names say role and operand:
 *
 *  | Argument                        | Meaning                                       | Rule       |
 *  |---------------------------------|-----------------------------------------------|------------|
 *  | `pSrc`, `pSrc1`, `pDst`, …      | address of an operand's first element         | not null   |
 *  | `ppSrc`, `ppSrc1`, `ppDst`, …   | table of pointers                             | not null   |
 *  | `src1Stride0`, …                | bytes from object to object                   | at least 1 |
 *  | `src1Stride1`, `src1Stride2`, … | bytes from row to row, element to element     | at least 1 |
 *  | `src1Shift`, …                  | bytes added to each pointer of a table        | at least 0 |
 *  | `width`, `height`               | columns and rows of a matrix                  | at least 1 |
 *  | `len`, `widthHeight`            | length of a vector, size of a square matrix   | at least 1 |
 *  | `count`                         | number of objects of an array                 | at least 1 |
 *  | `pBuffer`                       | scratch of some families, its size told there | not null   |
 *
 *  **All strides and shifts are bytes**, and multiples of the element size. Nothing is asked of the
 *  alignment of pointers, and entries of tables are not tested. No stride is compared with another:
 *  objects may be interleaved, transposed by exchanged strides, or packed.
 *
 *  ## Checks and statuses
 *
 *  Every operation answers with a #qorStatus. A call with faulty arguments answers with the status
 *  of its **first failing check**, and reads and writes no element. The order of the checks stands
 *  with each group of functions, in these words:
 *
 *  | Check                      | Status if it fails     |
 *  |----------------------------|------------------------|
 *  | null pointer               | #qorStatusNullPointer  |
 *  | count                      | #qorStatusBadCount     |
 *  | size, sizes, `widthHeight` | #qorStatusBadSize      |
 *  | size match                 | #qorStatusSizeMismatch |
 *  | strides                    | #qorStatusBadStride    |
 *  | shifts                     | #qorStatusBadShift     |
 *
 *  Behind strides, (`_P`: shifts) means that `_P` forms have shifts in their place; behind shifts,
 *  (`_P`, `_L`) means that only these forms have any.
 *
 *  ## Threads
 *
 *  Every function may be called from any thread at any time. Array forms spread their objects over
 *  the threads of #threads_omp_of_n_qor where their **work** W, computed from sizes and `count` in
 *  32 bits, reaches a threshold, and `count` is at least the number of threads. The pages have W
 *  and the thresholds in a table, w, h, N and c being `width`, `height`, `widthHeight` and `count`.
 *  Where a threshold is followed by one for **general** strides, the first is for calls where
 *  `stride2` of every operand that has one is the element size, the second for the others. 40001 /
 *  20001 means 40001 in `32f` and 20001 in `64f`. A W of 2³¹ or more wraps around: a negative one
 *  counts as small.
 *
 *  The split is fixed before the threads start and trusts to get them all: called from inside a
 *  parallel region that is not nested, or under a runtime that grants fewer threads than asked for,
 *  **only the objects of the threads that really run are computed**. Set the thread count to 1
 *  before such calls.
 *
 *  Where objects can fail, each thread ends at the first failure in its own run of objects, and the
 *  call answers with one of the statuses. Families with scratch give each thread its own; `pBuffer`
 *  stays untouched then.
 *
 *  ## Bits
 *
 *  The results of an object do not depend on the layout, the strides, the count, the thread count
 *  or the processor, unless a page says otherwise; but sign and payload of a computed NaN may. Nor
 *  is any arithmetic done but in the element type, each operation rounded: there is no wider
 *  accumulator and no fused multiply-add. ε stands for 2⁻²³ in `32f` and 2⁻⁵² in `64f`.
 *
 *  ## In place
 *
 *  Overlap of a destination and an operand is never reported; each page tells what is allowed.
 *  **Coincide** means the same addresses for the same object and element: same pointer and strides,
 *  or tables with the same pointers. An array destination must not overlap a single operand.
 *
 *  @{
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

/** The statuses: these and no others. */
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

/** @} */

#ifdef __cplusplus
}
#endif

#endif
