#include "statistics.h"

#include <algorithm>
#include <cmath>

void Accuracy::add(std::span<const Filter> filters, std::span<const Track> tracks) {
    const auto squared = [](double difference) { return difference * difference; };
    for (std::size_t n = 0; n != filters.size(); ++n) {
        nis += filters[n].nis[0][0];
        for (std::size_t i = 0; i != measurement_size; ++i) {
            estimated += squared(filters[n].state[i][0] - tracks[n].truth[i]);
            measured += squared(tracks[n].measurement[i][0] - tracks[n].truth[i]);
        }
    }
    updates += static_cast<double>(filters.size());
}

Band expected_nis(double updates) {
    // Wilson and Hilferty, 1931: the cube root of chi-squared is all but normally distributed. One
    // run in two million lies beyond 5 standard deviations.
    const double variance = 2.0 / (9.0 * measurement_size * updates);
    const auto quantile = [variance](double deviations) {
        const double root = 1.0 - variance + deviations * std::sqrt(variance);
        return measurement_size * std::pow(std::max(0.0, root), 3.0);
    };
    return {quantile(-5.0), quantile(5.0)};
}
