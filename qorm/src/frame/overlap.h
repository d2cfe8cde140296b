// Whether operands share memory in a way that makes the order of reads and writes visible. Kernels
// that leave the order of the contract (objects, rows, columns ascending) ask here first.
#pragma once

#include "frame/operands.h"
#include "frame/spans.h"
#include "frame/static_size.h"

#include <algorithm>
#include <iterator>

namespace qorm {

template <class T, Kind kind, bool contiguousRows>
Spans spansOf(const Strided<T, kind, contiguousRows>& operand, std::ptrdiff_t rows,
              std::ptrdiff_t columns) {
    const std::ptrdiff_t bytes = spanOfMatrix<T>(operand.stride1, operand.stride2, rows, columns);
    return {bytesOf(operand.base, bytes), operand.stride0};
}

template <class T, Kind kind, bool contiguousRows>
Spans spansOf(const List<T, kind, contiguousRows>& operand, std::ptrdiff_t rows,
              std::ptrdiff_t columns) {
    const auto begin = static_cast<std::uintptr_t>(operand.shift);
    const auto bytes = static_cast<std::uintptr_t>(
        spanOfMatrix<T>(operand.stride1, operand.stride2, rows, columns));
    return {{begin, begin + bytes}, 0, operand.table};
}

template <class T, Kind kind, bool contiguousRows>
Spans spansOf(const Objects<T, kind, contiguousRows>& operand, std::ptrdiff_t rows,
              std::ptrdiff_t columns) {
    return operand.isList() ? spansOf(operand.listed(), rows, columns)
                            : spansOf(operand.strided(), rows, columns);
}

template <class T>
Spans spansOf(const Packed<T>& operand, std::ptrdiff_t /*rows*/, std::ptrdiff_t /*columns*/) {
    return {bytesOf(operand.base, operand.stride0), operand.stride0};
}

template <class T, bool array>
Spans spansOf(const Pointers<T, array>& operand, std::ptrdiff_t rows, std::ptrdiff_t columns) {
    const auto [lowest, highest] =
        std::minmax_element(operand.table, operand.table + rows * columns);
    const Bytes object0 = {bytesOf(stepped(*lowest, operand.shift), sizeof(T)).begin,
                           bytesOf(stepped(*highest, operand.shift), sizeof(T)).end};
    return {object0, operand.stride0};
}

template <class T>
Spans spansOf(const Plain<T>& runs) {
    const std::ptrdiff_t bytes = runs.elements * std::ptrdiff_t{sizeof(T)};
    return {bytesOf(runs.base, bytes), bytes};
}

// Whether the elements of one object surely lie apart from each other, so that the order in which
// they are written does not show.
template <class Operand>
bool hasDistinctElements(const Operand& operand, std::ptrdiff_t rows, std::ptrdiff_t columns,
                         int /*live*/) {
    return operand.stride1 >= columns * operand.stride2 ||
           operand.stride2 >= rows * operand.stride1;
}

// Objects side by side are written position by position, so there the positions of `live` objects
// have to lie apart.
template <class T, bool array>
bool hasDistinctElements(const Pointers<T, array>& operand, std::ptrdiff_t rows,
                         std::ptrdiff_t columns, int live) {
    T* sorted[mostLaneSize * mostLaneSize];
    if (rows * columns > std::ssize(sorted)) return false;
    const std::ptrdiff_t objects = operand.hasObjectsSideBySide() ? live : 1;
    T** const end = std::copy(operand.table, operand.table + rows * columns, sorted);
    std::sort(sorted, end);
    return std::adjacent_find(sorted, end, [&](T* lower, T* upper) {
               return stepped(lower, objects * std::ptrdiff_t{sizeof(T)}) > upper;
           }) == end;
}

// For matrices whose objects lie side by side, `count` elements a position. From here on `bytes` is
// the length of such a run of elements.
template <class Matrix>
Bytes bytesAt(const Matrix& matrix, std::ptrdiff_t position, std::ptrdiff_t columns,
              std::ptrdiff_t bytes) {
    return bytesOf(matrix(position / columns, position % columns).address(), bytes);
}

template <class Matrix>
Bytes spanOfPositions(const Matrix& matrix, std::ptrdiff_t rows, std::ptrdiff_t columns,
                      std::ptrdiff_t bytes) {
    Bytes all = bytesOf(matrix(0, 0).address(), bytes);
    for (std::ptrdiff_t i = 0; i < rows; ++i) {
        for (std::ptrdiff_t j = 0; j < columns; ++j) {
            all = hullOf(all, bytesOf(matrix(i, j).address(), bytes));
        }
    }
    return all;
}

inline constexpr std::ptrdiff_t anyNumber = std::numeric_limits<std::ptrdiff_t>::max();

// Whether no run of elements of one matrix overlaps one of the other. False, too, where more than so
// many pairs of positions would have to be compared.
template <class Src, class Dst>
bool positionsAreApart(const Src& src, std::ptrdiff_t srcRows, std::ptrdiff_t srcColumns,
                       std::ptrdiff_t srcCount, const Dst& dst, std::ptrdiff_t dstRows,
                       std::ptrdiff_t dstColumns, std::ptrdiff_t dstCount,
                       std::ptrdiff_t mostPairs = anyNumber) {
    constexpr std::ptrdiff_t elementSize{sizeof(*src(0, 0).address())};
    const std::ptrdiff_t readBytes = srcCount * elementSize;
    const std::ptrdiff_t writtenBytes = dstCount * elementSize;
    if (!overlap(spanOfPositions(src, srcRows, srcColumns, readBytes),
                 spanOfPositions(dst, dstRows, dstColumns, writtenBytes))) {
        return true;
    }
    if (srcRows * srcColumns * dstRows * dstColumns > mostPairs) return false;
    for (std::ptrdiff_t position = 0; position < dstRows * dstColumns; ++position) {
        const Bytes written = bytesAt(dst, position, dstColumns, writtenBytes);
        for (std::ptrdiff_t other = 0; other < srcRows * srcColumns; ++other) {
            if (overlap(bytesAt(src, other, srcColumns, readBytes), written)) return false;
        }
    }
    return true;
}

// Whether both matrices lie in the same places, position by position, and these follow one another.
template <class Src, class Dst>
bool shareAscendingPositions(const Src& src, const Dst& dst, std::ptrdiff_t rows,
                             std::ptrdiff_t columns, std::ptrdiff_t bytes) {
    std::uintptr_t end = 0;
    for (std::ptrdiff_t i = 0; i < rows; ++i) {
        for (std::ptrdiff_t j = 0; j < columns; ++j) {
            const Bytes written = bytesOf(dst(i, j).address(), bytes);
            if (written.begin < end || src(i, j).address() != dst(i, j).address()) return false;
            end = written.end;
        }
    }
    return true;
}

// Whether writing all objects of one position of `dst` leaves every other position of `src` alone.
// `srcCount` is 1 for a single matrix. False, too, where more than so many pairs would have to be
// compared.
template <class Src, class Dst>
bool positionsAreIndependent(const Src& src, std::ptrdiff_t srcCount, const Dst& dst,
                             std::ptrdiff_t width, std::ptrdiff_t height, std::ptrdiff_t count,
                             std::ptrdiff_t mostPairs = anyNumber) {
    constexpr std::ptrdiff_t elementSize{sizeof(*src(0, 0).address())};
    const std::ptrdiff_t readBytes = srcCount * elementSize;
    const std::ptrdiff_t writtenBytes = count * elementSize;
    // The usual cases first: they take a look at each position, not at each pair.
    if (!overlap(spanOfPositions(src, height, width, readBytes),
                 spanOfPositions(dst, height, width, writtenBytes))) {
        return true;
    }
    if (srcCount == count && shareAscendingPositions(src, dst, height, width, writtenBytes)) {
        return true;
    }
    if (width * height * width * height > mostPairs) return false;
    for (std::ptrdiff_t position = 0; position < width * height; ++position) {
        const Bytes written = bytesAt(dst, position, width, writtenBytes);
        for (std::ptrdiff_t other = 0; other < width * height; ++other) {
            const Bytes read = bytesAt(src, other, width, readBytes);
            const bool inPlace =
                position == other && srcCount == count && read.begin == written.begin;
            if (overlap(read, written) && !inPlace) return false;
        }
    }
    return true;
}

// Whether the objects of two operands lie side by side and share memory at most position on equal
// position, so that `live` objects may be read ahead.
template <class Src, class Dst>
bool shareOnlyPositions(const Src& src, const Dst& dst, std::ptrdiff_t rows, std::ptrdiff_t columns,
                        int live) {
    return src.hasObjectsSideBySide() && dst.hasObjectsSideBySide() &&
           positionsAreIndependent(src.object(0, columns), live, dst.object(0, columns), columns,
                                   rows, live);
}

// Whether two operands place element (i, j) of an object at the same distance from its begin.
template <class A, class B>
bool haveSameSteps(const A& a, const B& b, std::ptrdiff_t elements) {
    if constexpr (A::layout != B::layout || A::holdsArray != B::holdsArray)
        return false;
    else if constexpr (A::layout == Layout::P)
        return a.shift == b.shift && std::equal(a.table, a.table + elements, b.table);
    else
        return a.stride1 == b.stride1 && a.stride2 == b.stride2;
}

struct Extent {
    std::ptrdiff_t rows;
    std::ptrdiff_t columns;

    bool operator==(const Extent&) const = default;
};

// The same for matrices or vectors of so many rows and columns, whose elements are written in any
// order.
template <class Src, class Dst>
ReadAhead readAheadOf(Sharing sharing, const Src& src, Extent read, const Dst& dst, Extent written,
                      std::ptrdiff_t count, int lanes) {
    ReadAhead guard(spansOf(src, read.rows, read.columns),
                    spansOf(dst, written.rows, written.columns), count, sharing);
    if (!hasDistinctElements(dst, written.rows, written.columns, lanes)) {
        guard.allowNever();
    } else if (src.hasObjectsSideBySide() && dst.hasObjectsSideBySide()) {
        const auto source = src.object(0, read.columns);
        const auto destination = dst.object(0, written.columns);
        // Arrays go on side by side; a single source has to be apart from all that is written.
        const std::ptrdiff_t objects =
            Src::holdsArray ? std::min<std::ptrdiff_t>(lanes, count) : count;
        const std::ptrdiff_t sources = Src::holdsArray ? objects : 1;
        const bool mayAlways =
            sharing != Sharing::none && read == written
                ? positionsAreIndependent(source, sources, destination, read.columns, read.rows,
                                          objects)
                : positionsAreApart(source, read.rows, read.columns, sources, destination,
                                    written.rows, written.columns, objects);
        if (mayAlways) guard.allowAlways();
    } else if (sharing == Sharing::places && read == written) {
        guard.sharesPlaces(haveSameSteps(src, dst, read.rows * read.columns));
    }
    return guard;
}

// Guards of several sources.
template <class... Guards>
class AllOf {
public:
    explicit AllOf(const Guards&... guards) : guards_(guards...) {}

    bool allows(std::ptrdiff_t first, int live) {
        return std::apply([&](auto&... guard) { return (guard.allows(first, live) && ...); },
                          guards_);
    }

private:
    std::tuple<Guards...> guards_;
};

} // namespace qorm
