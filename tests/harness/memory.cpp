#include "harness/memory.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <stdexcept>
#include <sys/mman.h>

namespace harness {
namespace {

constexpr std::ptrdiff_t pageBytes = 4096;
constexpr std::ptrdiff_t blockBytes = std::ptrdiff_t{16} << 20;
constexpr std::ptrdiff_t marginBytes = 128;

char* mapped(std::ptrdiff_t bytes) {
    void* address = mmap(nullptr, static_cast<std::size_t>(bytes), PROT_NONE,
                         MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (address == MAP_FAILED) throw std::bad_alloc();
    return static_cast<char*>(address);
}

} // namespace

void* inaccessible() {
    static char* const page = mapped(3 * pageBytes);
    return page + pageBytes;
}

Region::Region() : blockBegin_(mapped(blockBytes + 2 * pageBytes) + pageBytes) {
    blockEnd_ = blockBegin_ + blockBytes;
    if (mprotect(blockBegin_, blockBytes, PROT_READ | PROT_WRITE) != 0) throw std::bad_alloc();
}

std::shared_ptr<Region> Region::take(std::ptrdiff_t bytes, bool atFront, std::uint64_t seed) {
    // Blocks are used again: mapping them is slow.
    static std::vector<std::unique_ptr<Region>> idle;
    if (idle.empty()) idle.emplace_back(new Region);
    std::shared_ptr<Region> region(idle.back().release(),
                                   [](Region* used) { idle.emplace_back(used); });
    idle.pop_back();
    region->use(bytes, atFront, seed);
    return region;
}

Region::~Region() {
    munmap(blockBegin_ - pageBytes, blockBytes + 2 * pageBytes);
}

void Region::use(std::ptrdiff_t bytes, bool atFront, std::uint64_t seed) {
    if (bytes > blockBytes) throw std::length_error("operand too large for its block");
    begin_ = atFront ? blockBegin_ : blockEnd_ - bytes;
    low_ = std::max(begin_ - marginBytes, blockBegin_);
    high_ = std::min(begin_ + bytes + marginBytes, blockEnd_);

    image_.resize(static_cast<std::size_t>(high_ - low_));
    Random random(seed);
    for (std::size_t k = 0; k < image_.size(); k += sizeof(std::uint64_t)) {
        const std::uint64_t noise = random();
        std::memcpy(&image_[k], &noise, std::min(sizeof noise, image_.size() - k));
    }
    std::copy(image_.begin(), image_.end(), low_);
}

const char* Region::firstDifference() const {
    if (std::memcmp(low_, image_.data(), image_.size()) == 0) return nullptr;
    return std::mismatch(low_, high_, image_.begin()).first;
}

} // namespace harness
