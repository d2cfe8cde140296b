// Moves between matrices whose rows are contiguous: runs of elements, or blocks transposed in
// registers. Source and destination of an object are apart.
#pragma once

#include "frame/held_rows.h"
#include "frame/static_size.h"
#include "movement/in_order.h"

#include <numeric>
#include <optional>

namespace qorm::movement {

// The C library is faster from here on.
inline constexpr std::ptrdiff_t longRun = 256;

template <class T>
[[gnu::always_inline]] inline void moveRun(const T* from, T* to, std::ptrdiff_t elements) {
    constexpr int lanes = laneCount<Pack<T>>;
    if (elements >= longRun) {
        std::memcpy(to, from, static_cast<std::size_t>(elements) * sizeof(T));
        return;
    }
    for (; elements > lanes; elements -= lanes, from += lanes, to += lanes) {
        storeRun(to, loadRun(from));
    }
    storeRun(to, loadRun(from, static_cast<int>(elements)), static_cast<int>(elements));
}

// Moves of constant length need no masks, which are slow to store by.
template <std::ptrdiff_t elements, class T>
[[gnu::always_inline]] inline void moveRun(const T* from, T* to, Fixed<elements>) {
    std::memcpy(to, from, elements * sizeof(T));
}

template <class T, class Rows, class Columns>
[[gnu::always_inline]] inline void moveRows(const StridedMatrix<const T, true>& from,
                                            const StridedMatrix<T, true>& to, Rows rows,
                                            Columns columns, bool adjacentRows) {
    if (adjacentRows) return moveRun(from.base, to.base, area(rows, columns));
    for (std::ptrdiff_t i = 0; i < rows; ++i) {
        moveRun(from(i, 0).address(), to(i, 0).address(), columns);
    }
}

// work(rows, columns) with constants for vectors of 3 to 6 elements and such squares.
template <class Src, class Work>
void withMovedExtent(const Extent& result, const Work& work) {
    if constexpr (holdsVectors<Src>) {
        withStaticSize(result.columns, [&](auto columns) { work(Fixed<1>(), columns); });
    } else {
        withStaticSquare(result.columns, result.rows,
                         [&](auto columns, auto rows) { work(rows, columns); });
    }
}

// Squares of this size in gap-free blocks, whose registers are permuted.
template <class T, int n>
inline constexpr bool isTransposedByGathering =
    hasGathering&& n* n <= 4 * laneCount<Pack<T>>&& n <= 6;

// As few objects as fill whole registers.
template <class T, int n>
inline constexpr int objectsOfWholeRegisters = laneCount<Pack<T>> /
                                               std::gcd(n* n, laneCount<Pack<T>>);

template <class T, int n, int objects>
[[gnu::always_inline]] inline void transposePacked(const T* from, T* to) {
    constexpr int lanes = laneCount<Pack<T>>;
    constexpr int elements = objects * n * n;
    constexpr auto wantedIn = [](int which) {
        std::array<int, lanes> wanted{};
        for (int lane = 0; lane < lanes; ++lane) {
            const int k = std::min(which * lanes + lane, elements - 1);
            const int begin = k / (n * n) * n * n;
            wanted[static_cast<std::size_t>(lane)] = begin + (k - begin) % n * n + (k - begin) / n;
        }
        return wanted;
    };
    forEachConstant(
        upTo<(elements + lanes - 1) / lanes>, [&](auto which) __attribute__((always_inline)) {
            constexpr int begin = which * lanes;
            storeRun<std::min(lanes, elements - begin)>(
                to + begin, gatherElements<T, wantedIn(which), elements>(from));
        });
}

// Gap-free objects of at most two registers, by a table of lanes that is made at run time.
template <class T>
struct PermutedTranspose {
    static constexpr int lanes = laneCount<Pack<T>>;
    using Index = std::conditional_t<sizeof(T) == 4, std::int32_t, std::int64_t>;

    int elements;
    Index sources[2 * lanes] = {};

    static bool isFor(const Extent& result) {
        return hasGathering && result.rows * result.columns <= 2 * lanes;
    }

    explicit PermutedTranspose(const Extent& result)
        : elements(static_cast<int>(result.rows * result.columns)) {
        for (std::ptrdiff_t k = 0; k < elements; ++k) {
            const std::ptrdiff_t i = k / result.columns;
            const std::ptrdiff_t j = k % result.columns;
            sources[k] = static_cast<Index>(j * result.rows + i);
        }
    }

    [[gnu::always_inline]] void operator()(const T* from, T* to) const {
        if constexpr (hasGathering) {
            if (elements <= lanes) {
                const Pack<T> all = loadRun(from, elements);
                storeRun(to, permuted(all, all, sources), elements);
            } else {
                const Pack<T> first = loadRun(from);
                const Pack<T> second = loadRun(from + lanes, elements - lanes);
                storeRun(to, permuted(first, second, sources));
                storeRun(to + lanes, permuted(first, second, sources + lanes), elements - lanes);
            }
        }
    }
};

// The first lanes of a vector, or all of a shorter one over and over.
template <class To, class From, int... lane>
[[gnu::always_inline]] inline To resized(const From& vector, std::integer_sequence<int, lane...>) {
    constexpr int lanes = sizeof vector / sizeof vector[0];
    return __builtin_shufflevector(vector, vector, lane % lanes...);
}

// Square tiles of so many rows and columns.
template <int side, class T>
void transposeByTiles(const StridedMatrix<const T, true>& from, const StridedMatrix<T, true>& to,
                      const Extent& result) {
    constexpr int lanes = laneCount<Pack<T>>;
    for (std::ptrdiff_t j = 0; j < result.columns; j += side) {
        const int sourceRows = static_cast<int>(std::min<std::ptrdiff_t>(side, result.columns - j));
        for (std::ptrdiff_t i = 0; i < result.rows; i += side) {
            const int sourceColumns =
                static_cast<int>(std::min<std::ptrdiff_t>(side, result.rows - i));
            Vector<T, side> tile[side];
            forEachConstant(
                upTo<side>, [&](auto row) __attribute__((always_inline)) {
                    const T* const begin =
                        from(j + std::min<int>(row, sourceRows - 1), i).address();
                    const Pack<T> run =
                        sourceColumns == lanes ? loadRun(begin) : loadRun(begin, sourceColumns);
                    tile[row] = resized<Vector<T, side>>(run.lanes[0], upTo<side>);
                });
            transposeRegisters(tile);
            forEachConstant(
                upTo<side>, [&](auto row) __attribute__((always_inline)) {
                    if (row >= sourceColumns) return;
                    T* const begin = to(i + row, j).address();
                    Pack<T> run;
                    run.lanes[0] = resized<Register<T>>(tile[row], upTo<lanes>);
                    if (sourceRows == lanes)
                        storeRun(begin, run);
                    else
                        storeRun(begin, run, sourceRows);
                });
        }
    }
}

template <class T, class N>
[[gnu::always_inline]] inline void transposeRows(const StridedMatrix<const T, true>& from,
                                                 const StridedMatrix<T, true>& to,
                                                 const Extent& result, bool adjacentRows, N n,
                                                 const std::optional<PermutedTranspose<T>>& small) {
    constexpr int lanes = laneCount<Pack<T>>;
    constexpr std::ptrdiff_t leastForTiles = 8;
    const std::ptrdiff_t shorterSide = std::min(result.rows, result.columns);
    if constexpr (isFixed<N>) {
        if constexpr (isTransposedByGathering<T, n> && n * n <= laneCount<Pack<T>>) {
            if (adjacentRows) return transposePacked<T, n, 1>(from.base, to.base);
        }
        if constexpr (rowsFitRegisters<T, n>) {
            const HeldRows<T, n> held(Transposed{from});
            forEachConstant(upTo<n>, [&](auto i) {
                storeVector<T, lanesFor(n), n>(held.rows[i], to(i, 0).address());
            });
        } else {
            forEachConstant(upTo<n>, [&](auto i) {
                forEachConstant(upTo<n>, [&](auto j) { moveElement(from(j, i), to(i, j)); });
            });
        }
    } else if (adjacentRows && small) {
        (*small)(from.base, to.base);
    } else if (shorterSide >= leastForTiles) {
        transposeByTiles<lanes>(from, to, result);
    } else if (hasGathering && shorterSide > 1) { // by masks
        transposeByTiles<std::min(lanes, 8)>(from, to, result);
    } else {
        moveObjectInOrder(Transposed{from}, to, result, false);
    }
}

// For many objects of sizes that have no code of their own.
template <class T>
std::optional<PermutedTranspose<T>> permutedTransposeFor(const Extent& result,
                                                         std::ptrdiff_t count) {
    if (count > 1 && PermutedTranspose<T>::isFor(result)) return PermutedTranspose<T>(result);
    return std::nullopt;
}

// work(n) with a constant for squares that are transposed by straight-line code.
template <class Work>
void withTransposedSize(const Extent& result, const Work& work) {
    const std::ptrdiff_t n = result.rows == result.columns ? result.rows : 0;
    if (n == 2) return work(Fixed<2>());
    if (n == 8) return work(Fixed<8>());
    withStaticSize(n, work);
}

// Objects that are apart all by all of regular operands may be moved in any grouping.
template <Reading reading, class Src, class Dst>
void moveRegularRuns(const Src& src, const Dst& dst, const Extent& result, std::ptrdiff_t count) {
    using T = typename Dst::Element;
    const std::ptrdiff_t elements = result.rows * result.columns;
    const std::ptrdiff_t storedColumns =
        reading == Reading::transposed ? result.rows : result.columns;
    const bool adjacentRows =
        src.hasAdjacentRows(storedColumns) && dst.hasAdjacentRows(result.columns);
    const bool packed =
        adjacentRows && src.hasAdjacentObjects(elements) && dst.hasAdjacentObjects(elements);
    const auto from = [&](std::ptrdiff_t n) { return src.object(n, storedColumns); };
    const auto to = [&](std::ptrdiff_t n) { return dst.object(n, result.columns); };
    if constexpr (reading == Reading::asStored) {
        if (packed) return moveRun(from(0).base, to(0).base, elements * count);
        withMovedExtent<Src>(result, [&](auto rows, auto columns) {
            for (std::ptrdiff_t n = 0; n < count; ++n)
                moveRows(from(n), to(n), rows, columns, adjacentRows);
        });
    } else {
        withTransposedSize(result, [&](auto size) {
            std::ptrdiff_t n = 0;
            if constexpr (isFixed<decltype(size)>) {
                if constexpr (isTransposedByGathering<T, size>) {
                    constexpr int objects = objectsOfWholeRegisters<T, size>;
                    const T* const begin = from(0).base;
                    T* const result0 = to(0).base;
                    for (; packed && n + objects <= count; n += objects) {
                        transposePacked<T, size, objects>(begin + n * elements,
                                                          result0 + n * elements);
                    }
                }
            }
            const auto small = permutedTransposeFor<T>(result, count);
            for (; n < count; ++n) {
                transposeRows(from(n), to(n), result, adjacentRows, size, small);
            }
        });
    }
}

// Object by object, each by runs if it is apart from its source, else element by element.
template <Reading reading, class Src, class Dst>
void moveObjectRuns(const Src& src, const Dst& dst, const Extent& result, std::ptrdiff_t count) {
    const Extent stored =
        reading == Reading::transposed ? Extent{result.columns, result.rows} : result;
    const auto reads = spansOf(src, stored.rows, stored.columns);
    const auto writes = spansOf(dst, result.rows, result.columns);
    const bool adjacentRows =
        src.hasAdjacentRows(stored.columns) && dst.hasAdjacentRows(result.columns);
    const auto moveAll = [&](const auto& move) {
        const auto moveStretch = [&](std::ptrdiff_t first, std::ptrdiff_t end, bool apart) {
            for (std::ptrdiff_t n = first; n < end; ++n) {
                const auto to = dst.object(n, result.columns);
                if (apart || !overlap(reads(n), writes(n)))
                    move(src.object(n, stored.columns), to);
                else
                    moveObjectInOrder(objectAsRead<reading>(src, n, result), to, result, false);
            }
        };
        inStretches(writes, count, moveStretch, reads);
    };
    if constexpr (reading == Reading::asStored) {
        withMovedExtent<Src>(result, [&](auto rows, auto columns) {
            moveAll([&](const auto& from, const auto& to) {
                moveRows(from, to, rows, columns, adjacentRows);
            });
        });
    } else {
        const auto small = permutedTransposeFor<typename Dst::Element>(result, count);
        withTransposedSize(result, [&](auto size) {
            moveAll([&](const auto& from, const auto& to) {
                transposeRows(from, to, result, adjacentRows, size, small);
            });
        });
    }
}

} // namespace qorm::movement
