#include "orientation.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numeric>
#include <queue>

namespace {

/// Neighbours in both directions: j is next to i if one is among the nearest of the other.
struct Graph {
    std::vector<std::size_t> begin; ///< where each point's run in `adjacent` begins
    std::vector<std::uint32_t> adjacent;
};

Graph symmetric(const Neighbours& near, std::size_t count) {
    Graph graph{std::vector<std::size_t>(count + 1, near.k), {}};
    for (const std::uint32_t j : near.indices) ++graph.begin[j];
    std::exclusive_scan(graph.begin.begin(), graph.begin.end(), graph.begin.begin(),
                        std::size_t{0});
    graph.adjacent.resize(graph.begin.back());
    std::vector<std::size_t> end = graph.begin;
    for (std::uint32_t i = 0; i != count; ++i) {
        for (const std::uint32_t j : near.of(i)) {
            graph.adjacent[end[i]++] = j;
            graph.adjacent[end[j]++] = i;
        }
    }
    return graph;
}

/// A step from an oriented point to another; the smaller the angle of the normals, the sooner.
struct Step {
    double cost;
    std::uint32_t from;
    std::uint32_t to;

    bool operator>(const Step& other) const { return cost > other.cost; }
};

} // namespace

// Hoppe et al., "Surface reconstruction from unorganized points", 1992: the signs spread along a
// minimum spanning tree (grown as Prim's), from the highest point, whose normal points up.
std::size_t orient(const std::vector<Vec3>& points, const Neighbours& near,
                   std::vector<Vec3>& normals) {
    const Graph graph = symmetric(near, points.size());
    std::vector<bool> reached(points.size(), false);
    std::priority_queue<Step, std::vector<Step>, std::greater<>> steps;

    const auto reach = [&](std::uint32_t point, const Vec3& along) {
        reached[point] = true;
        if (dot(normals[point], along) < 0.0) normals[point] = -1.0 * normals[point];
        for (std::size_t at = graph.begin[point]; at != graph.begin[point + 1]; ++at) {
            const std::uint32_t next = graph.adjacent[at];
            if (reached[next]) continue;
            steps.push({1.0 - std::abs(dot(normals[point], normals[next])), point, next});
        }
    };

    std::vector<std::uint32_t> highest_first(points.size());
    std::iota(highest_first.begin(), highest_first.end(), 0U);
    std::stable_sort(highest_first.begin(), highest_first.end(),
                     [&](std::uint32_t a, std::uint32_t b) { return points[a].z > points[b].z; });
    std::size_t components = 0;
    for (const std::uint32_t seed : highest_first) {
        if (reached[seed]) continue;
        ++components;
        reach(seed, {0.0, 0.0, 1.0});
        while (!steps.empty()) {
            const Step step = steps.top();
            steps.pop();
            if (!reached[step.to]) reach(step.to, normals[step.from]);
        }
    }
    return components;
}
