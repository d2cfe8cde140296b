// Runs of elements into registers and back, one run for each lane: element k of lane l of a block is
// element k of run l.
#pragma once

#include "frame/runs.h"
#include "frame/static_size.h"
#include "frame/transposition.h"
#include "frame/vectors.h"

#include <algorithm>

namespace qorm {

// The part of a matrix that is read or written.
enum class Part { whole, lowerTriangle };

template <Part part>
constexpr std::ptrdiff_t columnsOfRow(std::ptrdiff_t row, std::ptrdiff_t columns) {
    return part == Part::whole ? columns : row + 1;
}

// Which elements of a run belong to the part, in matrices whose rows, or that themselves, are adjacent.
template <Part part, int rows, int columns>
struct Belonging {
    static constexpr bool isAll = part == Part::whole;

    static constexpr bool at(int k) {
        return part == Part::whole || k % columns <= k / columns % rows;
    }
    static constexpr unsigned maskOf(int begin, int end) {
        unsigned mask = 0;
        for (int k = begin; k < end; ++k) mask |= at(k) ? 1U << (k - begin) : 0;
        return mask;
    }
};

// Runs are loaded and stored in chunks of a register's length. One that would reach behind the end of
// its run begins earlier instead, if it can. Many chunks are a loop where the block that they belong to
// would not stay in registers anyway.
template <int length, int lanes, bool inMemory>
struct Chunks {
    static constexpr int count = (length + lanes - 1) / lanes;
    static constexpr bool areLoop = count > 2 && (inMemory || length > 36);

    static constexpr int beginOf(int chunk) {
        return std::max(0, std::min(chunk * lanes, length - lanes));
    }
};

// Loads the runs of a register's lanes, of `length` elements each: lane l of at(k) becomes element k
// of runOf(l).
template <Scalar T, int length, bool inMemory, class RunOf, class At>
[[gnu::always_inline]] inline void loadRuns(const RunOf& runOf, const At& at) {
    constexpr int lanes = laneCount<Pack<T>>;
    constexpr int live = std::min(lanes, length);
    using InChunks = Chunks<length, lanes, inMemory>;
    const auto loadChunk = [&](int begin) __attribute__((always_inline)) {
        Register<T> chunk[lanes];
        forEachConstant(
            upTo<lanes>, [&](auto lane) __attribute__((always_inline)) {
                chunk[lane] = loadVector<T, lanes, live>(runOf(lane) + begin);
            });
        transposeRegisters(chunk);
        forEachConstant(
            upTo<live>, [&](auto i) __attribute__((always_inline)) { at(begin + i) = chunk[i]; });
    };
    if constexpr (InChunks::areLoop) {
        for (int chunk = 0; chunk < InChunks::count; ++chunk) loadChunk(InChunks::beginOf(chunk));
    } else {
        forEachConstant(
            upTo<InChunks::count>, [&](auto chunk) __attribute__((always_inline)) {
                loadChunk(InChunks::beginOf(chunk));
            });
    }
}

// The way back. Each run is stored whole before the next one.
template <Scalar T, int length, class InChunks, class RunOf, class At>
[[gnu::always_inline]] inline void storeInLoop(const RunOf& runOf, int live, const At& at) {
    constexpr int lanes = laneCount<Pack<T>>;
    Register<T> registers[InChunks::count][lanes];
    for (int chunk = 0; chunk < InChunks::count; ++chunk) {
        forEachConstant(
            upTo<lanes>, [&](auto i) __attribute__((always_inline)) {
                registers[chunk][i] = at(InChunks::beginOf(chunk) + i);
            });
        transposeRegisters(registers[chunk]);
    }
    for (int lane = 0; lane < std::min(lanes, live); ++lane) {
        T* const run = runOf(lane);
        for (int chunk = 0; chunk < InChunks::count; ++chunk) {
            storeVector<T, lanes, lanes>(registers[chunk][lane], run + InChunks::beginOf(chunk));
        }
    }
}

// The same for the elements that belong.
template <Scalar T, int length, bool inMemory, class Belongs, class RunOf, class At>
[[gnu::always_inline]] inline void storeRuns(const RunOf& runOf, int live, const At& at) {
    constexpr int lanes = laneCount<Pack<T>>;
    using InChunks = Chunks<length, lanes, inMemory>;
    constexpr int chunks = InChunks::count;
    if constexpr (Belongs::isAll && InChunks::areLoop)
        return storeInLoop<T, length, InChunks>(runOf, live, at);
    Register<T> registers[chunks][lanes];
    forEachConstant(
        upTo<chunks>, [&](auto chunk) __attribute__((always_inline)) {
            forEachConstant(
                upTo<lanes>, [&](auto i) __attribute__((always_inline)) {
                    registers[chunk][i] = at(std::min<int>(chunk * lanes + i, length - 1));
                });
            transposeRegisters(registers[chunk]);
        });
    forEachConstant(
        upTo<lanes>, [&](auto lane) __attribute__((always_inline)) {
            if (lane >= live) return;
            T* const run = runOf(lane);
            forEachConstant(
                upTo<chunks>, [&](auto chunk) __attribute__((always_inline)) {
                    constexpr int begin = chunk * lanes;
                    constexpr unsigned mask =
                        Belongs::maskOf(begin, std::min(begin + lanes, length));
                    storeLanesOf<T, lanes, mask>(registers[chunk][lane], run + begin);
                });
        });
}

// Both for runs whose length is known at run time only.
template <Scalar T, class RunOf, class At>
[[gnu::always_inline]] inline void loadRuns(const RunOf& runOf, int length, const At& at) {
    constexpr int lanes = laneCount<Pack<T>>;
    for (int from = 0; from < length; from += lanes) {
        const int live = std::min(lanes, length - from);
        Register<T> chunk[lanes];
        forEachConstant(
            upTo<lanes>, [&](auto lane) __attribute__((always_inline)) {
                const T* const begin = runOf(lane) + from;
                chunk[lane] = (live == lanes ? loadRun(begin) : loadRun(begin, live)).lanes[0];
            });
        transposeRegisters(chunk);
        forEachConstant(
            upTo<lanes>, [&](auto i) __attribute__((always_inline)) {
                if (i < live) at(from + i) = chunk[i];
            });
    }
}

template <Scalar T, class RunOf, class At>
[[gnu::always_inline]] inline void storeRuns(const RunOf& runOf, int length, int liveLanes,
                                             const At& at) {
    constexpr int lanes = laneCount<Pack<T>>;
    for (int from = 0; from < length; from += lanes) {
        const int live = std::min(lanes, length - from);
        Pack<T> chunk[lanes];
        for (int i = 0; i < lanes; ++i) chunk[i].lanes[0] = at(from + std::min(i, live - 1));
        transposeRegisters(reinterpret_cast<Register<T>(&)[lanes]>(chunk));
        for (int lane = 0; lane < std::min(lanes, liveLanes); ++lane) {
            T* const begin = runOf(lane) + from;
            if (live == lanes)
                storeRun(begin, chunk[lane]);
            else
                storeRun(begin, chunk[lane], live);
        }
    }
}

// One register of each pack of a block.
template <Scalar T, int registers>
struct RegistersOf {
    Pack<T, registers>* block;
    int which;

    [[gnu::always_inline]] Register<T>& operator()(std::ptrdiff_t k) const {
        return block[k].lanes[which];
    }
    RegistersOf from(std::ptrdiff_t k) const { return {block + k, which}; }
};

// work(r, at) for each register of a block of packs: at(k) is that of element k.
template <Scalar T, int registers, class Work>
[[gnu::always_inline]] inline void forEachRegister(Pack<T, registers>* block, const Work& work) {
    forEachConstant(
        upTo<registers>, [&](auto r) __attribute__((always_inline)) {
            work(r, RegistersOf<T, registers>{block, r});
        });
}

// The same for objects that lie one behind the other.
template <Scalar T, int length, int registers>
[[gnu::always_inline]] inline void loadPacked(const T* from, Pack<T, registers>* elements) {
    constexpr int lanes = laneCount<Pack<T>>;
    forEachRegister(
        elements, [&](auto r, const auto& at) __attribute__((always_inline)) {
            const T* const begin = from + r * lanes * length;
            if constexpr (hasPackedTransposition<length>) {
                Register<T> packed[length];
                forEachConstant(
                    upTo<length>, [&](auto k) __attribute__((always_inline)) {
                        packed[k] = loadVector<T, lanes, lanes>(begin + k * lanes);
                    });
                PackedTransposition<length, lanes>::gather(packed);
                forEachConstant(
                    upTo<length>, [&](auto k)
                                      __attribute__((always_inline)) { at(k) = packed[k]; });
            } else {
                loadRuns<T, length, false>(
                    [begin](int lane)
                        __attribute__((always_inline)) { return begin + lane * length; },
                    at);
            }
        });
}

template <Scalar T, int length, class Belongs, int registers>
[[gnu::always_inline]] inline void storePacked(T* to, Pack<T, registers>* elements) {
    constexpr int lanes = laneCount<Pack<T>>;
    forEachRegister(
        elements, [&](auto r, const auto& at) __attribute__((always_inline)) {
            T* const begin = to + r * lanes * length;
            if constexpr (hasPackedTransposition<length>) {
                Register<T> packed[length];
                forEachConstant(
                    upTo<length>, [&](auto k)
                                      __attribute__((always_inline)) { packed[k] = at(k); });
                PackedTransposition<length, lanes>::scatter(packed);
                forEachConstant(
                    upTo<length>, [&](auto k) __attribute__((always_inline)) {
                        constexpr unsigned mask = Belongs::maskOf(k * lanes, (k + 1) * lanes);
                        storeLanesOf<T, lanes, mask>(packed[k], begin + k * lanes);
                    });
            } else {
                storeRuns<T, length, false, Belongs>(
                    [begin](int lane)
                        __attribute__((always_inline)) { return begin + lane * length; },
                    lanes, at);
            }
        });
}

} // namespace qorm
