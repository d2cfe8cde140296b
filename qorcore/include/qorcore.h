/** @defgroup Threads Threads
 *  The setting that the qor libraries share: the number of threads. How calls use it is told in
 *  the @ref conventions.
 *
 *  @{
 */
#ifndef QORCORE_H
#define QORCORE_H

#include <stdint.h>

#if defined(__GNUC__)
#define QORCORE_API __attribute__((visibility("default")))
#else
#define QORCORE_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/** Number of threads that an array operation may spread its objects over. Below 2, everything runs
 *  on the calling thread. It starts with the number of threads that OpenMP would give this process
 *  (processors, or `OMP_NUM_THREADS`). Change it only while no operation is running. */
QORCORE_API extern int32_t threads_omp_of_n_qor;

/** Sets #threads_omp_of_n_qor; any value is accepted. */
QORCORE_API void qorSetThreadCount(int32_t threads);

/** Tells #threads_omp_of_n_qor. */
QORCORE_API int32_t qorGetThreadCount(void);

/** @} */

#ifdef __cplusplus
}
#endif

#endif
