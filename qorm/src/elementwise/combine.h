// Element by element: dst(i,j) = op(A(i,j), ...), each source a matrix, a vector or an array of them,
// as stored or transposed. A vector is a matrix of one row.
//
// All paths give the same bits. Every element is read before it is written, in ascending order of
// objects, rows and columns; only disjoint operands are taken in another order.
#pragma once

#include "frame/held_rows.h"
#include "frame/known_sizes.h"
#include "frame/overlap.h"
#include "frame/static_size.h"

// The iterations of the loop that follows are independent of each other.
#if defined(__clang__)
#define QORM_INDEPENDENT _Pragma("clang loop vectorize(assume_safety)")
#else
#define QORM_INDEPENDENT _Pragma("GCC ivdep")
#endif

namespace qorm::elementwise {

// A source as its letter of the shape reads it. The size is the destination's: a transposed source
// is stored with `height` columns.
template <Kind kindInShape, class Operand>
struct Source {
    using Element = typename Operand::Element;
    static constexpr Kind kind = kindInShape;
    static constexpr bool hasContiguousRows = Operand::hasContiguousRows;

    Operand operand;

    auto object(std::ptrdiff_t n, std::ptrdiff_t width, std::ptrdiff_t height) const {
        return asRead<kind>(operand.object(n, isTransposed(kind) ? height : width));
    }
};

template <Kind kind, class Operand>
Source<kind, Operand> sourceOf(const Operand& operand) {
    return {operand};
}

template <class... Sources>
inline constexpr bool areAsStored = !(isTransposed(Sources::kind) || ...);

template <class Op, class D, class... Sources, class Width, class Height>
[[gnu::always_inline]] inline void combineObjects(const Op& op, const D& dst, Width width,
                                                  Height height, std::ptrdiff_t first,
                                                  std::ptrdiff_t end, const Sources&... sources) {
    for (std::ptrdiff_t n = first; n < end; ++n) {
        const auto d = dst.object(n, width);
        const auto combineInto = [&](const auto&... source) __attribute__((always_inline)) {
            for (std::ptrdiff_t i = 0; i < height; ++i) {
                for (std::ptrdiff_t j = 0; j < width; ++j) d(i, j) = op(source(i, j)...);
            }
        };
        combineInto(sources.object(n, width, height)...);
    }
}

// Rows of contiguous elements that are apart from all they are made of, register by register.
template <int length, class Op, class T, class... Elements>
[[gnu::always_inline]] inline void combineRow(const Op& op, T* to, const Elements*... from) {
    constexpr int most = laneCount<Pack<T>>;
    forEachConstant(
        upTo<(length + most - 1) / most>, [&](auto chunk) __attribute__((always_inline)) {
            constexpr int begin = chunk * most;
            constexpr int live = std::min(most, length - begin);
            constexpr int lanes = lanesFor(live);
            storeVector<T, lanes, live>(op(loadVector<T, lanes, live>(from + begin)...),
                                        to + begin);
        });
}

// Objects of constant size in registers, where the destination is apart from all sources.
template <class Op, class D, class Width, class Height, class... Sources>
QORM_KERNEL void combineRows(const Op op, const D dst, Width width, Height height,
                             std::ptrdiff_t first, std::ptrdiff_t end, const Sources... sources) {
    using T = typename D::Element;
    constexpr bool asStored = areAsStored<Sources...>;
    for (std::ptrdiff_t n = first; n < end; ++n) {
        const auto d = dst.object(n, width);
        const auto combineInto = [&](const auto&... source) __attribute__((always_inline)) {
            for (std::ptrdiff_t i = 0; i < height; ++i) {
                T* const row = d(i, 0).address();
                if constexpr (asStored)
                    combineRow<width>(op, row, source(i, 0).address()...);
                else
                    storeVector<T, lanesFor(width), width>(op(source.rows[i]...), row);
            }
        };
        if constexpr (asStored)
            combineInto(sources.object(n, width, height)...);
        else
            combineInto(HeldRows<T, width>(sources.object(n, width, height))...);
    }
}

// The same where the destination is apart from all sources. Told so, the compiler keeps a single
// source in registers and uses packed arithmetic inside an object. It believes parameters only.
template <class Op, class D, class Width, class Height, class... Sources>
[[gnu::noinline]] void combineApart(Op op, D dst, typename D::Element* __restrict base, Width width,
                                    Height height, std::ptrdiff_t count, Sources... sources,
                                    typename Sources::Element* __restrict... bases) {
    dst.base = base;
    ((sources.operand.base = bases), ...);
    combineObjects(op, dst, width, height, 0, count, sources...);
}

// The elements of one position over all objects; a single source has one for all.
template <bool array, class T>
auto elementsAlong(Element<T> first) {
    if constexpr (array)
        return Run<T>{first.address()};
    else
        return [value = std::remove_const_t<T>(first)](std::ptrdiff_t) { return value; };
}

// Where objects lie side by side: position by position instead of object by object, which makes
// loops over plain arrays. False, with nothing done, where the order would show.
template <class Op, class D, class... Sources>
bool combinePositions(const Op& op, const D& dst, std::ptrdiff_t width, std::ptrdiff_t height,
                      std::ptrdiff_t count, const Sources&... sources) {
    const auto d = dst.object(0, width);
    const auto isIndependent = [&](const auto& source) {
        return positionsAreIndependent(source.object(0, width, height),
                                       isArray(source.kind) ? count : 1, d, width, height, count);
    };
    if (!(isIndependent(sources) && ...) ||
        !positionsAreIndependent(d, count, d, width, height, count)) {
        return false;
    }
    for (std::ptrdiff_t i = 0; i < height; ++i) {
        for (std::ptrdiff_t j = 0; j < width; ++j) {
            const auto to = elementsAlong<true>(d(i, j));
            const auto combineAlong = [&](const auto&... elements) {
                for (std::ptrdiff_t n = 0; n < count; ++n) to(n) = op(elements(n)...);
            };
            combineAlong(
                elementsAlong<isArray(Sources::kind)>(sources.object(0, width, height)(i, j))...);
        }
    }
    return true;
}

template <class S>
Spans spansOfRead(const S& source, std::ptrdiff_t width, std::ptrdiff_t height) {
    return isTransposed(S::kind) ? spansOf(source.operand, width, height)
                                 : spansOf(source.operand, height, width);
}

// Whether no element of a source lies where the destination is written.
template <class S, class D>
bool isApart(const S& source, const D& dst, std::ptrdiff_t width, std::ptrdiff_t height,
             std::ptrdiff_t count) {
    return areApart(spansOfRead(source, width, height), spansOf(dst, height, width), count);
}

// Whether objects go through registers: of constant size, by rows that are loaded whole or by masks.
// By strides the compiler does as well with small ones that are read as stored.
template <class D, class Width, class Height, class... Sources>
inline constexpr bool goInRegisters = false;
template <class D, std::ptrdiff_t width, std::ptrdiff_t height, class... Sources>
inline constexpr bool goInRegisters<D, Fixed<width>, Fixed<height>, Sources...> = [] {
    constexpr bool haveRows = D::hasContiguousRows && (Sources::hasContiguousRows && ...);
    if constexpr (areAsStored<Sources...>)
        return haveRows && hasGathering && (D::layout == Layout::L || width == 8);
    else
        return haveRows && rowsFitRegisters<typename D::Element, width>;
}();

template <class Op, class D, class Width, class Height, class... Sources>
void combineStrided(const Op& op, const D& dst, Width width, Height height, bool apart,
                    std::ptrdiff_t count, const Sources&... sources) {
    if constexpr (goInRegisters<D, Width, Height, Sources...>) {
        const auto combineStretch = [&](std::ptrdiff_t first, std::ptrdiff_t end, bool areApart) {
            if (areApart)
                combineRows(op, dst, width, height, first, end, sources...);
            else
                combineObjects(op, dst, sizeOfOne(width), sizeOfOne(height), first, end,
                               sources...);
        };
        if (apart) return combineStretch(0, count, true);
        return inStretches(spansOf(dst, height, width), count, combineStretch,
                           spansOfRead(sources, width, height)...);
    } else if constexpr (D::layout == Layout::S) {
        if (apart) {
            return combineApart<Op, D, Width, Height, Sources...>(
                op, dst, dst.base, width, height, count, sources..., sources.operand.base...);
        }
    }
    combineObjects(op, dst, width, height, 0, count, sources...);
}

// work(width, height) with constants for the squares of 3 to 6, and for vectors of 3 to 6; and for 8
// where that goes in registers.
template <class D, class... Sources, class Height, class Work>
void withKnownExtent(std::ptrdiff_t width, Height height, const Work& work) {
    if constexpr (isFixed<Height>) {
        withStaticSize(width, [&](auto columns) { work(columns, height); });
    } else {
        if constexpr (goInRegisters<D, Fixed<8>, Fixed<8>, Sources...>) {
            if (width == 8 && height == 8) return work(Fixed<8>(), Fixed<8>());
        }
        withStaticSquare(width, height, work);
    }
}

// Operands without any gap, of so many elements, that are apart or the same.
template <class Op, class T, class... Sources>
void combineRuns(const Op& op, Run<T> dst, std::ptrdiff_t elements, Sources... sources) {
    QORM_INDEPENDENT
    for (std::ptrdiff_t k = 0; k < elements; ++k) dst(k) = op(sources(k)...);
}

// A single source is repeated for as many objects as fill whole registers whatever their size.
template <class T>
inline constexpr std::ptrdiff_t objectsOfPeriod = laneCount<Pack<T>>;
inline constexpr std::ptrdiff_t mostRepeated = 6 * 6;

template <class D>
bool isWorthRepeating(std::ptrdiff_t elements, std::ptrdiff_t count) {
    return elements <= mostRepeated && count > objectsOfPeriod<typename D::Element>;
}

// The elements of a source for a period of objects: those of an array where they lie.
template <class S, bool array = isArray(S::kind)>
struct Periods {
    using T = std::remove_const_t<typename S::Element>;

    const T* begin;
    std::ptrdiff_t elements;

    Periods(const S& source, std::ptrdiff_t width, std::ptrdiff_t height)
        : begin(source.operand.base), elements(width * height) {}
    Run<const T> from(std::ptrdiff_t object) const { return {begin + object * elements}; }
};

template <class S>
struct Periods<S, false> {
    using T = std::remove_const_t<typename S::Element>;

    T repeated[mostRepeated * objectsOfPeriod<T>];

    Periods(const S& source, std::ptrdiff_t width, std::ptrdiff_t height) {
        const auto matrix = source.object(0, width, height);
        T* next = repeated;
        for (std::ptrdiff_t i = 0; i < height; ++i) {
            for (std::ptrdiff_t j = 0; j < width; ++j) *next++ = matrix(i, j);
        }
        const std::ptrdiff_t period = objectsOfPeriod<T> * width * height;
        for (const T* from = repeated; next < repeated + period;) *next++ = *from++;
    }
    Run<const T> from(std::ptrdiff_t /*object*/) const { return {repeated}; }
};

// Arrays without any gap and single sources that are apart from the destination.
template <class Op, class D, class... Sources>
[[gnu::noinline]] void combinePeriods(const Op& op, const D& dst, std::ptrdiff_t width,
                                      std::ptrdiff_t height, std::ptrdiff_t count,
                                      const Sources&... sources) {
    using T = typename D::Element;
    const auto combineAll = [&](const auto&... periods) {
        for (std::ptrdiff_t n = 0; n < count; n += objectsOfPeriod<T>) {
            const std::ptrdiff_t objects = std::min(count - n, objectsOfPeriod<T>);
            combineRuns(op, Run<T>{dst.base + n * width * height}, objects * width * height,
                        periods.from(n)...);
        }
    };
    combineAll(Periods<Sources>(sources, width, height)...);
}

// The height of vectors is a constant.
template <class Op, class D, class Height, class... Sources>
qorStatus combine(const Op& op, const D& dst, std::ptrdiff_t width, Height height,
                  std::ptrdiff_t count, const Sources&... sources) {
    const auto all = [&](auto holds) { return (holds(sources.operand) && ...) && holds(dst); };

    if constexpr (D::layout == Layout::P) {
        if (count < width * height ||
            !all([](auto& operand) { return operand.hasObjectsSideBySide(); }) ||
            !combinePositions(op, dst, width, height, count, sources...)) {
            withKnownExtent<D, Sources...>(width, height, [&](auto columns, auto rows) {
                combineObjects(op, dst, columns, rows, 0, count, sources...);
            });
        }
    } else {
        constexpr bool asStored = areAsStored<Sources...>;
        const bool adjacentRows =
            asStored && all([&](auto& operand) { return operand.hasAdjacentRows(width); });
        const auto apart = [&](const auto& source) {
            return isApart(source, dst, width, height, count);
        };
        if constexpr (D::layout == Layout::S) {
            const std::ptrdiff_t area = width * height;
            const auto isOneRun = [&](const auto& operand) {
                return operand.hasAdjacentRows(width) &&
                       (count == 1 || operand.hasAdjacentObjects(area));
            };
            const auto bytesOfRun = [&](const auto& operand) {
                return bytesOf(operand.base, area * count * std::ptrdiff_t{sizeof *operand.base});
            };
            const auto isRunBeside = [&](const auto& source) {
                return !isTransposed(source.kind) && isOneRun(source.operand) &&
                       (source.operand.base == dst.base ||
                        !overlap(bytesOfRun(source.operand), bytesOfRun(dst)));
            };
            if (isOneRun(dst)) {
                if ((isRunBeside(sources) && ...)) {
                    using T = typename D::Element;
                    combineRuns(op, Run<T>{dst.base}, area * count,
                                Run<const T>{sources.operand.base}...);
                    return qorStatusOk;
                }
                if constexpr (D::holdsArray && !(isArray(Sources::kind) && ...)) {
                    if (isWorthRepeating<D>(area, count) &&
                        ((isArray(Sources::kind) ? isRunBeside(sources) : apart(sources)) && ...)) {
                        combinePeriods(op, dst, width, height, count, sources...);
                        return qorStatusOk;
                    }
                }
            }
        }
        const bool allApart = (apart(sources) && ...);
        withKnownExtent<D, Sources...>(width, height, [&](auto columns, auto rows) {
            if (adjacentRows)
                combineStrided(op, dst, area(columns, rows), Fixed<1>(), allApart, count,
                               sources...);
            else
                combineStrided(op, dst, columns, rows, allApart, count, sources...);
        });
    }
    return qorStatusOk;
}

} // namespace qorm::elementwise
