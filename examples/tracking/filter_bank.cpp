#include "filter_bank.h"

#include "matrices.h"

#include <algorithm>
#include <cstddef>
#include <exception>

namespace {

/// Filters that go through all calls of a step together: they stay in a core's cache meanwhile.
constexpr std::size_t block = 256;

// x = F x, P = F P Fᵀ + Q
void predict(std::span<Filter> filters, const Model& model) {
    const Matrix f(model.transition);
    const Matrix q(model.process_noise);
    const Matrices x(filters, &Filter::state);
    const Matrices predicted(filters, &Filter::predicted);
    const Matrices p(filters, &Filter::covariance);
    const Matrices scratch(filters, &Filter::scratch);

    multiply(f, x, predicted);
    multiply(f, p, p); // in place
    multiply(p, Transposed(f), scratch);
    add(scratch, q, p);
}

// Takes in a measurement z with covariance R for each filter.
void update(std::span<Filter> filters, std::span<Track> tracks, const Model& model) {
    const Matrix identity(model.identity);
    const Matrix h(model.observation);
    const Matrices z(tracks, &Track::measurement);
    const Matrices r(tracks, &Track::noise);
    const Matrices x(filters, &Filter::state);
    const Matrices predicted(filters, &Filter::predicted);
    const Matrices p(filters, &Filter::covariance);
    const Matrices y(filters, &Filter::innovation);
    const Matrices s(filters, &Filter::innovation_covariance);
    const Matrices k(filters, &Filter::gain);
    const Matrices kr(filters, &Filter::weighted_gain);
    const Matrices a(filters, &Filter::scratch);
    const Matrices weighted(filters, &Filter::weighted_innovation);
    const Matrices nis(filters, &Filter::nis);

    // y = z - H x
    multiply(h, predicted, y);
    subtract(z, y, y);

    // S = H P Hᵀ + R, and its factor over it
    multiply(p, Transposed(h), k);
    multiply(h, k, s);
    add(s, r, s);
    factorise(s, s);

    // K = P Hᵀ S⁻¹: S is symmetric, so each row of K solves a system with that row of P Hᵀ.
    for (int32_t i = 0; i != k.height; ++i) solve(s, k.row(i), k.row(i));

    // x = F x + K y
    multiply(k, y, x);
    add(predicted, x, x);

    // P = A P Aᵀ + K R Kᵀ with A = I - K H: Joseph's form keeps P symmetric and positive definite.
    multiply(k, h, a);
    subtract(identity, a, a);
    multiply(a, p, p);
    multiply(p, Transposed(a), a);
    multiply(k, r, kr);
    multiply(kr, Transposed(k), p);
    add(a, p, p);

    // yᵀ S⁻¹ y
    solve(s, y, weighted);
    multiply(Transposed(y), weighted, nis);
}

} // namespace

std::vector<Filter> start_filters(const Model& model, std::span<const Track> tracks) {
    std::vector<Filter> filters(tracks.size());
    for (std::size_t n = 0; n != tracks.size(); ++n) {
        for (std::size_t i = 0; i != state_size; ++i) {
            filters[n].state[i][0] = tracks[n].first_guess[i];
            for (std::size_t j = 0; j != state_size; ++j) {
                filters[n].covariance[i][j] = model.first_covariance[i][j];
            }
        }
    }
    return filters;
}

void step(std::span<Filter> filters, std::span<Track> tracks, const Model& model) {
    std::exception_ptr fault;
#pragma omp parallel for if (filters.size() > block)
    for (std::size_t first = 0; first < filters.size(); first += block) {
        try {
            const std::size_t count = std::min(block, filters.size() - first);
            predict(filters.subspan(first, count), model);
            update(filters.subspan(first, count), tracks.subspan(first, count), model);
        } catch (...) {
#pragma omp critical
            fault = std::current_exception();
        }
    }
    if (fault) std::rethrow_exception(fault);
}

void require_positive_definite(std::span<Filter> filters) {
    factorise({filters, &Filter::covariance}, {filters, &Filter::scratch});
}
