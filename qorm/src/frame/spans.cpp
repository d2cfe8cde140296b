#include "frame/spans.h"

namespace qorm {

Bytes spanOfAll(const Spans& spans, std::ptrdiff_t first, std::ptrdiff_t objects) {
    if (!spans.isList()) return hullOf(spans(first), spans(first + objects - 1));
    std::uintptr_t lowest = spans.addressOf(first);
    std::uintptr_t highest = lowest;
    for (std::ptrdiff_t n = first; n < first + objects; ++n) {
        lowest = std::min(lowest, spans.addressOf(n));
        highest = std::max(highest, spans.addressOf(n));
    }
    return {spans.object0.begin + lowest, spans.object0.end + highest};
}

bool mayReadAhead(const Spans& reads, const Spans& writes, std::ptrdiff_t first, int live) {
    if (!overlap(spanOfAll(reads, first, live), spanOfAll(writes, first, live))) return true;
    // At equal strides what holds for the first object holds for all.
    const bool haveEqualStrides =
        !reads.isList() && !writes.isList() && reads.stride0 == writes.stride0;
    const int writers = haveEqualStrides ? 1 : live;
    for (int written = 0; written < writers; ++written) {
        for (int read = written + 1; read < live; ++read) {
            if (overlap(reads(first + read), writes(first + written))) return false;
        }
    }
    return true;
}

bool areApart(const Spans& a, const Spans& b, std::ptrdiff_t count) {
    if (a.isList() || b.isList()) return false;
    if (!overlap(spanOfAll(a, 0, count), spanOfAll(b, 0, count))) return true;
    if (a.stride0 != b.stride0 || a.stride0 == 0) return false;
    const auto structure = static_cast<std::uintptr_t>(a.stride0);
    const std::uintptr_t sizeOfA = a.object0.end - a.object0.begin;
    const std::uintptr_t sizeOfB = b.object0.end - b.object0.begin;
    // From the begin of a to the next begin of an object of b, and from there to the next of a.
    const bool aIsFirst = a.object0.begin <= b.object0.begin;
    const std::uintptr_t distance =
        aIsFirst ? b.object0.begin - a.object0.begin : a.object0.begin - b.object0.begin;
    const std::uintptr_t fromAtoB =
        aIsFirst ? distance % structure : (structure - distance % structure) % structure;
    return sizeOfA <= fromAtoB && fromAtoB + sizeOfB <= structure;
}

bool ReadAhead::mayRead(std::ptrdiff_t first, int live) {
    // Lists that lie apart are found so for many blocks at once.
    if (first + live > lookedUntil) {
        const std::ptrdiff_t objects = std::min(count - first, objectsOfStretch);
        lookedUntil = first + objects;
        if (!overlap(spanOfAll(reads, first, objects), spanOfAll(writes, first, objects))) {
            apartUntil = lookedUntil;
            return true;
        }
    }
    return mayReadAhead(reads, writes, first, live) && objectsMayShare(first, live);
}

bool ReadAhead::objectsMayShare(std::ptrdiff_t first, int live) const {
    if (sharing == Sharing::any) return true;
    for (std::ptrdiff_t object = first; object < first + live; ++object) {
        const Bytes read = reads(object);
        const Bytes written = writes(object);
        const bool isInPlace = samePlaces && read.begin == written.begin;
        if (overlap(read, written) && !isInPlace) return false;
    }
    return true;
}

} // namespace qorm
