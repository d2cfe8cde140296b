/** @file filter_bank.h  Many Kalman filters that go through their steps together. */
#pragma once

#include "model.h"
#include "simulation.h"

#include <span>
#include <vector>

/// All that belongs to one filter, side by side: its estimate and what the steps need in between.
struct Filter {
    double state[state_size][1];                                      ///< x
    double covariance[state_size][state_size];                        ///< P
    double predicted[state_size][1];                                  ///< F x
    double innovation[measurement_size][1];                           ///< y = z - H F x
    double innovation_covariance[measurement_size][measurement_size]; ///< S, then its factor
    double gain[state_size][measurement_size];                        ///< P Hᵀ, then K
    double weighted_gain[state_size][measurement_size];               ///< K R
    double weighted_innovation[measurement_size][1];                  ///< S⁻¹ y
    double nis[1][1];                       ///< yᵀ S⁻¹ y, the normalised innovation squared
    double scratch[state_size][state_size]; ///< F P Fᵀ, then I - K H
};

/// A filter for each target, with the first guess of it.
std::vector<Filter> start_filters(const Model& model, std::span<const Track> tracks);

/// Takes each filter to the time of its target's measurement, and takes that measurement in.
/// Throws std::runtime_error if a covariance is not positive definite.
void step(std::span<Filter> filters, std::span<Track> tracks, const Model& model);

/// Throws std::runtime_error unless the covariances of all estimates are positive definite.
void require_positive_definite(std::span<Filter> filters);
