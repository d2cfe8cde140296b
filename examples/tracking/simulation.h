/** @file simulation.h  Targets that really move as the model says, and what sensors see of them. */
#pragma once

#include "model.h"

#include <cstdint>
#include <random>
#include <span>
#include <vector>

struct Track {
    double truth[state_size];
    double first_guess[state_size];                   ///< the truth at first, with deviations
    double measurement[measurement_size][1];          ///< z
    double noise[measurement_size][measurement_size]; ///< R of this target
};

class Simulation {
public:
    Simulation(const Model& model, std::size_t targets, std::uint64_t seed);

    /// Moves each target by an interval and measures it.
    void advance();

    std::span<Track> tracks() { return tracks_; }

private:
    void start(Track& track);
    void move(Track& track);
    void measure(Track& track);
    double uniform(double low, double high);
    double gaussian(double deviation);

    const Model& model_;
    std::vector<Track> tracks_;
    std::mt19937_64 random_;
    std::normal_distribution<> normal_;
};
