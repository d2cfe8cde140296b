// The practical limit: operations on structures of arrays, where objects fill whole registers
// without any rearrangement. Products and sums are not fused, as in the library, which is what this
// source is compiled apart for.
#pragma once

#include <cstddef>

namespace bench {

// Element p of object k lies at base[p * step + k]. Both base and step are multiples of a cache
// line, and what lies behind the last object up to the end of its line may be read and written.
template <class T>
struct Planes {
    T* base;
    std::ptrdiff_t step;
};

enum class SingleOperand { none, first, second };

// For sizes 2 to 6, 8 and 16, both types.
// d = a b for n x n matrices, where one of the operands may be a single matrix.
template <class T, SingleOperand single>
void multiplyInLanes(int n, Planes<T> a, Planes<T> b, Planes<T> d, std::ptrdiff_t count);
// By cofactors up to 4, by elimination without pivoting beyond.
template <class T>
void determinantsInLanes(int n, Planes<T> a, T* determinants, std::ptrdiff_t count);
template <class T>
void invertInLanes(int n, Planes<T> a, Planes<T> d, std::ptrdiff_t count);

// Products and sums in registers, as many of the one as of the other.
template <class T>
void multiplyAndAdd(std::ptrdiff_t operations);

} // namespace bench
