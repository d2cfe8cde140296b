// Blocks of packs on the stack: element k of lane l of a block is element k of object first + l.
// Idle lanes, behind the last live object, repeat it: no traps, no denormals, no rounds of their own.
#pragma once

#include "frame/lanes.h"
#include "frame/operands.h"

#include <algorithm>
#include <array>

namespace qorm {

// A row-major matrix of packs.
template <class V>
struct PackMatrix {
    V* base;
    std::ptrdiff_t columns;

    V& operator()(std::ptrdiff_t i, std::ptrdiff_t j) const { return base[i * columns + j]; }
};

template <class V>
struct PackRun {
    V* base;

    V& operator()(std::ptrdiff_t i) const { return base[i]; }
};

template <class V, class Operand, class N>
void loadLanes(const Operand& operand, std::ptrdiff_t first, int live, N rows, N columns,
               PackMatrix<V> block) {
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
    for (int lane = 0; lane < lanes; ++lane) {
        const auto object = operand.object(first + std::min(lane, live - 1), columns);
        for (std::ptrdiff_t i = 0; i < rows; ++i) {
            for (std::ptrdiff_t j = 0; j < columns; ++j) {
                reinterpret_cast<LaneType<V>*>(&block(i, j))[lane] = object(i, j);
            }
        }
    }
}

template <class V, class Operand, class N>
void storeLanes(const Operand& operand, std::ptrdiff_t first, int live, N rows, N columns,
                PackMatrix<V> block) {
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
    for (int lane = 0; lane < live; ++lane) {
        const auto run = runs.object(first + lane);
        for (std::ptrdiff_t i = 0; i < elements; ++i) {
            run(i) = reinterpret_cast<const T*>(&block(i))[lane];
        }
    }
}

} // namespace qorm
