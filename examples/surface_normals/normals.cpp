#include "normals.h"

#include "qorcore.h"
#include "qorm/eigenvaluesvectorssym.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <string>

namespace {

/// One library call for `count` objects from `first` on. The matrices stay in their structures: the
/// strides, in bytes, lead from object to object, row to row and element to element.
qorStatus solve_run(Neighbourhood* first, double* values, std::size_t count) {
    constexpr auto object = static_cast<int32_t>(sizeof(Neighbourhood));
    constexpr auto element = static_cast<int32_t>(sizeof(double));
    constexpr int32_t row = 3 * element;
    double scratch[9];
    return qormEigenValuesVectorsSym_ma_64f(first->covariance, object, row, element, scratch,
                                            first->vectors, object, row, element, values, 3,
                                            static_cast<int32_t>(count));
}

/// The values fit the vectors. They don't, by far, where the sweeps ended too early.
bool fits(const Neighbourhood& neighbourhood, const double* values) {
    return accuracy_of(neighbourhood, values).residual < 1e-10;
}

/// Solves a single object with its axes in another order, which leads the sweeps another way. A
/// table of pointers, one for each element, exchanges the axes without moving anything.
bool solve_with_other_axes(Neighbourhood& neighbourhood, double* values) {
    std::array<std::size_t, 3> axes = {0, 1, 2};
    while (std::next_permutation(axes.begin(), axes.end())) {
        const double* covariance[9];
        double* vectors[9];
        for (std::size_t i = 0; i != 3; ++i) {
            for (std::size_t j = 0; j != 3; ++j) {
                covariance[3 * i + j] = &neighbourhood.covariance[3 * axes[i] + axes[j]];
                vectors[3 * i + j] = &neighbourhood.vectors[3 * axes[i] + j];
            }
        }
        double scratch[9];
        qormEigenValuesVectorsSym_m_64f_P(covariance, 0, scratch, vectors, 0, values, 3);
        if (fits(neighbourhood, values)) return true;
    }
    return false;
}

} // namespace

Eigenvalues solve(std::span<Neighbourhood> all) {
    // The library writes nothing of an object that it doesn't come to: NaN marks those.
    Eigenvalues result;
    result.values.assign(3 * all.size(), std::numeric_limits<double>::quiet_NaN());
    const auto values = [&](std::size_t i) { return &result.values[3 * i]; };
    const auto untouched = [&](std::size_t i) { return std::isnan(*values(i)); };
    const auto run = [&](std::size_t first, std::size_t count) {
        const auto start = std::chrono::steady_clock::now();
        const qorStatus status = solve_run(&all[first], values(first), count);
        const auto stop = std::chrono::steady_clock::now();
        result.seconds += std::chrono::duration<double>(stop - start).count();
        ++result.calls;
        // Either of the two ended the call. A singular object is complete; one without convergence
        // is seen to below.
        if (status != qorStatusOk && status != qorStatusSingular &&
            status != qorStatusNoConvergence) {
            throw std::runtime_error("the solver refuses with status " + std::to_string(status));
        }
    };

    run(0, all.size());

    // Each thread ended at the first failing object of its own share. Go on behind those on one
    // thread: there a call solves its objects in order, so that none is solved over and over.
    const int32_t threads = qorGetThreadCount();
    qorSetThreadCount(1);
    for (std::size_t next = 0; next < all.size(); ++next) {
        std::size_t end = next;
        while (end != all.size() && untouched(end)) ++end;
        while (next != end) {
            run(next, end - next);
            do ++next;
            while (next != end && !untouched(next));
        }
    }
    qorSetThreadCount(threads);

    // A few matrices in a hundred thousand don't converge, or come out inexact with status Ok.
    for (std::size_t i = 0; i != all.size(); ++i) {
        if (fits(all[i], values(i))) continue;
        if (!solve_with_other_axes(all[i], values(i))) {
            throw std::runtime_error("no eigenvectors found for point " + std::to_string(i));
        }
        ++result.retried;
    }
    return result;
}

Surface estimate_surface(std::span<const Neighbourhood> all, const std::vector<double>& values) {
    Surface surface;
    surface.normals.reserve(all.size());
    surface.variation.reserve(all.size());
    for (std::size_t i = 0; i != all.size(); ++i) {
        // Values descend, but those of a singular matrix are unsorted: look for the smallest.
        const auto value = std::span(values).subspan(3 * i, 3);
        const auto smallest = std::min_element(value.begin(), value.end());
        const double* column = all[i].vectors + (smallest - value.begin());
        surface.normals.push_back({column[0], column[3], column[6]});
        surface.variation.push_back(std::max(*smallest, 0.0));
        const double product = value[0] * value[1] * value[2];
        if (std::abs(product) <= std::numeric_limits<double>::epsilon()) ++surface.degenerate;
    }
    return surface;
}

Accuracy accuracy_of(const Neighbourhood& neighbourhood, const double* values) {
    const double* a = neighbourhood.covariance;
    const double* v = neighbourhood.vectors;
    double residual = 0.0;
    double orthogonality = 0.0;
    for (std::size_t i = 0; i != 3; ++i) {
        for (std::size_t j = 0; j != 3; ++j) {
            double r = -v[3 * i + j] * values[j];
            double o = i == j ? -1.0 : 0.0;
            for (std::size_t k = 0; k != 3; ++k) {
                r += a[3 * i + k] * v[3 * k + j];
                o += v[3 * k + i] * v[3 * k + j];
            }
            residual += r * r;
            orthogonality += o * o;
        }
    }
    return {std::sqrt(residual), std::sqrt(orthogonality)};
}

Accuracy worst_accuracy(std::span<const Neighbourhood> all, const std::vector<double>& values) {
    Accuracy worst;
    for (std::size_t i = 0; i != all.size(); ++i) {
        const Accuracy one = accuracy_of(all[i], &values[3 * i]);
        worst.residual = std::max(worst.residual, one.residual);
        worst.orthogonality = std::max(worst.orthogonality, one.orthogonality);
    }
    return worst;
}
