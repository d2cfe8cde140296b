// The bytes that the objects of operands span, and which objects may be read before others are written.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace qorm {

// Bytes [begin, end) of memory.
struct Bytes {
    std::uintptr_t begin;
    std::uintptr_t end;
};

inline bool overlap(Bytes a, Bytes b) {
    return a.begin < b.end && b.begin < a.end;
}
inline Bytes hullOf(Bytes a, Bytes b) {
    return {std::min(a.begin, b.begin), std::max(a.end, b.end)};
}

template <class T>
Bytes bytesOf(const T* base, std::ptrdiff_t bytes) {
    const auto begin = reinterpret_cast<std::uintptr_t>(base);
    return {begin, begin + static_cast<std::uintptr_t>(bytes)};
}

// The bytes that each object of an operand spans.
struct Spans {
    Bytes object0; // in a list, of an object at address 0
    std::ptrdiff_t stride0;
    const void* table = nullptr; // of addresses, in a list

    bool isList() const { return table != nullptr; }

    Bytes operator()(std::ptrdiff_t n) const {
        const std::uintptr_t step =
            isList() ? addressOf(n) : static_cast<std::uintptr_t>(n * stride0);
        return {object0.begin + step, object0.end + step};
    }

    std::uintptr_t addressOf(std::ptrdiff_t n) const {
        std::uintptr_t address;
        std::memcpy(&address, static_cast<const char*>(table) + n * std::ptrdiff_t{sizeof address},
                    sizeof address);
        return address;
    }
};

// The bytes that so many objects from `first` on span together.
Bytes spanOfAll(const Spans& spans, std::ptrdiff_t first, std::ptrdiff_t objects);

// Whether all objects first .. first + live - 1 may be read before the first of them is written: no
// object is written over one that stands behind it.
bool mayReadAhead(const Spans& reads, const Spans& writes, std::ptrdiff_t first, int live);

// Whether no object of one operand overlaps any object of the other, as far as is known: apart
// altogether, or fields of one array of structures. Lists are not looked through.
bool areApart(const Spans& a, const Spans& b, std::ptrdiff_t count);

// How the source and the destination of one object may share memory where a kernel reads all of the
// object before it writes any.
enum class Sharing {
    any,    // the contract reads all of it first, too
    places, // each element is read before its own place is written, and no other is read after that
    none
};

// So many objects are looked through at once.
inline constexpr std::ptrdiff_t objectsOfStretch = 256;

// Which runs of objects may be read all before the first of them is written. Runs are asked for in
// ascending order.
class ReadAhead {
public:
    ReadAhead(const Spans& read, const Spans& written, std::ptrdiff_t objects,
              Sharing sharingOfObjects = Sharing::any)
        : reads(read),
          writes(written),
          count(objects),
          sharing(sharingOfObjects),
          always(areApart(read, written, objects)) {}

    bool allows(std::ptrdiff_t first, int live) {
        if (always || first + live <= apartUntil) return true;
        return !never && mayRead(first, live);
    }

    void allowAlways() { always = true; }
    void allowNever() {
        always = false;
        never = true;
    }
    void sharesPlaces(bool shared) { samePlaces = shared; }

private:
    bool mayRead(std::ptrdiff_t first, int live);
    bool objectsMayShare(std::ptrdiff_t first, int live) const;

    Spans reads;
    Spans writes;
    std::ptrdiff_t count;
    std::ptrdiff_t lookedUntil = 0; // how far lists have been looked through together
    std::ptrdiff_t apartUntil = 0;  // what was found apart
    Sharing sharing;
    bool always;
    bool never = false;
    bool samePlaces = false;
};

// work(first, end, apart) on one stretch of objects after the other: where `apart`, none of them is
// written over any that is read there. Lists are looked through.
template <class Work, class... Sources>
void inStretches(const Spans& writes, std::ptrdiff_t count, const Work& work,
                 const Sources&... reads) {
    for (std::ptrdiff_t first = 0; first < count; first += objectsOfStretch) {
        const std::ptrdiff_t objects = std::min(count - first, objectsOfStretch);
        const Bytes written = spanOfAll(writes, first, objects);
        work(first, first + objects, (!overlap(spanOfAll(reads, first, objects), written) && ...));
    }
}

} // namespace qorm
