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

// Solving a x = b by way of factors, or parts of it.
enum class Factorisation { lu, cholesky, qr };
enum class Task {
    factor,
    solve,          // with the factors that are there
    factorAndSolve, // without keeping the factors
    solveWithOne    // with the factors of the first matrix, all systems
};
template <class T>
struct SystemsInLanes {
    int rows;
    int columns;
    std::ptrdiff_t count;
    Planes<T> a;
    Planes<T> factors; // with reciprocals on the diagonal; LU exchanges rows
    Planes<T> extras;  // as many as rows: the row numbers of LU, the scales of QR
    Planes<T> b;
    Planes<T> x;
};
// For square sizes of 3 to 6, 8 and 16, QR also for 8 x 4.
template <class T, Factorisation factorisation>
void runInLanes(Task task, const SystemsInLanes<T>& systems);

// Products and sums in registers, as many of the one as of the other.
template <class T>
void multiplyAndAdd(std::ptrdiff_t operations);

} // namespace bench
