/** @file model.h  How targets move and how they are seen: constant velocity, disturbed by noise.
 *
 *      x' = F x + w,  w ~ N(0, Q)        state x: position and velocity, three axes each
 *      z  = H x + v,  v ~ N(0, R)        measurement z: position
 *
 *  R differs from target to target.
 */
#pragma once

#include <cstddef>

constexpr std::size_t state_size = 6;
constexpr std::size_t measurement_size = 3;

struct Model {
    double interval = 1.0;            ///< between measurements, s
    double disturbance = 1.0;         ///< spectral density of the acceleration, m²/s³
    double position_deviation = 60.0; ///< of the first guess, m
    double velocity_deviation = 6.0;  ///< of the first guess, m/s

    double transition[state_size][state_size] = {};        ///< F
    double process_noise[state_size][state_size] = {};     ///< Q
    double observation[measurement_size][state_size] = {}; ///< H
    double identity[state_size][state_size] = {};          ///< I
    double first_covariance[state_size][state_size] = {};  ///< P of the first guess

    Model() {
        const double dt = interval;
        for (std::size_t p = 0; p != measurement_size; ++p) { // position and velocity of an axis
            const std::size_t v = p + measurement_size;
            transition[p][p] = transition[v][v] = 1.0;
            transition[p][v] = dt;
            process_noise[p][p] = disturbance * dt * dt * dt / 3.0;
            process_noise[p][v] = process_noise[v][p] = disturbance * dt * dt / 2.0;
            process_noise[v][v] = disturbance * dt;
            observation[p][p] = 1.0;
            identity[p][p] = identity[v][v] = 1.0;
            first_covariance[p][p] = position_deviation * position_deviation;
            first_covariance[v][v] = velocity_deviation * velocity_deviation;
        }
    }
};
