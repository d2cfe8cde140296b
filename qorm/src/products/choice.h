// Which way a product goes: as fast as the layout and the size allow, or in the contract's order of
// reads and writes where that could show.
#pragma once

#include "frame/overlap.h"
#include "products/dense_products.h"
#include "products/panels.h"
#include "products/planes.h"
#include "products/product_in_order.h"
#include "products/rows.h"

namespace qorm::products {

template <class Reader>
auto spansOf(const Reader& src) {
    return qorm::spansOf(src.operand, src.storedRows, src.storedColumns);
}

template <class D>
auto spansOf(const D& dst, const Shape& shape) {
    return qorm::spansOf(dst, shape.rows, shape.columns);
}

// work(n) with a constant for the squares that have straight-line code. Registers don't run along
// elements with gaps, so there are fewer of those.
template <class D, class Work>
void withProductSize(const Shape& shape, const Work& work) {
    const std::ptrdiff_t n = shape.isSquare() ? shape.rows : 0;
    if constexpr (D::hasContiguousRows || D::layout == Layout::P) {
        switch (n) {
        case 2:
            return work(Fixed<2>());
        case 7:
            return work(Fixed<7>());
        case 8:
            return work(Fixed<8>());
        case 16:
            return work(Fixed<16>());
        default:
            break;
        }
    }
    withStaticSize(n, work);
}

// Sizes at which an array's operand is held before the first element of its result is written.
template <class N>
inline constexpr bool isHeldWhole = false;
template <std::ptrdiff_t n>
inline constexpr bool isHeldWhole<Fixed<n>> = beginsWithProduct(n);

template <class T, class N>
inline constexpr bool rowFitsRegister = false;
template <class T, std::ptrdiff_t n>
inline constexpr bool rowFitsRegister<T, Fixed<n>> = lanesFor(n) <= laneCount<Pack<T>>;

// One product whose destination is apart from the first operand, and from the second unless that
// may be held. Operands come by value: what is known by reference could change with each element
// that is written.
template <class N, class A, class B, class D>
[[gnu::always_inline]] inline void multiplyObject(const A& a, const B& b, const D& d,
                                                  const Shape& shape, N n) {
    using T = typename std::remove_cvref_t<decltype(d(0, 0))>::Value;
    if constexpr (rowsAreRuns<D> && rowFitsRegister<T, N>)
        multiplyRows<n>(a, b, d);
    else if constexpr (largestSize<N> <= 6)
        multiplySquare<T>(Held<T, n>(a, n), Held<T, n>(b, n), writeTo(d), n);
    else
        multiplyByPanels<T>(a, b, d, shape);
}

template <class A, class B, class D>
bool haveAdjacentRows(const A& src1, const B& src2, const D& dst, std::ptrdiff_t n) {
    return src1.operand.hasAdjacentRows(n) && src2.operand.hasAdjacentRows(n) &&
           dst.hasAdjacentRows(n);
}

template <class A, class B, class D>
bool arePacked(const A& src1, const B& src2, const D& dst, std::ptrdiff_t n) {
    const auto isPacked = [n]<bool array>(const auto& operand, std::bool_constant<array>) {
        return !array || operand.hasAdjacentObjects(n * n);
    };
    return isPacked(src1.operand, std::bool_constant<A::isArray>()) &&
           isPacked(src2.operand, std::bool_constant<B::isArray>()) &&
           isPacked(dst, std::true_type());
}

// Squares without gaps that fit a register, from object `first` on; where they are packed, without gaps
// between them, in blocks of several.
template <int n, int objects, bool packed, class A, class B, class D>
[[gnu::noinline]] void multiplyDensely(const A src1, const B src2, const D dst,
                                       std::ptrdiff_t first, std::ptrdiff_t blocks) {
    if (blocks == 0) return;
    const auto from = [=](const auto& operand) {
        const auto addressOf = [operand](std::ptrdiff_t object) {
            return operand.object(object, n)(0, 0).address();
        };
        if constexpr (packed)
            return [begin = addressOf(first)](std::ptrdiff_t block) {
                return begin + block * objects * n * n;
            };
        else
            return [=](std::ptrdiff_t block) { return addressOf(first + block); };
    };
    multiplyDenseBlocks<n, objects, A::kind, B::kind>(from(src1.operand), from(src2.operand),
                                                      from(dst), blocks);
}

template <std::ptrdiff_t n, class A, class B, class D>
[[gnu::noinline]] void multiplyAdjacentRows(const A src1, const B src2, const D dst,
                                            std::ptrdiff_t begin, std::ptrdiff_t end) {
    for (std::ptrdiff_t object = begin; object < end; ++object) {
        multiplyRows<n>(withAdjacentRows<n>(src1.object(object)),
                        withAdjacentRows<n>(src2.object(object)),
                        withAdjacentRows<n>(dst.object(object, n)));
    }
}

template <class N, class A, class B, class D>
[[gnu::noinline]] void multiplyObjects(const A src1, const B src2, const D dst, const Shape shape,
                                       N n, std::ptrdiff_t begin, std::ptrdiff_t end) {
    for (std::ptrdiff_t object = begin; object < end; ++object) {
        multiplyObject(src1.object(object), src2.object(object), dst.object(object, shape.columns),
                       shape, n);
    }
}

// Objects begin .. end - 1 as densely as they lie. Each is apart from the first operand, and from the
// second unless that may be held; all of them are apart from both operands if they go in blocks.
template <class N, class A, class B, class D>
void multiplyApart(const A& src1, const B& src2, const D& dst, const Shape& shape, N n,
                   std::ptrdiff_t begin, std::ptrdiff_t end, bool inBlocks) {
    using T = typename D::Element;
    if constexpr (isFixed<N> && D::hasContiguousRows) {
        if (haveAdjacentRows(src1, src2, dst, n)) {
            if constexpr (fitsRegister<T, n>) {
                constexpr int objects = densestBlock<T, n>();
                const bool packed = inBlocks && arePacked(src1, src2, dst, n);
                const std::ptrdiff_t blocks = packed ? (end - begin) / objects : 0;
                const std::ptrdiff_t rest = begin + blocks * objects;
                multiplyDensely<n, objects, true>(src1, src2, dst, begin, blocks);
                return multiplyDensely<n, 1, false>(src1, src2, dst, rest, end - rest);
            } else if constexpr (rowFitsRegister<T, N>) {
                return multiplyAdjacentRows<n>(src1, src2, dst, begin, end);
            }
        }
    }
    multiplyObjects(src1, src2, dst, shape, n, begin, end);
}

// A list may hold an object more than once, and a single operand is read again for each of them. So
// the objects are looked at one by one, where they don't lie apart all together.
template <class N, class A, class B, class D>
void multiplyListedObjects(const A& src1, const B& src2, const D& dst, const Shape& shape, N n,
                           std::ptrdiff_t count) {
    const Spans reads1 = spansOf(src1);
    const Spans reads2 = spansOf(src2);
    const Spans writes = spansOf(dst, shape);
    const bool distinct = hasDistinctElements(dst, shape.rows, shape.columns, 1);
    const auto isApart = [&](std::ptrdiff_t object) {
        const Bytes written = writes(object);
        return distinct && !overlap(reads1(object), written) && !overlap(reads2(object), written);
    };
    const auto multiply = [&](std::ptrdiff_t begin, std::ptrdiff_t end, bool apart) {
        if (distinct && apart) return multiplyApart(src1, src2, dst, shape, n, begin, end, true);
        std::ptrdiff_t done = begin;
        for (std::ptrdiff_t object = begin; object < end; ++object) {
            if (isApart(object)) continue;
            multiplyApart(src1, src2, dst, shape, n, done, object, false);
            multiplyInOrder(src1, src2, dst, shape, object, object + 1);
            done = object + 1;
        }
        multiplyApart(src1, src2, dst, shape, n, done, end, false);
    };
    inStretches(writes, count, multiply, reads1, reads2);
}

template <class A, class B, class D>
void multiplyStrided(const A& src1, const B& src2, const D& dst, const Shape& shape,
                     std::ptrdiff_t count) {
    const Spans written = spansOf(dst, shape);
    const bool firstIsApart = areApart(spansOf(src1), written, count);
    const bool apart = firstIsApart && areApart(spansOf(src2), written, count) &&
                       hasDistinctElements(dst, shape.rows, shape.columns, 1);
    withProductSize<D>(shape, [&](auto n) {
        if (dst.isList()) return multiplyListedObjects(src1, src2, dst, shape, n, count);
        if (apart || (isHeldWhole<decltype(n)> && B::isArray && firstIsApart))
            multiplyApart(src1, src2, dst, shape, n, 0, count, apart);
        else
            multiplyInOrder(src1, src2, dst, shape, 0, count);
    });
}

// Whether nothing that is read at some position lies where the objects of another are written.
template <class Reader, class D>
bool isApartByPositions(const Reader& src, const D& dst, const Shape& shape, std::ptrdiff_t count) {
    const auto read = src.operand.object(0, src.storedColumns);
    const auto written = dst.object(0, shape.columns);
    return positionsAreApart(read, src.storedRows, src.storedColumns, Reader::isArray ? count : 1,
                             written, shape.rows, shape.columns, count);
}

// Whether the destination lies in the same places as an operand, position by position, or apart.
template <class Reader, class D>
bool isInPlace(const Reader& src, const D& dst, std::ptrdiff_t n, std::ptrdiff_t count) {
    return positionsAreIndependent(src.operand.object(0, n), Reader::isArray ? count : 1,
                                   dst.object(0, n), n, n, count);
}

template <class D>
bool isApartFromItself(const D& dst, const Shape& shape, std::ptrdiff_t count) {
    const auto d = dst.object(0, shape.columns);
    return positionsAreIndependent(d, count, d, shape.columns, shape.rows, count);
}

// False, with nothing done, where objects don't lie side by side or the order would show.
template <class N, class A, class B, class D>
bool multiplySideBySide(const A& src1, const B& src2, const D& dst, const Shape& shape, N n,
                        std::ptrdiff_t count) {
    // The tests below look at pairs of positions: they are for many objects.
    if (count == 1 || count < shape.rows || !src1.operand.hasObjectsSideBySide() ||
        !src2.operand.hasObjectsSideBySide() || !dst.hasObjectsSideBySide() ||
        !isApartFromItself(dst, shape, count)) {
        return false;
    }
    bool mayReadAhead =
        isApartByPositions(src1, dst, shape, count) && isApartByPositions(src2, dst, shape, count);
    if constexpr (isHeldWhole<N>) {
        mayReadAhead |= isInPlace(src1, dst, n, count) && isInPlace(src2, dst, n, count);
    }
    if (mayReadAhead) multiplyPlanes(src1, src2, dst, shape, n, count);
    return mayReadAhead;
}

template <class A, class B, class D>
void multiplyPointed(const A& src1, const B& src2, const D& dst, const Shape& shape,
                     std::ptrdiff_t count) {
    withProductSize<D>(shape, [&](auto n) {
        if (multiplySideBySide(src1, src2, dst, shape, n, count)) return;
        const Spans written = spansOf(dst, shape);
        if (areApart(spansOf(src1), written, count) && areApart(spansOf(src2), written, count) &&
            hasDistinctElements(dst, shape.rows, shape.columns, 1)) {
            multiplyObjects(src1, src2, dst, shape, n, 0, count);
        } else {
            multiplyInOrder(src1, src2, dst, shape, 0, count);
        }
    });
}

} // namespace qorm::products
