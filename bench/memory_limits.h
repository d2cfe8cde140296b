// What memory gives: contenders that move a number of bytes between plain arrays.
#pragma once

#include "bench.h"

#include <cstring>
#include <memory>

namespace bench {

template <class T>
void addRun(const T* __restrict a, const T* __restrict b, T* __restrict d, std::ptrdiff_t count) {
    for (std::ptrdiff_t i = 0; i < count; ++i) d[i] = a[i] + b[i];
}

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

// "triad", a sum of two arrays, and "memcpy", both with as many bytes as the subject.
template <class T>
std::vector<Contender> memoryLimits(const Subject& subject, int threads) {
    const double bytes = subject.bytes * subject.count;
    const auto elements = static_cast<std::ptrdiff_t>(bytes / sizeof(T));
    const std::shared_ptr<T[]> data(new T[static_cast<std::size_t>(elements)]());
    const auto triad = [=] {
        const std::ptrdiff_t third = elements / 3;
        T* const d = data.get();
        return inShares(threads, third, [=](std::ptrdiff_t first, std::ptrdiff_t count) {
            addRun(d + third + first, d + 2 * third + first, d + first, count);
        });
    };
    const auto copy = [=] {
        const std::ptrdiff_t half = elements / 2;
        T* const d = data.get();
        return inShares(threads, half, [=](std::ptrdiff_t first, std::ptrdiff_t count) {
            std::memcpy(d + first, d + half + first, static_cast<std::size_t>(count) * sizeof(T));
        });
    };
    return {{"triad", Role::limit, triad}, {"memcpy", Role::limit, copy}};
}

} // namespace bench
