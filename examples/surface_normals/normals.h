/** @file normals.h  Normals and surface variation from the eigenvectors of the covariances. */
#pragma once

#include "neighbourhoods.h"

#include <cstddef>
#include <span>
#include <vector>

struct Eigenvalues {
    std::vector<double> values; ///< 3 for each neighbourhood
    std::size_t calls = 0;      ///< array calls of the library that it took
    double seconds = 0.0;       ///< time in those calls
    std::size_t retried = 0;    ///< neighbourhoods solved with their axes in another order
};

/// Solves all covariances where they lie. Throws std::runtime_error if the library gives up.
Eigenvalues solve(std::span<Neighbourhood> all);

struct Surface {
    std::vector<Vec3> normals;
    std::vector<double> variation; ///< smallest eigenvalue by the sum of all: 0 is flat
    std::size_t degenerate = 0;    ///< flat, linear or coinciding neighbourhoods
};

/// The normal is the eigenvector of the smallest eigenvalue, of either sign.
Surface estimate_surface(std::span<const Neighbourhood> all, const std::vector<double>& values);

/// How well eigenvectors V and eigenvalues L of a covariance A fit, as Frobenius norms.
struct Accuracy {
    double residual = 0.0;      ///< ||A V - V L||
    double orthogonality = 0.0; ///< ||Vt V - I||
};

Accuracy accuracy_of(const Neighbourhood& neighbourhood, const double* values);

/// The largest norms of all.
Accuracy worst_accuracy(std::span<const Neighbourhood> all, const std::vector<double>& values);
