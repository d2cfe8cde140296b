/** @file statistics.h  How good the estimates are, and whether the filters are right about that. */
#pragma once

#include "filter_bank.h"
#include "simulation.h"

#include <span>

/// Sums over the updates of filters.
struct Accuracy {
    double updates = 0.0;
    double nis = 0.0;       ///< normalised innovation squared
    double estimated = 0.0; ///< squared distance of estimated and true position, m²
    double measured = 0.0;  ///< squared distance of measured and true position, m²

    void add(std::span<const Filter> filters, std::span<const Track> tracks);
};

struct Band {
    double low;
    double high;

    bool holds(double value) const { return value >= low && value <= high; }
};

/// Where the mean normalised innovation squared of so many updates has to lie. In filters that are
/// right, each is chi-squared with measurement_size degrees of freedom, and all are independent.
Band expected_nis(double updates);
