#include "qorcore.h"

#include <omp.h>

int32_t threads_omp_of_n_qor = omp_get_max_threads();

void qorSetThreadCount(int32_t threads) {
    threads_omp_of_n_qor = threads;
}

int32_t qorGetThreadCount(void) {
    return threads_omp_of_n_qor;
}
