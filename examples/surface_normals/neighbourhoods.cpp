#include "neighbourhoods.h"

#include "common/progress_bar.h"

#include <nanoflann.hpp>

#include <cmath>
#include <limits>
#include <numbers>

namespace {

/// The points as the search tree wants to see them.
struct Dataset {
    const std::vector<Vec3>& points;

    std::size_t kdtree_get_point_count() const { return points.size(); }
    double kdtree_get_pt(std::size_t i, std::size_t axis) const {
        return axis == 0 ? points[i].x : axis == 1 ? points[i].y : points[i].z;
    }
    template <class Box>
    bool kdtree_get_bbox(Box& /*box*/) const {
        return false;
    }
};

using Tree = nanoflann::KDTreeSingleIndexAdaptor<nanoflann::L2_Simple_Adaptor<double, Dataset>,
                                                 Dataset, 3, std::uint32_t>;

/// The k nearest, deaf to further points at the very distance of the worst one: else every search
/// among many coinciding points would visit all of them.
struct Nearest : nanoflann::KNNResultSet<double, std::uint32_t> {
    using KNNResultSet::KNNResultSet;
    double worstDist() const { return std::nextafter(KNNResultSet::worstDist(), -1.0); }
};

} // namespace

Neighbours find_neighbours(const std::vector<Vec3>& points, std::size_t k) {
    const Dataset dataset{points};
    const Tree tree(3, dataset);
    Neighbours near{k, std::vector<std::uint32_t>(points.size() * k),
                    std::vector<double>(points.size())};
    ProgressBar progress("searching neighbours", points.size());
#pragma omp parallel
    {
        std::vector<double> squares(k);
#pragma omp for schedule(dynamic, 256)
        for (std::size_t i = 0; i < points.size(); ++i) {
            Nearest nearest(k);
            nearest.init(near.indices.data() + i * k, squares.data());
            tree.findNeighbors(nearest, &points[i].x, nanoflann::SearchParams());
            near.spacing[i] = std::sqrt(squares.back() * std::numbers::pi / static_cast<double>(k));
            progress.advance();
        }
    }
    return near;
}

std::vector<Neighbourhood> covariances(const std::vector<Vec3>& points, const Neighbours& near) {
    std::vector<Neighbourhood> all(points.size());
    for (std::size_t i = 0; i != points.size(); ++i) {
        Vec3 mean;
        for (const std::uint32_t j : near.of(i)) mean = mean + points[j];
        mean = (1.0 / static_cast<double>(near.k)) * mean;

        double xx = 0.0, xy = 0.0, xz = 0.0, yy = 0.0, yz = 0.0, zz = 0.0;
        for (const std::uint32_t j : near.of(i)) {
            const Vec3 d = points[j] - mean;
            xx += d.x * d.x, xy += d.x * d.y, xz += d.x * d.z;
            yy += d.y * d.y, yz += d.y * d.z, zz += d.z * d.z;
        }

        // The solver's thresholds are absolute: it wants matrices of about 1. With the trace, the
        // sum of the eigenvalues, at 1 the smallest one is the surface variation itself.
        // Coinciding points have no trace to divide by and keep the zero matrix.
        const double trace = xx + yy + zz;
        const double scale = trace >= std::numeric_limits<double>::min() ? 1.0 / trace : 0.0;
        all[i] = {{xx * scale, xy * scale, xz * scale, //
                   xy * scale, yy * scale, yz * scale, //
                   xz * scale, yz * scale, zz * scale},
                  {}};
    }
    return all;
}
