/** @file plot.h  A picture of tracks: truth, measurements and estimates. */
#pragma once

#include "canvas.h"
#include "filter_bank.h"
#include "simulation.h"

#include <span>
#include <vector>

/// Where a target goes, as seen from above, in km.
struct Trace {
    std::vector<Point> truth;
    std::vector<Point> measured;
    std::vector<Point> estimated;
};

/// Notes where the first targets and their estimates are, one for each trace.
void note(std::span<Trace> traces, std::span<const Filter> filters, std::span<const Track> tracks);

/// Draws all traces and, larger, the ends of the first and the last; of so many targets.
Image plot(const std::vector<Trace>& traces, std::size_t targets);
