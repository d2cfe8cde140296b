/** @file progress_bar.h  A progress bar on stderr, shown on a terminal only. */
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdio>
#include <string>
#include <unistd.h>
#include <utility>

class ProgressBar {
public:
    ProgressBar(std::string label, std::size_t total)
        : label_(std::move(label)), total_(total), shown_(isatty(STDERR_FILENO) != 0) {}
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;
    ~ProgressBar() {
        if (shown_) std::fputs("\r\033[K", stderr);
    }

    /// One step is done, on any thread.
    void advance() {
        const std::size_t done = ++done_;
        const std::size_t percent = 100 * done / total_;
        if (!shown_ || percent == 100 * (done - 1) / total_) return;
        const int filled = static_cast<int>(percent * width / 100);
        std::fprintf(stderr, "\r%s [%s%*s] %3zu%%", label_.c_str(),
                     std::string(static_cast<std::size_t>(filled), '#').c_str(), width - filled, "",
                     percent);
    }

private:
    static constexpr int width = 40;
    std::string label_;
    std::size_t total_;
    bool shown_;
    std::atomic<std::size_t> done_ = 0;
};
