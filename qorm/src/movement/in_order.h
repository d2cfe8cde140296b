// Elements moved one by one, in the order that shows where operands overlap.
#pragma once

#include "frame/operands.h"
#include "frame/overlap.h"

namespace qorm::movement {

// What a move takes from its source: elements (i, j), or (j, i).
enum class Reading { asStored, transposed };

// Objects one after the other, each by rows of the result or by those of the source; or positions
// one after the other, each in all objects.
enum class Order { resultRows, sourceRows, positions };

// How many pairs of positions are compared sooner than elements of the wrong order are moved.
inline std::ptrdiff_t pairsWorthComparing(const Extent& extent, std::ptrdiff_t count) {
    return 2 * extent.rows * extent.columns * count;
}

// A float of the processor could lose a signalling NaN; these are only bytes.
template <class From, class To>
[[gnu::always_inline]] inline void moveElement(const From& from, const To& to) {
    char bytes[sizeof(typename To::Value)];
    std::memcpy(bytes, from.address(), sizeof bytes);
    std::memcpy(to.address(), bytes, sizeof bytes);
}

// An object of the source as a result of this extent reads it.
template <Reading reading, class Src>
auto objectAsRead(const Src& src, std::ptrdiff_t object, const Extent& result) {
    if constexpr (reading == Reading::transposed)
        return Transposed{src.object(object, result.rows)};
    else
        return src.object(object, result.columns);
}

template <class From, class To>
void moveObjectInOrder(const From& from, const To& to, const Extent& result, bool bySourceRows) {
    if (bySourceRows) {
        for (std::ptrdiff_t j = 0; j < result.columns; ++j) {
            for (std::ptrdiff_t i = 0; i < result.rows; ++i) moveElement(from(i, j), to(i, j));
        }
        return;
    }
    for (std::ptrdiff_t i = 0; i < result.rows; ++i) {
        for (std::ptrdiff_t j = 0; j < result.columns; ++j) moveElement(from(i, j), to(i, j));
    }
}

template <Reading reading, class Src, class Dst>
void moveInOrder(const Src& src, const Dst& dst, const Extent& result, std::ptrdiff_t count,
                 Order order) {
    if (order != Order::positions) {
        for (std::ptrdiff_t object = 0; object < count; ++object) {
            moveObjectInOrder(objectAsRead<reading>(src, object, result),
                              dst.object(object, result.columns), result,
                              order == Order::sourceRows);
        }
        return;
    }
    for (std::ptrdiff_t i = 0; i < result.rows; ++i) {
        for (std::ptrdiff_t j = 0; j < result.columns; ++j) {
            for (std::ptrdiff_t object = 0; object < count; ++object) {
                moveElement(objectAsRead<reading>(src, object, result)(i, j),
                            dst.object(object, result.columns)(i, j));
            }
        }
    }
}

} // namespace qorm::movement
