// What no code can beat: the time that the bytes of a row take alone, and that of its operations.
#pragma once

#include "bench.h"
#include "lanes.h"

#include <cstring>
#include <memory>

namespace bench {

// work(first, count) on equal shares of `all`.
template <class Work>
bool inShares(int threads, std::ptrdiff_t all, const Work& work) {
    if (threads == 1) {
        work(std::ptrdiff_t{0}, all);
        return true;
    }
    const std::ptrdiff_t share = all / threads;
#pragma omp parallel for num_threads(threads) schedule(static, 1)
    for (int thread = 0; thread < threads; ++thread) work(thread * share, share);
    return true;
}

// "memcpy" between plain arrays moves as many bytes as the subject, "peak" does as many products
// and sums in registers.
template <class T>
std::vector<Contender> roofline(const Subject& subject, int threads) {
    const auto half = static_cast<std::ptrdiff_t>(subject.bytes * subject.count / sizeof(T) / 2);
    // Half a page off: loads that follow stores at the same place of a page wait for them.
    constexpr std::ptrdiff_t page = 4096 / sizeof(T);
    const std::ptrdiff_t apart = (half / page + 1) * page + page / 2;
    const std::shared_ptr<T[]> data(new T[static_cast<std::size_t>(apart + half)]());
    const auto copy = [=] {
        return inShares(threads, half, [&](std::ptrdiff_t first, std::ptrdiff_t count) {
            T* const target = data.get() + first;
            std::memcpy(target, target + apart, static_cast<std::size_t>(count) * sizeof(T));
        });
    };
    std::vector<Contender> bounds = {{"memcpy", Role::bound, copy}};
    if (subject.operations > 0) {
        const auto operations = static_cast<std::ptrdiff_t>(subject.operations * subject.count);
        bounds.push_back({"peak", Role::bound, [=] {
                              return inShares(threads, operations,
                                              [](std::ptrdiff_t, std::ptrdiff_t count) {
                                                  multiplyAndAdd<T>(count);
                                              });
                          }});
    }
    return bounds;
}

} // namespace bench
