// The library's thread setting, for as long as a test needs it.
#pragma once

#include "qorcore.h"

namespace harness {

class ThreadCount {
public:
    explicit ThreadCount(std::int32_t threads) { qorSetThreadCount(threads); }
    ~ThreadCount() { qorSetThreadCount(before_); }
    ThreadCount(const ThreadCount&) = delete;
    ThreadCount& operator=(const ThreadCount&) = delete;

private:
    std::int32_t before_ = qorGetThreadCount();
};

} // namespace harness
