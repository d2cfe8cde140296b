#include "harness/memory.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <sys/mman.h>

namespace harness {
namespace {

constexpr std::ptrdiff_t pageBytes = 4096;
constexpr std::ptrdiff_t usualBlockBytes = std::ptrdiff_t{16} << 20;
constexpr std::ptrdiff_t marginBytes = 128;

char* mapped(std::ptrdiff_t bytes) {
    void* address = mmap(nullptr, static_cast<std::size_t>(bytes), PROT_NONE,
                         MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (address == MAP_FAILED) throw std::bad_alloc();
    return static_cast<char*>(address);
}

void makeAccessible(char* begin, char* end) {
    const auto bytes = static_cast<std::size_t>(end - begin);
    if (mprotect(begin, bytes, PROT_READ | PROT_WRITE) != 0) throw std::bad_alloc();
}

} // namespace

void* inaccessible() {
    static char* const page = mapped(3 * pageBytes);
    return page + pageBytes;
}

Region::Region(std::ptrdiff_t blockBytes)
    : blockBegin_(mapped(blockBytes + 2 * pageBytes) + pageBytes),
      blockEnd_(blockBegin_ + blockBytes) {
    makeAccessible(blockBegin_, blockEnd_);
}

std::shared_ptr<Region> Region::take(std::ptrdiff_t bytes, bool atFront, std::uint64_t seed) {
    if (bytes > usualBlockBytes) {
        const std::ptrdiff_t pages = (bytes + pageBytes - 1) / pageBytes;
        std::shared_ptr<Region> region(new Region((2 * pages + 1) * pageBytes));
        region->useSparsely(bytes);
        return region;
    }
    // Blocks are used again: mapping them is slow.
    static std::vector<std::unique_ptr<Region>> idle;
    if (idle.empty()) idle.emplace_back(new Region(usualBlockBytes));
    std::shared_ptr<Region> region(idle.back().release(),
                                   [](Region* used) { idle.emplace_back(used); });
    idle.pop_back();
    region->use(bytes, atFront, seed);
    return region;
}

Region::~Region() {
    munmap(blockBegin_ - pageBytes,
           static_cast<std::size_t>(blockEnd_ - blockBegin_ + 2 * pageBytes));
}

void Region::use(std::ptrdiff_t bytes, bool atFront, std::uint64_t seed) {
    begin_ = atFront ? blockBegin_ : blockEnd_ - bytes;
    low_ = std::max(begin_ - marginBytes, blockBegin_);
    high_ = std::min(begin_ + bytes + marginBytes, blockEnd_);

    ownImage_.resize(static_cast<std::size_t>(high_ - low_));
    image_ = ownImage_.data();
    Random random(seed);
    for (std::size_t k = 0; k < ownImage_.size(); k += sizeof(std::uint64_t)) {
        const std::uint64_t noise = random();
        std::memcpy(&ownImage_[k], &noise, std::min(sizeof noise, ownImage_.size() - k));
    }
    std::copy(ownImage_.begin(), ownImage_.end(), low_);
}

// The image lies in front, with an inaccessible page between.
void Region::useSparsely(std::ptrdiff_t bytes) {
    const auto blockBytes = static_cast<std::size_t>(blockEnd_ - blockBegin_);
    madvise(blockBegin_, blockBytes, MADV_NOHUGEPAGE);
    char* const between = blockBegin_ + (blockEnd_ - blockBegin_ - pageBytes) / 2;
    if (mprotect(between, pageBytes, PROT_NONE) != 0) throw std::bad_alloc();
    begin_ = low_ = high_ = blockEnd_ - bytes;
    image_ = blockBegin_;
}

const char* Region::firstDifference() const {
    if (std::memcmp(low_, image_, static_cast<std::size_t>(high_ - low_)) == 0) return nullptr;
    return std::mismatch(low_, high_, image_).first;
}

} // namespace harness
