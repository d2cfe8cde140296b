/** @file matrices.h  Array calls of the library as formulas, for matrices in arrays of structures.
 *
 *  Each function is one call, and nothing is copied: the library takes the place of an operand as a
 *  pointer and the distances, in bytes, from object to object, row to row and element to element.
 */
#pragma once

#include "qorm.h"

#include <cstddef>
#include <span>
#include <stdexcept>
#include <string>
#include <tuple>

constexpr int32_t element = sizeof(double);

/// One matrix that serves every object.
struct Matrix {
    template <std::size_t rows, std::size_t columns>
    explicit Matrix(const double (&elements)[rows][columns])
        : data(elements[0]), height(rows), width(columns) {}

    auto place() const { return std::tuple(data, width * element, element); }
    auto size() const { return std::tuple(width, height); }

    const double* data;
    int32_t height;
    int32_t width;
};

/// The matrices that a field holds in all structures of an array.
struct Matrices {
    template <class Structure, std::size_t rows, std::size_t columns>
    Matrices(std::span<Structure> all, double (Structure::*field)[rows][columns])
        : data((all.front().*field)[0]),
          height(rows),
          width(columns),
          structure(sizeof(Structure)),
          count(static_cast<int32_t>(all.size())) {}

    /// The vectors that are row i of every matrix.
    Matrices row(int32_t i) const {
        Matrices result = *this;
        result.data += i * width;
        result.height = 1;
        return result;
    }

    auto place() const { return std::tuple(data, structure, width * element, element); }
    auto place_of_vectors() const { return std::tuple(data, structure, element); }
    auto size() const { return std::tuple(width, height); }

    double* data;
    int32_t height;
    int32_t width;
    int32_t structure; ///< its size in bytes
    int32_t count;
};

/// An operand that is read transposed.
template <class Operand>
struct Transposed : Operand {
    explicit Transposed(const Operand& operand) : Operand(operand) {}
};

/// Calls the library with all these arguments, in tuples.
template <class... Tuples>
void call(auto* function, const Tuples&... arguments) {
    const qorStatus status = std::apply(function, std::tuple_cat(arguments...));
    if (status == qorStatusNotPositiveDefinite) {
        throw std::runtime_error("a covariance is not positive definite");
    }
    if (status != qorStatusOk) {
        throw std::runtime_error("the library refuses with status " + std::to_string(status));
    }
}

/// The library's name for an operation on these operands.
struct Name {
    static auto product(const Matrix&, const Matrices&) { return qormMul_mma_64f; }
    static auto product(const Matrices&, const Matrix&) { return qormMul_mam_64f; }
    static auto product(const Matrices&, const Transposed<Matrix>&) { return qormMul_mat_64f; }
    static auto product(const Matrices&, const Matrices&) { return qormMul_mama_64f; }
    static auto product(const Transposed<Matrices>&, const Matrices&) { return qormMul_tama_64f; }
    static auto product(const Matrices&, const Transposed<Matrices>&) { return qormMul_mata_64f; }
    static auto sum(const Matrices&, const Matrix&) { return qormAdd_mam_64f; }
    static auto sum(const Matrices&, const Matrices&) { return qormAdd_mama_64f; }
    static auto difference(const Matrix&, const Matrices&) { return qormSub_mma_64f; }
    static auto difference(const Matrices&, const Matrices&) { return qormSub_mama_64f; }
};

/// to = A B
template <class A, class B>
void multiply(const A& a, const B& b, const Matrices& to) {
    call(Name::product(a, b), a.place(), a.size(), b.place(), b.size(), to.place(),
         std::tuple(to.count));
}

/// to = A + B
template <class A, class B>
void add(const A& a, const B& b, const Matrices& to) {
    call(Name::sum(a, b), a.place(), b.place(), to.place(), to.size(), std::tuple(to.count));
}

/// to = A - B
template <class A, class B>
void subtract(const A& a, const B& b, const Matrices& to) {
    call(Name::difference(a, b), a.place(), b.place(), to.place(), to.size(), std::tuple(to.count));
}

/// The Cholesky factors of A.
inline void factorise(const Matrices& a, const Matrices& to) {
    call(qormCholeskyDecomp_ma_64f, a.place(), to.place(), std::tuple(a.width, a.count));
}

/// x with A x = b, from the factors of A.
inline void solve(const Matrices& factors, const Matrices& b, const Matrices& x) {
    call(qormCholeskyBackSubst_mava_64f, factors.place(), b.place_of_vectors(),
         x.place_of_vectors(), std::tuple(factors.width, factors.count));
}
