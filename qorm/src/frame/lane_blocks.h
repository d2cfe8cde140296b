// Blocks of packs on the stack: element k of lane l of a block is element k of object first + l.
// Idle lanes, behind the last live object, repeat it: no traps, no denormals, no rounds of their own.
#pragma once

#include "frame/operands.h"
#include "frame/static_size.h"
#include "frame/transposition.h"
#include "frame/vectors.h"

#include <algorithm>
#include <array>

namespace qorm {

// A row-major matrix of packs.
template <class V, class N = std::ptrdiff_t>
struct PackMatrix {
    V* base;
    N columns;

    V& operator()(std::ptrdiff_t i, std::ptrdiff_t j) const { return base[i * columns + j]; }
};

template <class V>
struct PackRun {
    V* base;

    V& operator()(std::ptrdiff_t i) const { return base[i]; }
};

// Loads the runs of a register's lanes, of `length` elements each: lane l of at(k) becomes element k
// of runOf(l). A chunk that would reach behind the end of its run begins earlier instead, if it can.
template <Scalar T, int length, class RunOf, class At>
[[gnu::always_inline]] inline void loadRuns(const RunOf& runOf, const At& at) {
    constexpr int lanes = laneCount<Pack<T>>;
    constexpr int live = std::min(lanes, length);
    forEachConstant<(length + lanes - 1) / lanes>([&](auto which) {
        constexpr int from = std::max(0, std::min(which * lanes, length - lanes));
        Register<T> chunk[lanes];
        forEachConstant<lanes>(
            [&](auto lane) { chunk[lane] = loadVector<T, lanes, live>(runOf(lane) + from); });
        transposeRegisters(chunk);
        forEachConstant<live>([&](auto i) { at(from + i) = chunk[i]; });
    });
}

// The way back. Each run is stored whole before the next one.
template <Scalar T, int length, class RunOf, class At>
[[gnu::always_inline]] inline void storeRuns(const RunOf& runOf, int live, const At& at) {
    constexpr int lanes = laneCount<Pack<T>>;
    constexpr int chunks = (length + lanes - 1) / lanes;
    Register<T> registers[chunks][lanes];
    forEachConstant<chunks>([&](auto chunk) {
        forEachConstant<lanes>([&](auto i) {
            registers[chunk][i] = at(std::min<int>(chunk * lanes + i, length - 1));
        });
        transposeRegisters(registers[chunk]);
    });
    forEachConstant<lanes>([&](auto lane) {
        if (lane >= live) return;
        T* const run = runOf(lane);
        forEachConstant<chunks>([&](auto chunk) {
            storeVector<T, lanes, std::min<int>(lanes, length - chunk * lanes)>(
                registers[chunk][lane], run + chunk * lanes);
        });
    });
}

// work(r, at) for each register of a block of packs: at(k) is that of element k.
template <Scalar T, int registers, class Work>
[[gnu::always_inline]] inline void forEachRegister(Pack<T, registers>* block, const Work& work) {
    forEachConstant<registers>(
        [&](auto r) { work(r, [block, r](int k) -> Register<T>& { return block[k].lanes[r]; }); });
}

// The same for objects that lie one behind the other. 3x3 matrices have a shorter way.
template <Scalar T, int length, int registers>
[[gnu::always_inline]] inline void loadPacked(const T* from, Pack<T, registers>* elements) {
    constexpr int lanes = laneCount<Pack<T>>;
    forEachRegister(
        elements, [&](auto r, const auto& at) __attribute__((always_inline)) {
            const T* const begin = from + r * lanes * length;
            if constexpr (length == 9) {
                Register<T> packed[length];
                forEachConstant<length>(
                    [&](auto k) { packed[k] = loadVector<T, lanes, lanes>(begin + k * lanes); });
                OddTransposition<length, lanes>::gather(packed);
                forEachConstant<length>([&](auto k) { at(k) = packed[k]; });
            } else {
                loadRuns<T, length>([begin](int lane) { return begin + lane * length; }, at);
            }
        });
}

template <Scalar T, int length, int registers>
[[gnu::always_inline]] inline void storePacked(T* to, Pack<T, registers>* elements) {
    constexpr int lanes = laneCount<Pack<T>>;
    forEachRegister(
        elements, [&](auto r, const auto& at) __attribute__((always_inline)) {
            T* const begin = to + r * lanes * length;
            if constexpr (length == 9) {
                Register<T> packed[length];
                forEachConstant<length>([&](auto k) { packed[k] = at(k); });
                OddTransposition<length, lanes>::scatter(packed);
                forEachConstant<length>(
                    [&](auto k) { storeVector<T, lanes, lanes>(packed[k], begin + k * lanes); });
            } else {
                storeRuns<T, length>([begin](int lane) { return begin + lane * length; }, lanes,
                                     at);
            }
        });
}

// Where the objects of each lane begin. Idle lanes repeat the last object.
template <int lanes, class Operand>
[[gnu::always_inline]] inline auto addressesOf(const Operand& operand, std::ptrdiff_t first,
                                               int live) {
    const auto addressOf = [&](std::ptrdiff_t n) { return operand.object(n, 0)(0, 0).address(); };
    auto address = addressOf(first);
    std::array<decltype(address), lanes> addresses;
    forEachConstant<lanes>([&](auto lane) {
        addresses[lane] = address;
        if constexpr (Operand::layout == Layout::L)
            address = addressOf(first + std::min(lane + 1, live - 1));
        else
            address = stepped(address, lane + 1 < live ? operand.stride0 : 0);
    });
    return addresses;
}

template <class V, class Operand, class N, class M>
[[gnu::always_inline]] inline void loadLanes(const Operand& operand, std::ptrdiff_t first, int live,
                                             N rows, N columns, PackMatrix<V, M> block) {
    constexpr int lanes = laneCount<V>;
    if (live == lanes && operand.hasObjectsSideBySide()) {
        const auto object = operand.object(first, columns);
        for (std::ptrdiff_t i = 0; i < rows; ++i) {
            for (std::ptrdiff_t j = 0; j < columns; ++j) {
                std::memcpy(&block(i, j), object(i, j).address(), sizeof(V));
            }
        }
        return;
    }
    if constexpr (Operand::hasContiguousRows && isFixed<N> && lanes > 1) {
        using T = LaneType<V>;
        constexpr int n = N::value;
        const bool adjacentRows = operand.hasAdjacentRows(n);
        if (adjacentRows && live == lanes && operand.hasAdjacentObjects(n * n)) {
            return loadPacked<T, n * n>(operand.object(first, n)(0, 0).address(), block.base);
        }
        const std::array<const T*, lanes> objects = addressesOf<lanes>(operand, first, live);
        const std::ptrdiff_t stride1 = operand.stride1;
        forEachRegister(
            block.base, [&](int r, const auto& at) __attribute__((always_inline)) {
                const auto rowOf = [&](std::ptrdiff_t offset) {
                    return [&objects, r, offset](int lane) {
                        return stepped(
                            objects[static_cast<std::size_t>(r * laneCount<Pack<T>> + lane)],
                            offset);
                    };
                };
                if (adjacentRows) {
                    loadRuns<T, n * n>(rowOf(0), at);
                } else {
                    forEachConstant<n>([&](auto i) {
                        loadRuns<T, n>(
                            rowOf(i * stride1), [&](int j) -> auto& { return at(i * n + j); });
                    });
                }
            });
        return;
    }
    for (int lane = 0; lane < lanes; ++lane) {
        const auto object = operand.object(first + std::min(lane, live - 1), columns);
        for (std::ptrdiff_t i = 0; i < rows; ++i) {
            for (std::ptrdiff_t j = 0; j < columns; ++j) {
                reinterpret_cast<LaneType<V>*>(&block(i, j))[lane] = object(i, j);
            }
        }
    }
}

template <class V, class Operand, class N, class M>
[[gnu::always_inline]] inline void storeLanes(const Operand& operand, std::ptrdiff_t first,
                                              int live, N rows, N columns, PackMatrix<V, M> block) {
    constexpr int lanes = laneCount<V>;
    if (live == lanes && operand.hasObjectsSideBySide()) {
        const auto object = operand.object(first, columns);
        for (std::ptrdiff_t i = 0; i < rows; ++i) {
            for (std::ptrdiff_t j = 0; j < columns; ++j) {
                std::memcpy(object(i, j).address(), &block(i, j), sizeof(V));
            }
        }
        return;
    }
    if constexpr (Operand::hasContiguousRows && isFixed<N> && lanes > 1) {
        using T = LaneType<V>;
        constexpr int n = N::value;
        if (operand.hasAdjacentRows(n)) {
            if (live == lanes && operand.hasAdjacentObjects(n * n)) {
                return storePacked<T, n * n>(operand.object(first, n)(0, 0).address(), block.base);
            }
            const std::array<T*, lanes> objects = addressesOf<lanes>(operand, first, live);
            forEachRegister(
                block.base, [&](int r, const auto& at) __attribute__((always_inline)) {
                    const int begin = r * laneCount<Pack<T>>;
                    const auto runOf = [&](int lane) {
                        return objects[static_cast<std::size_t>(begin + lane)];
                    };
                    storeRuns<T, n * n>(runOf, live - begin, at);
                });
            return;
        }
    }
    for (int lane = 0; lane < live; ++lane) {
        const auto object = operand.object(first + lane, columns);
        for (std::ptrdiff_t i = 0; i < rows; ++i) {
            for (std::ptrdiff_t j = 0; j < columns; ++j) {
                object(i, j) = reinterpret_cast<const LaneType<V>*>(&block(i, j))[lane];
            }
        }
    }
}

template <class V, class T, class N>
void storeLanes(const Plain<T>& runs, std::ptrdiff_t first, int live, N elements,
                PackRun<V> block) {
    if (isFixed<N> && elements == 1 && live == laneCount<V>) {
        std::memcpy(runs.object(first).base, block.base, sizeof(V));
        return;
    }
    for (int lane = 0; lane < live; ++lane) {
        const auto run = runs.object(first + lane);
        for (std::ptrdiff_t i = 0; i < elements; ++i) {
            run(i) = reinterpret_cast<const T*>(&block(i))[lane];
        }
    }
}

// All objects in blocks of a pack's lanes, by work.operator()<V>(first, live), which returns a status
// and writes nothing if it fails. A block that fails, or that may not be read ahead, is done again
// object by object, which ends at the right one.
template <class V, class Guard, class Work>
qorStatus inLanes(const Guard& guard, std::ptrdiff_t count, const Work& work) {
    constexpr std::ptrdiff_t lanes = laneCount<V>;
    for (std::ptrdiff_t first = 0; first < count; first += lanes) {
        const int live = static_cast<int>(std::min(lanes, count - first));
        if (live > 1 && guard.allows(first, live) &&
            work.template operator()<V>(first, live) == qorStatusOk) {
            continue;
        }
        for (int k = 0; k < live; ++k) {
            const qorStatus status = work.template operator()<LaneType<V>>(first + k, 1);
            if (status != qorStatusOk) return status;
        }
    }
    return qorStatusOk;
}

} // namespace qorm
