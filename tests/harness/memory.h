// Memory of the tests: between inaccessible pages, and filled with bytes that a test can find
// again.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace harness {

// Small and the same everywhere (splitmix64).
class Random {
public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    std::uint64_t operator()() {
        std::uint64_t z = state_ += 0x9e3779b97f4a7c15;
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9;
        z = (z ^ (z >> 27)) * 0x94d049bb133111eb;
        return z ^ (z >> 31);
    }

    std::size_t below(std::size_t end) { return static_cast<std::size_t>((*this)() % end); }

private:
    std::uint64_t state_;
};

// Bytes at one edge of a block of accessible pages, and their image: what they are expected to
// hold after a call. A region larger than the usual block takes memory only where it is touched; it
// begins as zeros and is not compared as a whole.
class Region {
public:
    // A region of `bytes` bytes, at the front edge of the block or at its back. Around it, where
    // the block goes on, lie some bytes more that are compared too.
    static std::shared_ptr<Region> take(std::ptrdiff_t bytes, bool atFront, std::uint64_t seed);

    ~Region();
    Region(const Region&) = delete;
    Region& operator=(const Region&) = delete;

    char* begin() const { return begin_; }
    char* imageOf(const char* address) { return image_ + (address - low_); }

    // The first byte that differs from its image, or null.
    const char* firstDifference() const;

private:
    explicit Region(std::ptrdiff_t blockBytes);
    void use(std::ptrdiff_t bytes, bool atFront, std::uint64_t seed);
    void useSparsely(std::ptrdiff_t bytes);

    char* blockBegin_;
    char* blockEnd_;
    char* begin_ = nullptr;
    char* low_ = nullptr; // [low, high) is compared
    char* high_ = nullptr;
    char* image_ = nullptr;
    std::vector<char> ownImage_; // unless it lies in the block too
};

// An address that may be passed, but not read or written.
void* inaccessible();

} // namespace harness
