#include "simulation.h"

#include <cmath>
#include <numbers>

Simulation::Simulation(const Model& model, std::size_t targets, std::uint64_t seed)
    : model_(model), tracks_(targets), random_(seed) {
    for (Track& track : tracks_) start(track);
}

void Simulation::advance() {
    for (Track& track : tracks_) {
        move(track);
        measure(track);
    }
}

void Simulation::start(Track& track) {
    const double heading = uniform(0.0, 2.0 * std::numbers::pi);
    const double speed = uniform(8.0, 18.0);
    const double deviation = uniform(12.0, 36.0); // of the sensor on each axis, m
    const double velocity[] = {speed * std::cos(heading), speed * std::sin(heading), 0.0};
    for (std::size_t p = 0; p != measurement_size; ++p) {
        const std::size_t v = p + measurement_size;
        track.truth[p] = uniform(-1200.0, 1200.0);
        track.truth[v] = velocity[p];
        track.first_guess[p] = track.truth[p] + gaussian(model_.position_deviation);
        track.first_guess[v] = track.truth[v] + gaussian(model_.velocity_deviation);
        track.noise[p][p] = deviation * deviation;
    }
}

void Simulation::move(Track& track) {
    // Position and velocity of an axis take the two correlated noises of Q, by its Cholesky factor.
    const double dt = model_.interval;
    const double sigma = std::sqrt(model_.disturbance * dt);
    for (std::size_t p = 0; p != measurement_size; ++p) {
        double& position = track.truth[p];
        double& velocity = track.truth[p + measurement_size];
        const double common = gaussian(sigma);
        position += dt * velocity + common * dt / std::sqrt(3.0);
        velocity += common * std::sqrt(3.0) / 2.0 + gaussian(sigma / 2.0);
    }
}

void Simulation::measure(Track& track) {
    for (std::size_t p = 0; p != measurement_size; ++p) {
        track.measurement[p][0] = track.truth[p] + gaussian(std::sqrt(track.noise[p][p]));
    }
}

double Simulation::uniform(double low, double high) {
    return std::uniform_real_distribution(low, high)(random_);
}

double Simulation::gaussian(double deviation) {
    return deviation * normal_(random_);
}
