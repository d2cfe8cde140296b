/** @file neighbourhoods.h  The nearest neighbours of every point and their covariances. */
#pragma once

#include "vec3.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

/// The `k` points nearest to each point. A point is the nearest to itself and is one of them.
struct Neighbours {
    std::size_t k = 0;
    std::vector<std::uint32_t> indices; ///< k for each point
    std::vector<double> spacing;        ///< mean distance of the points around each point

    std::span<const std::uint32_t> of(std::size_t point) const {
        return std::span(indices).subspan(point * k, k);
    }
};

/// Searches for the `k` nearest of each, with a progress bar if someone is looking.
Neighbours find_neighbours(const std::vector<Vec3>& points, std::size_t k);

/// What the eigenvalue solver reads and writes for one point: both matrices row by row.
struct Neighbourhood {
    double covariance[9];
    double vectors[9]; ///< column j is the eigenvector of eigenvalue j
};

/// The covariance of each point's neighbours, divided by its trace: see the source for why.
std::vector<Neighbourhood> covariances(const std::vector<Vec3>& points, const Neighbours& near);
