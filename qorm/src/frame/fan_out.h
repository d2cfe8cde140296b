// The driver tier: spreads the objects of an array form over threads.
//
// The split is static and fixed by the thread count that is read at the start. It trusts that every
// thread number below that count will run: where the runtime grants fewer threads, only the shares
// of those that run are done. That is the contract of this design, told in qorm/types.h.
#pragma once

#include "frame/entry.h"
#include "qorcore.h"

#include <algorithm>
#include <cstdlib>
#include <omp.h>

namespace qorm {

// Shares lie in the order of the threads; the first `remainder` threads take one object more.
inline Share shareOf(int thread, int count, int threads, char* scratch) {
    const int perThread = count / threads;
    const int remainder = count % threads;
    return {thread, thread * perThread + std::min(thread, remainder),
            perThread + (thread < remainder ? 1 : 0), scratch};
}

template <auto core, auto generalCore, class... Groups>
qorStatus fanOut(const Groups&... groups) {
    const int threads = threads_omp_of_n_qor;
    const int count = std::get<sizeof...(Groups) - 1>(std::tie(groups...)).value;
    if (threads < 2 || count < threads || !(groups.canStep(count) && ...)) {
        return callEither<core, generalCore>(groups...);
    }

    const std::size_t scratchBytes = (groups.scratchBytes() + ...);
    char* scratch = nullptr;
    if (scratchBytes > 0) {
        scratch = static_cast<char*>(std::malloc(scratchBytes * static_cast<std::size_t>(threads)));
    }

    qorStatus status = qorStatusOk;
#pragma omp parallel num_threads(std::max(threads_omp_of_n_qor, 1)) shared(status)
    {
        const int thread = omp_get_thread_num();
        // The setting may have grown since the split was fixed.
        if (thread < threads) {
            const Share share = shareOf(thread, count, threads, scratch);
            const qorStatus own = callEither<core, generalCore>(groups.share(share)...);
#pragma omp critical
            {
                if (status == qorStatusOk) status = own;
            }
        }
    }
    std::free(scratch);
    return status;
}

} // namespace qorm
