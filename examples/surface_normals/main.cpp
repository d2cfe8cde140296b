/** Estimates the normals and the surface variation of a 3D scan, and draws it. */
#include "neighbourhoods.h"
#include "normals.h"
#include "orientation.h"
#include "output.h"
#include "point_cloud.h"
#include "render.h"
#include "text_reader.h"

#include "common/image.h"
#include "common/program.h"
#include "qorcore.h"

#include <omp.h>

#include <chrono>
#include <cstdio>
#include <limits>
#include <string>
#include <utility>

namespace {

struct Options {
    std::string input = "/usr/share/glmark2/models/bunny.obj";
    std::string image = "surface_normals.png";
    std::string normals = "surface_normals.ply";
    std::string size = "1200x1000";
    std::size_t neighbours = 16;
    int threads = qorGetThreadCount();
};

void add_options(CLI::App& app, Options& options) {
    app.add_option("input", options.input, "points: an .obj, .ply or .xyz file")
        ->capture_default_str();
    app.add_option("-k,--neighbours", options.neighbours,
                   "size of a neighbourhood, the point itself included")
        ->check(CLI::Range(3, 1000))
        ->capture_default_str();
    add_threads(app, options.threads, "threads of the search and of the solver");
    app.add_option("-o,--image", options.image, "picture to write (PNG)")->capture_default_str();
    app.add_option("--normals", options.normals, "points with normals to write (PLY)")
        ->capture_default_str();
    app.add_option("--size", options.size, "WIDTHxHEIGHT of the picture, each 16 to 4096")
        ->capture_default_str();
}

/// Width and height.
std::pair<int, int> parse_size(const std::string& text) {
    int width = 0;
    int height = 0;
    int used = 0;
    const bool parsed = std::sscanf(text.c_str(), "%5dx%5d%n", &width, &height, &used) == 2 &&
                        text.size() == static_cast<std::size_t>(used);
    const auto fits = [](int length) { return length >= 16 && length <= 4096; };
    if (!parsed || !fits(width) || !fits(height)) {
        throw CLI::ValidationError("--size",
                                   "'" + text + "' is not WIDTHxHEIGHT with 16 to 4096 each");
    }
    return {width, height};
}

void run(const Options& options) {
    const auto [width, height] = parse_size(options.size);
    const std::vector<Vec3> points = read_points(options.input);
    if (points.size() < options.neighbours) {
        throw InputError(options.input + ": " + std::to_string(points.size()) +
                         " points are too few for neighbourhoods of " +
                         std::to_string(options.neighbours));
    }
    if (points.size() > std::numeric_limits<std::int32_t>::max()) {
        throw InputError(options.input + ": more points than one call can count");
    }

    omp_set_num_threads(options.threads); // the program's own loops
    qorSetThreadCount(options.threads);   // the library's array calls
    const auto start = std::chrono::steady_clock::now();
    const Neighbours near = find_neighbours(points, options.neighbours);
    const std::chrono::duration<double> search = std::chrono::steady_clock::now() - start;
    std::vector<Neighbourhood> all = covariances(points, near);
    const Eigenvalues eigen = solve(all);
    Surface surface = estimate_surface(all, eigen.values);
    const Accuracy accuracy = worst_accuracy(all, eigen.values);
    const std::size_t components = orient(points, near, surface.normals);

    write_ply(options.normals, points, surface);
    write_png(options.image, render(points, surface, near.spacing, width, height));

    const auto count = static_cast<double>(points.size());
    std::printf("points         %zu from %s, %zu component%s\n", points.size(),
                options.input.c_str(), components, components == 1 ? "" : "s");
    std::printf("threads        %d\n", options.threads);
    std::printf("search         %.1f ms for the %zu nearest of each, itself included\n",
                1e3 * search.count(), options.neighbours);
    std::printf("eigenvectors   %.2f ms in %zu call%s of the library, %.0f ns per matrix\n",
                1e3 * eigen.seconds, eigen.calls, eigen.calls == 1 ? "" : "s",
                1e9 * eigen.seconds / count);
    std::printf("residual       ||A V - V L|| <= %.1e\n", accuracy.residual);
    std::printf("orthogonality  ||Vt V - I|| <= %.1e\n", accuracy.orthogonality);
    std::printf("retried        %zu with the axes in another order\n", eigen.retried);
    std::printf("degenerate     %zu neighbourhoods flat, linear or in one place\n",
                surface.degenerate);
    std::printf("written        %s, %s\n", options.image.c_str(), options.normals.c_str());
}

} // namespace

int main(int argc, char** argv) {
    return run_program<Options>(
        "surface_normals",
        "Estimates the normals and the surface variation of a 3D scan, and draws it.", argc, argv,
        add_options, run);
}
