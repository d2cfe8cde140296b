// Matrices and vectors that are loaded whole: of numbers, or of packs for as many objects.
#pragma once

#include "frame/lane_blocks.h"

namespace qorm {

// The elements of one matrix, or of a pack of them, loaded as W.
template <class W, class N>
struct Loaded {
    W elements[areaOf<N>];
    N columns;

    explicit Loaded(N width) : columns(width) {}

    const W& operator()(std::ptrdiff_t i, std::ptrdiff_t j) const {
        return elements[i * columns + j];
    }
    PackMatrix<W, N> matrix() { return {elements, columns}; }
};

// A right-hand side or solution in lanes.
template <class V, class N>
struct LoadedVector {
    V elements[largestSize<N>];

    V& operator()(std::ptrdiff_t i) { return elements[i]; }
    const V& operator()(std::ptrdiff_t i) const { return elements[i]; }

    template <class Operand>
    void load(const Operand& operand, std::ptrdiff_t first, int live, N n) {
        loadLanes(operand, first, live, Fixed<1>(), n, PackMatrix<V, N>{elements, n});
    }
    template <class Operand>
    void store(const Operand& operand, std::ptrdiff_t first, int live, N n) {
        storeLanes(operand, first, live, Fixed<1>(), n, PackMatrix<V, N>{elements, n});
    }
};

// Object n of an operand of vectors, where it lies.
template <class Operand>
auto vectorOf(const Operand& operand, std::ptrdiff_t n, std::ptrdiff_t length) {
    return OnlyRow{operand.object(n, length)};
}

// Vectors without their first k elements.
template <class T, Kind kind, bool contiguousRows>
auto elementsFrom(const Strided<T, kind, contiguousRows>& vectors, std::ptrdiff_t k) {
    auto rest = vectors;
    rest.base = stepped(rest.base, k * rest.stride2);
    return rest;
}
template <class T, Kind kind, bool contiguousRows>
auto elementsFrom(const List<T, kind, contiguousRows>& vectors, std::ptrdiff_t k) {
    auto rest = vectors;
    rest.shift += static_cast<std::int32_t>(k) * rest.stride2;
    return rest;
}
template <class T, bool array>
auto elementsFrom(const Pointers<T, array>& vectors, std::ptrdiff_t k) {
    auto rest = vectors;
    rest.table += k;
    return rest;
}

// Whether all elements can be reached so: the shift of a list has 32 bits.
template <class Operand>
bool canLeaveOut(const Operand& vectors, std::ptrdiff_t len) {
    if constexpr (Operand::layout == Layout::L)
        return vectors.shift + len * vectors.stride2 <= std::numeric_limits<std::int32_t>::max();
    else
        return true;
}

// A single vector of a few elements, held for all objects of a call: an operand like the vector.
template <class Operand>
class HeldVector {
public:
    HeldVector(const Operand& vector, std::ptrdiff_t len) {
        const OnlyRow elements = vectorOf(vector, 0, len);
        for (std::ptrdiff_t i = 0; i < len; ++i) {
            elements_[i] = elements(i);
            addresses_[i] = &elements_[i];
        }
    }
    HeldVector(const HeldVector&) = delete;
    HeldVector& operator=(const HeldVector&) = delete;

    Operand operand() const {
        if constexpr (Operand::layout == Layout::P)
            return {addresses_, 0, 0};
        else
            return {elements_, 0, 0, sizeof(T)};
    }

private:
    using T = std::remove_const_t<typename Operand::Element>;

    T elements_[6];
    const T* addresses_[6];
};

} // namespace qorm
