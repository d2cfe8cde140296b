// Elements where they lie: every address is a byte address and may be misaligned, so all access to
// the caller's elements goes through Element, which compiles to a plain load or store.
#pragma once

#include <cstddef>
#include <cstring>
#include <type_traits>

namespace qorm {

// The address `bytes` behind p.
template <class T>
T* stepped(T* p, std::ptrdiff_t bytes) {
    using Byte = std::conditional_t<std::is_const_v<T>, const char, char>;
    return reinterpret_cast<T*>(reinterpret_cast<Byte*>(p) + bytes);
}

// Reference to one element of the caller's memory.
template <class T>
class Element {
public:
    using Value = std::remove_const_t<T>;

    explicit Element(T* address) : address_(address) {}
    Element(const Element&) = default;

    operator Value() const {
        Value value;
        std::memcpy(&value, address_, sizeof value);
        return value;
    }

    const Element& operator=(Value value) const {
        std::memcpy(address_, &value, sizeof value);
        return *this;
    }
    const Element& operator=(const Element& other) const { return *this = Value(other); }

    T* address() const { return address_; }

private:
    T* address_;
};

// One matrix by row and element stride. The element stride of contiguous rows is a constant, which
// lets the compiler use packed loads.
template <class T, bool contiguous>
struct StridedMatrix {
    T* base;
    std::ptrdiff_t stride1;
    std::ptrdiff_t stride2;

    Element<T> operator()(std::ptrdiff_t i, std::ptrdiff_t j) const {
        const std::ptrdiff_t step = contiguous ? std::ptrdiff_t{sizeof(T)} : stride2;
        return Element<T>(stepped(base, i * stride1 + j * step));
    }
};

// The bytes from the begin of such a matrix to its end.
template <class T>
std::ptrdiff_t spanOfMatrix(std::ptrdiff_t stride1, std::ptrdiff_t stride2, std::ptrdiff_t rows,
                            std::ptrdiff_t columns) {
    return (rows - 1) * stride1 + (columns - 1) * stride2 + std::ptrdiff_t{sizeof(T)};
}

// One matrix by a table of element addresses, row by row, each to be shifted by `offset` bytes.
template <class T>
struct TabledMatrix {
    T* const* table;
    std::ptrdiff_t columns;
    std::ptrdiff_t offset;

    Element<T> operator()(std::ptrdiff_t i, std::ptrdiff_t j) const {
        return Element<T>(stepped(table[i * columns + j], offset));
    }
};

// A matrix with its indices exchanged.
template <class Matrix>
struct Transposed {
    Matrix matrix;

    auto operator()(std::ptrdiff_t i, std::ptrdiff_t j) const { return matrix(j, i); }
};
template <class Matrix>
Transposed(Matrix) -> Transposed<Matrix>;

template <class Matrix>
Transposed<Matrix> transposed(const Matrix& matrix) {
    return {matrix};
}
template <class Matrix>
Matrix transposed(const Transposed<Matrix>& matrix) {
    return matrix.matrix;
}

// A vector: a matrix of one row.
template <class Matrix>
struct OnlyRow {
    Matrix matrix;

    decltype(auto) operator()(std::ptrdiff_t i) const { return matrix(0, i); }
};
template <class Matrix>
OnlyRow(Matrix) -> OnlyRow<Matrix>;

// A plain run of elements.
template <class T>
struct Run {
    T* base;

    Element<T> operator()(std::ptrdiff_t i) const {
        return Element<T>(stepped(base, i * std::ptrdiff_t{sizeof(T)}));
    }
};

} // namespace qorm
