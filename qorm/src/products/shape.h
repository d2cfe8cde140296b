// What products are made of: the shape, and operands as a product reads them.
#pragma once

#include "frame/operands.h"
#include "frame/static_size.h"

namespace qorm::products {

// Of the product: `inner` is the number of terms of each sum.
struct Shape {
    std::ptrdiff_t rows;
    std::ptrdiff_t inner;
    std::ptrdiff_t columns;

    bool isSquare() const { return rows == inner && rows == columns; }
};

// Sums of sizes 3 to 6 begin with their first product, others with +0, which shows in the sign of a
// zero.
constexpr bool beginsWithProduct(std::ptrdiff_t n) {
    return n >= 3 && n <= 6;
}

// An operand as a product reads it.
template <Kind readAs, class Operand>
struct Reader {
    static constexpr Kind kind = readAs;
    static constexpr bool isArray = qorm::isArray(kind);

    Operand operand;
    std::ptrdiff_t storedColumns;
    std::ptrdiff_t storedRows;

    auto object(std::ptrdiff_t n) const { return asRead<kind>(operand.object(n, storedColumns)); }
};

} // namespace qorm::products
