/** @file lettering.h  Small letters, digits and . - drawn with a pen; others are blanks. */
#pragma once

#include "canvas.h"

#include <string_view>

/// Draws a text that begins at `start`, on the base line.
void write(Canvas& canvas, std::string_view text, Point start);

/// The width of a text in pixels.
double width_of(std::string_view text);
