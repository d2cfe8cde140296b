/** Tracks many targets at once with a bank of Kalman filters, and draws some of the tracks. */
#include "filter_bank.h"
#include "plot.h"
#include "simulation.h"
#include "statistics.h"

#include "common/image.h"
#include "common/program.h"
#include "common/progress_bar.h"
#include "qorcore.h"

#include <omp.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <limits>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

struct Options {
    std::size_t filters = 10000;
    std::size_t steps = 200;
    int threads = qorGetThreadCount();
    std::uint64_t seed = 4;
    std::string output = "tracking.png";
};

void add_options(CLI::App& app, Options& options) {
    app.add_option("--filters", options.filters, "targets, each with a filter of its own")
        ->check(CLI::Range(1, 1000000))
        ->capture_default_str();
    app.add_option("--steps", options.steps, "measurements of each target")
        ->check(CLI::Range(1, 100000))
        ->capture_default_str();
    add_threads(app, options.threads, "threads of the filters");
    app.add_option("--seed", options.seed, "of the random numbers")
        ->check(CLI::Range(0, std::numeric_limits<int>::max()))
        ->capture_default_str();
    app.add_option("-o,--output", options.output, "picture to write (PNG)")->capture_default_str();
}

void run(const Options& options) {
    // The filters are shared out before the library is called: each thread calls it for its own.
    omp_set_num_threads(options.threads);
    qorSetThreadCount(1);

    const Model model;
    Simulation simulation(model, options.filters, options.seed);
    const std::span<Track> tracks = simulation.tracks();
    std::vector<Filter> filters = start_filters(model, tracks);
    std::vector<Trace> traces(std::min<std::size_t>(options.filters, 5));
    Accuracy accuracy;
    std::chrono::duration<double> busy{};
    {
        ProgressBar progress("tracking", options.steps);
        for (std::size_t i = 0; i != options.steps; ++i) {
            simulation.advance();
            const auto start = std::chrono::steady_clock::now();
            step(filters, tracks, model);
            busy += std::chrono::steady_clock::now() - start;
            accuracy.add(filters, tracks);
            note(traces, filters, tracks);
            progress.advance();
        }
    }
    require_positive_definite(filters);
    write_png(options.output, plot(traces, options.filters));

    const double nis = accuracy.nis / accuracy.updates;
    const Band band = expected_nis(accuracy.updates);
    std::printf("filters      %zu, %zu steps each\n", options.filters, options.steps);
    std::printf("threads      %d\n", options.threads);
    std::printf("speed        %.3g million filters*steps per second, %.3f s in all\n",
                1e-6 * accuracy.updates / busy.count(), busy.count());
    std::printf("error        %.2f m rms of estimates, %.2f m rms of measurements\n",
                std::sqrt(accuracy.estimated / accuracy.updates),
                std::sqrt(accuracy.measured / accuracy.updates));
    std::printf("NIS          %.4f on average, expected %zu, between %.4f and %.4f\n", nis,
                measurement_size, band.low, band.high);
    std::printf("written      %s\n", options.output.c_str());
    if (!band.holds(nis)) {
        throw std::runtime_error("the filters are wrong: the mean of their normalised innovations "
                                 "squared (NIS) is far from what it has to be");
    }
}

} // namespace

int main(int argc, char** argv) {
    return run_program<Options>(
        "tracking", "Tracks many targets at once with a bank of Kalman filters, and draws some.",
        argc, argv, add_options, run);
}
