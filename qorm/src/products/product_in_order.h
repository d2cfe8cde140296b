// Products in the contract's order of reads and writes, which shows where operands overlap: objects,
// rows, columns and terms ascending, and what is read before the first element is written.
#pragma once

#include "products/shape.h"

namespace qorm::products {

// Copy of a square, in local variables.
template <class T, std::ptrdiff_t capacity>
struct Held {
    T values[capacity][capacity];

    template <class Matrix, class N>
    Held(const Matrix& matrix, N n) {
        for (std::ptrdiff_t i = 0; i < n; ++i) {
            for (std::ptrdiff_t j = 0; j < n; ++j) values[i][j] = matrix(i, j);
        }
    }

    const T& operator()(std::ptrdiff_t i, std::ptrdiff_t j) const { return values[i][j]; }
};

// One product of squares, element by element: write(i, j, sum).
template <class V, class A, class B, class Write, class N>
[[gnu::always_inline]] inline void multiplySquare(const A& a, const B& b, const Write& write, N n) {
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        for (std::ptrdiff_t j = 0; j < n; ++j) {
            V sum = a(i, 0) * b(0, j);
            if (!beginsWithProduct(n)) sum = sum + V(0);
            for (std::ptrdiff_t k = 1; k < n; ++k) sum = sum + a(i, k) * b(k, j);
            write(i, j, sum);
        }
    }
}

// Writes to the elements of a matrix.
template <class D>
auto writeTo(const D& d) {
    return [d](std::ptrdiff_t i, std::ptrdiff_t j, auto value) { d(i, j) = value; };
}

// When the elements of an operand are read, at sizes 3 to 6.
enum class Access { asUsed, heldPerObject, heldOnce };

template <Access access, class T, class Operand>
auto accessTo(const Operand& operand, std::ptrdiff_t n) {
    if constexpr (access == Access::asUsed)
        return [&operand](std::ptrdiff_t object) { return operand.object(object); };
    else if constexpr (access == Access::heldPerObject)
        return
            [&operand, n](std::ptrdiff_t object) { return Held<T, 6>(operand.object(object), n); };
    else
        return [held = Held<T, 6>(operand.object(0), n)](std::ptrdiff_t) { return held; };
}

template <Access accessOfSecond, class A, class B, class D>
void multiplySquaresInOrder(const A& src1, const B& src2, const D& dst, std::ptrdiff_t n,
                            std::ptrdiff_t dstColumns, std::ptrdiff_t firstObject,
                            std::ptrdiff_t endObject) {
    using T = typename D::Element;
    constexpr Access accessOfFirst = D::layout != Layout::P ? Access::asUsed
                                     : A::isArray           ? Access::heldPerObject
                                                            : Access::heldOnce;
    const auto first = accessTo<accessOfFirst, T>(src1, n);
    const auto second = accessTo<accessOfSecond, T>(src2, n);
    for (std::ptrdiff_t object = firstObject; object < endObject; ++object) {
        multiplySquare<T>(first(object), second(object), writeTo(dst.object(object, dstColumns)),
                          n);
    }
}

// The pointer layout holds both operands. Otherwise the first is read as it is used and the second is
// held, once per call where it is single; but list cores call the core of single objects each time,
// and of these the two with general element strides, for products as stored, hold nothing but at
// size 3 of 32f.
template <class A, class B, class D>
void multiplySquaresInOrder(const A& src1, const B& src2, const D& dst, std::ptrdiff_t n,
                            std::ptrdiff_t dstColumns, std::ptrdiff_t firstObject,
                            std::ptrdiff_t endObject) {
    constexpr bool single = !A::isArray && !B::isArray;
    constexpr bool asStored = !isTransposed(A::kind) && !isTransposed(B::kind);
    const auto multiply = [&]<Access access>(std::integral_constant<Access, access>) {
        multiplySquaresInOrder<access>(src1, src2, dst, n, dstColumns, firstObject, endObject);
    };
    if constexpr (D::layout != Layout::P && asStored && !D::hasContiguousRows) {
        const bool callsSingle = single || dst.isList();
        if (callsSingle && (n != 3 || sizeof(typename D::Element) != 4))
            return multiply(std::integral_constant<Access, Access::asUsed>());
    }
    if constexpr (!B::isArray) {
        if (!dst.isList()) return multiply(std::integral_constant<Access, Access::heldOnce>());
    }
    multiply(std::integral_constant<Access, Access::heldPerObject>());
}

// Other sizes: sums begin with +0, and the destination holds them as they grow.
template <class A, class B, class D>
void multiplyGenerallyInOrder(const A& src1, const B& src2, const D& dst, const Shape& shape,
                              std::ptrdiff_t firstObject, std::ptrdiff_t endObject) {
    using T = typename D::Element;
    for (std::ptrdiff_t object = firstObject; object < endObject; ++object) {
        const auto a = src1.object(object);
        const auto b = src2.object(object);
        const auto d = dst.object(object, shape.columns);
        for (std::ptrdiff_t i = 0; i < shape.rows; ++i) {
            for (std::ptrdiff_t j = 0; j < shape.columns; ++j) {
                T sum = 0;
                d(i, j) = sum;
                for (std::ptrdiff_t k = 0; k < shape.inner; ++k) {
                    sum += a(i, k) * b(k, j);
                    d(i, j) = sum;
                }
            }
        }
    }
}

template <class A, class B, class D>
[[gnu::noinline]] void multiplyInOrder(const A& src1, const B& src2, const D& dst,
                                       const Shape& shape, std::ptrdiff_t firstObject,
                                       std::ptrdiff_t endObject) {
    if (shape.isSquare() && beginsWithProduct(shape.rows))
        multiplySquaresInOrder(src1, src2, dst, shape.rows, shape.columns, firstObject, endObject);
    else
        multiplyGenerallyInOrder(src1, src2, dst, shape, firstObject, endObject);
}

} // namespace qorm::products
