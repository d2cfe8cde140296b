// Blocks of packs on the stack: element k of lane l of a block is element k of object first + l.
// Idle lanes, behind the last live object, repeat it: no traps, no denormals, no rounds of their own.
#pragma once

#include "frame/lane_runs.h"
#include "frame/operands.h"

#include <algorithm>
#include <array>
#include <cstdint>

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

// Where the objects of each lane begin. Idle lanes repeat the last object.
template <int lanes, class Operand>
[[gnu::noinline]] auto addressesOf(const Operand& operand, std::ptrdiff_t first, int live) {
    const auto addressOf = [&](std::ptrdiff_t n) __attribute__((always_inline)) {
        return operand.object(n, 0)(0, 0).address();
    };
    auto address = addressOf(first);
    std::array<decltype(address), lanes> addresses;
    if (operand.isList()) {
        forEachConstant(
            upTo<lanes>, [&](auto lane) __attribute__((always_inline)) {
                addresses[lane] = address;
                address = addressOf(first + std::min(lane + 1, live - 1));
            });
    } else {
        forEachConstant(
            upTo<lanes>, [&](auto lane) __attribute__((always_inline)) {
                addresses[lane] = address;
                address = stepped(address, lane + 1 < live ? operand.stride0 : 0);
            });
    }
    return addresses;
}

// Whether so many objects of a list lie apart. Without branches: how their addresses follow each other
// can't be predicted.
template <class T, std::size_t lanes>
[[gnu::noinline]] bool areListedApart(const std::array<T*, lanes>& objects, int live,
                                      std::ptrdiff_t bytes) {
    const auto addressOf = [&](std::size_t k) {
        return reinterpret_cast<std::uintptr_t>(objects[k]);
    };
    const auto length = static_cast<std::uintptr_t>(bytes);
    bool overlaps = false;
    for (std::size_t k = 1; k < static_cast<std::size_t>(live); ++k) {
        for (std::size_t before = 0; before < k; ++before) {
            const std::uintptr_t distance = addressOf(k) - addressOf(before);
            overlaps |= distance + length - 1 < 2 * length - 1; // -length < distance < length
        }
    }
    return !overlaps;
}

// Whether the objects of all live lanes lie apart, so that the order in which they are written does
// not show.
template <class Operand, class T, std::size_t lanes>
bool lieApart(const Operand& operand, const std::array<T*, lanes>& objects, int live,
              std::ptrdiff_t bytes) {
    return operand.isList() ? areListedApart(objects, live, bytes) : operand.stride0 >= bytes;
}

// Element (i, j) of the part to its place in a block of such a size, or from there.
template <Part part, int rows, int columns, class Work>
[[gnu::always_inline]] inline void forEachOf(const Work& work) {
    forEachConstant(
        upTo<rows>, [&](auto i) __attribute__((always_inline)) {
            forEachConstant(
                upTo<static_cast<int>(columnsOfRow<part>(i, columns))>, [&](auto j) __attribute__((
                                                                            always_inline)) {
                    work(i * columns + j);
                });
        });
}

// The objects of one register's lanes, each of contiguous rows. What is not packed all over shares
// this code.
template <Part part, Scalar T, int rows, int columns>
[[gnu::noinline]] void loadObjects(const T* const* objects, bool adjacentRows,
                                   std::ptrdiff_t stride1, Register<T>* elements) {
    if (adjacentRows) {
        loadRuns<T, rows * columns, true>(
            [objects](int lane) __attribute__((always_inline)) { return objects[lane]; },
            [elements](int k) __attribute__((always_inline))->auto& { return elements[k]; });
        return;
    }
    const auto loadRow = [&]<int length>(int i, std::integral_constant<int, length>)
        __attribute__((always_inline)) {
        loadRuns<T, length, true>(
            [ objects, offset = i * stride1 ](int lane)
                __attribute__((always_inline)) { return stepped(objects[lane], offset); },
            [row = elements + i * columns](int j) __attribute__((always_inline))->auto& {
                return row[j];
            });
    };
    if constexpr (part == Part::whole) {
        for (int i = 0; i < rows; ++i) loadRow(i, std::integral_constant<int, columns>());
    } else {
        forEachConstant(
            upTo<rows>, [&](auto i) __attribute__((always_inline)) {
                loadRow(i, std::integral_constant<int, columnsOfRow<part>(i, columns)>());
            });
    }
}

// The way back, for adjacent rows.
template <Part part, Scalar T, int rows, int columns>
[[gnu::noinline]] void storeObjects(T* const* objects, int live, const Register<T>* elements) {
    storeRuns<T, rows * columns, true, Belonging<part, rows, columns>>(
        [objects](int lane) __attribute__((always_inline)) { return objects[lane]; },
        live, [elements](int k) __attribute__((always_inline)) { return elements[k]; });
}

// Both for sizes known at run time only, whose elements have their places in a block of packs.
template <Part part, Scalar T, class At>
[[gnu::noinline]] void loadObjects(const T* const* objects, bool adjacentRows,
                                   std::ptrdiff_t stride1, std::ptrdiff_t rows,
                                   std::ptrdiff_t columns, const At at) {
    if (adjacentRows) {
        return loadRuns<T>(
            [objects](int lane) __attribute__((always_inline)) { return objects[lane]; },
            static_cast<int>(rows * columns), at);
    }
    for (std::ptrdiff_t i = 0; i < rows; ++i) {
        loadRuns<T>(
            [ objects, offset = i * stride1 ](int lane)
                __attribute__((always_inline)) { return stepped(objects[lane], offset); },
            static_cast<int>(columnsOfRow<part>(i, columns)), at.from(i * columns));
    }
}

template <Part part, Scalar T, class At>
[[gnu::noinline]] void storeObjects(T* const* objects, bool adjacentRows, std::ptrdiff_t stride1,
                                    std::ptrdiff_t rows, std::ptrdiff_t columns, int live,
                                    const At at) {
    if (adjacentRows && part == Part::whole) {
        return storeRuns<T>(
            [objects](int lane) __attribute__((always_inline)) { return objects[lane]; },
            static_cast<int>(rows * columns), live, at);
    }
    for (std::ptrdiff_t i = 0; i < rows; ++i) {
        storeRuns<T>(
            [ objects, offset = i * stride1 ](int lane)
                __attribute__((always_inline)) { return stepped(objects[lane], offset); },
            static_cast<int>(columnsOfRow<part>(i, columns)), live, at.from(i * columns));
    }
}

// Rows of contiguous elements, in registers. What lies between the elements of a lower triangle is
// read with them where rows are adjacent: never on a page that holds none of them.
template <Part part, class V, class Operand, class Rows, class Columns, class M>
[[gnu::always_inline]] inline void loadRows(const Operand& operand, std::ptrdiff_t first, int live,
                                            Rows rows, Columns columns, PackMatrix<V, M> block) {
    using T = LaneType<V>;
    constexpr int lanes = laneCount<V>;
    const bool adjacentRows = operand.hasAdjacentRows(columns);
    if constexpr (isFixed<Rows> && isFixed<Columns>) {
        constexpr int length = rows * columns;
        if (adjacentRows && live == lanes && operand.hasAdjacentObjects(length)) {
            const auto begin = operand.object(first, columns)(0, 0).address();
            return loadPacked<T, length>(begin, block.base);
        }
    }
    const std::array<const T*, lanes> objects = addressesOf<lanes>(operand, first, live);
    const std::ptrdiff_t stride1 = operand.stride1;
    forEachRegister(
        block.base, [&](auto r, const auto& at) __attribute__((always_inline)) {
            const T* const* const ofRegister = &objects[r * laneCount<Pack<T>>];
            if constexpr (isFixed<Rows> && isFixed<Columns>) {
                Register<T> elements[rows * columns];
                loadObjects<part, T, rows, columns>(ofRegister, adjacentRows, stride1, elements);
                forEachOf<part, rows, columns>([&](auto k) __attribute__((always_inline)) {
                    at(k) = elements[k];
                });
            } else {
                loadObjects<part, T>(ofRegister, adjacentRows, stride1, rows, columns, at);
            }
        });
}

// The way back. False where nothing was stored, since it is no gain.
template <Part part, class V, class Operand, class Rows, class Columns, class M>
[[gnu::always_inline]] inline bool storeRows(const Operand& operand, std::ptrdiff_t first, int live,
                                             Rows rows, Columns columns, PackMatrix<V, M> block) {
    using T = LaneType<V>;
    constexpr int lanes = laneCount<V>;
    constexpr bool isFixedSize = isFixed<Rows> && isFixed<Columns>;
    const bool adjacentRows = operand.hasAdjacentRows(columns);
    if (isFixedSize && !adjacentRows) return false;
    if constexpr (isFixedSize) {
        constexpr int length = rows * columns;
        if (live == lanes && operand.hasAdjacentObjects(length)) {
            storePacked<T, length, Belonging<part, rows, columns>>(
                operand.object(first, columns)(0, 0).address(), block.base);
            return true;
        }
    }
    const std::array<T*, lanes> objects = addressesOf<lanes>(operand, first, live);
    const std::ptrdiff_t stride1 = operand.stride1;
    // What fits a register is stored object by object anyway.
    const bool areWhole =
        part == Part::whole && adjacentRows && rows * columns <= laneCount<Pack<T>>;
    if (!isFixedSize && !areWhole &&
        !lieApart(operand, objects, live, spanOfMatrix<T>(stride1, sizeof(T), rows, columns))) {
        return false;
    }
    forEachRegister(
        block.base, [&](auto r, const auto& at) __attribute__((always_inline)) {
            constexpr int begin = r * laneCount<Pack<T>>;
            if constexpr (isFixedSize) {
                Register<T> elements[rows * columns];
                forEachOf<part, rows, columns>([&](auto k) __attribute__((always_inline)) {
                    elements[k] = at(k);
                });
                storeObjects<part, T, rows, columns>(&objects[begin], live - begin, elements);
            } else {
                storeObjects<part, T>(&objects[begin], adjacentRows, stride1, rows, columns,
                                      live - begin, at);
            }
        });
    return true;
}

// Element by element, for all other layouts. What has no registers of its own shares this code; a
// block that it does not see can be held in registers.
template <Part part, class V, class Operand, class Rows, class Columns, class M>
[[gnu::noinline]] void loadElements(const Operand operand, std::ptrdiff_t first, int live,
                                    Rows rows, Columns columns, PackMatrix<V, M> block) {
    for (int lane = 0; lane < laneCount<V>; ++lane) {
        const auto object = operand.object(first + std::min(lane, live - 1), columns);
        for (std::ptrdiff_t i = 0; i < rows; ++i) {
            for (std::ptrdiff_t j = 0; j < columnsOfRow<part>(i, columns); ++j) {
                reinterpret_cast<LaneType<V>*>(&block(i, j))[lane] = object(i, j);
            }
        }
    }
}

template <Part part, class V, class Operand, class Rows, class Columns, class M>
[[gnu::noinline]] void storeElements(const Operand operand, std::ptrdiff_t first, int live,
                                     Rows rows, Columns columns, PackMatrix<V, M> block) {
    for (int lane = 0; lane < live; ++lane) {
        const auto object = operand.object(first + lane, columns);
        for (std::ptrdiff_t i = 0; i < rows; ++i) {
            for (std::ptrdiff_t j = 0; j < columnsOfRow<part>(i, columns); ++j) {
                object(i, j) = laneOf(block(i, j), lane);
            }
        }
    }
}

// Objects first .. first + live - 1 into the lanes of a block.
template <Part part = Part::whole, class V, class Operand, class Rows, class Columns, class M>
[[gnu::always_inline]] inline void loadLanes(const Operand& operand, std::ptrdiff_t first, int live,
                                             Rows rows, Columns columns, PackMatrix<V, M> block) {
    constexpr int lanes = laneCount<V>;
    if (live == lanes && (lanes == 1 || operand.hasObjectsSideBySide())) {
        const auto object = operand.object(first, columns);
        for (std::ptrdiff_t i = 0; i < rows; ++i) {
            for (std::ptrdiff_t j = 0; j < columnsOfRow<part>(i, columns); ++j) {
                block(i, j) = loadWhole<V>(object(i, j).address());
            }
        }
        return;
    }
    if constexpr (Operand::hasContiguousRows && lanes > 1) {
        return loadRows<part>(operand, first, live, rows, columns, block);
    }
    if constexpr (isFixed<Rows> && isFixed<Columns> && lanes > 1) {
        V elements[rows * columns];
        loadElements<part>(operand, first, live, rows, columns,
                           PackMatrix<V, Columns>{elements, columns});
        forEachRegister(
            elements, [&](auto r, const auto& at) __attribute__((always_inline)) {
                forEachOf<part, rows, columns>([&](auto k) __attribute__((always_inline)) {
                    block(k / columns, k % columns).lanes[r] = at(k);
                });
            });
    } else {
        loadElements<part>(operand, first, live, rows, columns, block);
    }
}

template <Part part = Part::whole, class V, class Operand, class Rows, class Columns, class M>
[[gnu::always_inline]] inline void storeLanes(const Operand& operand, std::ptrdiff_t first,
                                              int live, Rows rows, Columns columns,
                                              PackMatrix<V, M> block) {
    constexpr int lanes = laneCount<V>;
    if (live == lanes && (lanes == 1 || operand.hasObjectsSideBySide())) {
        const auto object = operand.object(first, columns);
        for (std::ptrdiff_t i = 0; i < rows; ++i) {
            for (std::ptrdiff_t j = 0; j < columnsOfRow<part>(i, columns); ++j) {
                storeWhole(object(i, j).address(), block(i, j));
            }
        }
        return;
    }
    if constexpr (Operand::hasContiguousRows && lanes > 1) {
        if (storeRows<part>(operand, first, live, rows, columns, block)) return;
    }
    if constexpr (isFixed<Rows> && isFixed<Columns> && lanes > 1) {
        V elements[rows * columns];
        forEachRegister(
            elements, [&](auto r, const auto& at) __attribute__((always_inline)) {
                forEachOf<part, rows, columns>([&](auto k) __attribute__((always_inline)) {
                    at(k) = block(k / columns, k % columns).lanes[r];
                });
            });
        storeElements<part>(operand, first, live, rows, columns,
                            PackMatrix<V, Columns>{elements, columns});
    } else {
        storeElements<part>(operand, first, live, rows, columns, block);
    }
}

// The same with the rows of each lane in an order of their own: row i of the block is row
// rowOf(lane, i) of the object.
template <class V, class Operand, class N, class RowOf>
void loadLanesInOrder(const Operand& operand, std::ptrdiff_t first, int live, N n,
                      const RowOf& rowOf, PackMatrix<V, N> block) {
    using T = LaneType<V>;
    constexpr int lanes = laneCount<V>;
    if constexpr (Operand::hasContiguousRows && lanes > 1) {
        const std::array<const T*, lanes> objects = addressesOf<lanes>(operand, first, live);
        forEachRegister(
            block.base, [&](int r, const auto& at) __attribute__((always_inline)) {
                for (std::ptrdiff_t i = 0; i < n; ++i) {
                    const auto rowIn = [&](int registerLane) __attribute__((always_inline)) {
                        const int lane = r * laneCount<Pack<T>> + registerLane;
                        return stepped(objects[static_cast<std::size_t>(lane)],
                                       rowOf(lane, i) * operand.stride1);
                    };
                    loadRuns<T>(
                        rowIn, static_cast<int>(n),
                        [&](std::ptrdiff_t j) __attribute__((always_inline))->auto& {
                            return at(i * n + j);
                        });
                }
            });
        return;
    }
    for (int lane = 0; lane < lanes; ++lane) {
        const auto object = operand.object(first + std::min(lane, live - 1), n);
        for (std::ptrdiff_t i = 0; i < n; ++i) {
            const std::ptrdiff_t row = rowOf(lane, i);
            for (std::ptrdiff_t j = 0; j < n; ++j) {
                reinterpret_cast<T*>(&block(i, j))[lane] = object(row, j);
            }
        }
    }
}

template <class V, class Operand, class N, class RowOf>
void storeLanesInOrder(const Operand& operand, std::ptrdiff_t first, int live, N n,
                       const RowOf& rowOf, PackMatrix<V, N> block) {
    using T = LaneType<V>;
    constexpr int lanes = laneCount<V>;
    if constexpr (Operand::hasContiguousRows && lanes > 1) {
        const std::array<T*, lanes> objects = addressesOf<lanes>(operand, first, live);
        const std::ptrdiff_t stride1 = operand.stride1;
        if (lieApart(operand, objects, live, spanOfMatrix<T>(stride1, sizeof(T), n, n))) {
            forEachRegister(
                block.base, [&](int r, const auto& at) __attribute__((always_inline)) {
                    const int begin = r * laneCount<Pack<T>>;
                    for (std::ptrdiff_t i = 0; i < n; ++i) {
                        const auto rowIn = [&](int registerLane) __attribute__((always_inline)) {
                            const int lane = begin + registerLane;
                            return stepped(objects[static_cast<std::size_t>(lane)],
                                           rowOf(lane, i) * stride1);
                        };
                        storeRuns<T>(
                            rowIn, static_cast<int>(n), live - begin,
                            [&](std::ptrdiff_t j) __attribute__((always_inline))->auto& {
                                return at(i * n + j);
                            });
                    }
                });
            return;
        }
    }
    for (int lane = 0; lane < live; ++lane) {
        const auto object = operand.object(first + lane, n);
        for (std::ptrdiff_t i = 0; i < n; ++i) {
            const std::ptrdiff_t row = rowOf(lane, i);
            for (std::ptrdiff_t j = 0; j < n; ++j) object(row, j) = laneOf(block(i, j), lane);
        }
    }
}

// Plain runs, whose elements may be integers.
template <class V, class T, class N>
void loadLanes(const Plain<T>& runs, std::ptrdiff_t first, int live, N elements, PackRun<V> block) {
    for (int lane = 0; lane < laneCount<V>; ++lane) {
        const auto run = runs.object(first + std::min(lane, live - 1));
        for (std::ptrdiff_t i = 0; i < elements; ++i) {
            reinterpret_cast<LaneType<V>*>(&block(i))[lane] =
                static_cast<LaneType<V>>(std::remove_const_t<T>(run(i)));
        }
    }
}

template <class V, class T, class N>
void storeLanes(const Plain<T>& runs, std::ptrdiff_t first, int live, N elements,
                PackRun<V> block) {
    if constexpr (std::is_same_v<T, LaneType<V>> && isFixed<N> && elements == 1) {
        if (live == laneCount<V>) {
            storeWhole(runs.object(first).base, block(0));
            return;
        }
    }
    for (int lane = 0; lane < live; ++lane) {
        const auto run = runs.object(first + lane);
        for (std::ptrdiff_t i = 0; i < elements; ++i) {
            run(i) = static_cast<T>(reinterpret_cast<const LaneType<V>*>(&block(i))[lane]);
        }
    }
}

// Objects one after the other. That is the exception, so the code is to be small.
template <class T, class Work>
[[gnu::cold, gnu::noinline, gnu::flatten]] qorStatus inTurn(std::ptrdiff_t first, int live,
                                                            const Work& work) {
    for (int k = 0; k < live; ++k) {
        const qorStatus status = work.template operator()<T>(first + k, 1);
        if (status != qorStatusOk) return status;
    }
    return qorStatusOk;
}

// All objects in blocks of a pack's lanes, by work.operator()<V>(first, live), which returns a status
// and writes nothing if it fails. A block that fails, or that may not be read ahead, is done again
// object by object, which ends at the right one. Blocks are compiled into the loop, where their operands
// stay in registers.
template <class V, class Guard, class Work>
QORM_KERNEL qorStatus inLanes(Guard guard, std::ptrdiff_t count, const Work work) {
    constexpr std::ptrdiff_t lanes = laneCount<V>;
    for (std::ptrdiff_t first = 0; first < count; first += lanes) {
        const int live = static_cast<int>(std::min(lanes, count - first));
        if (live > 1 && guard.allows(first, live) &&
            work.template operator()<V>(first, live) == qorStatusOk) {
            continue;
        }
        if (const qorStatus status = inTurn<LaneType<V>>(first, live, work)) return status;
    }
    return qorStatusOk;
}

} // namespace qorm
