// Dots along pen strokes, to be traced.
#pragma once

#include <span>
#include <vector>

#include "strokes/letter_shape.h"

namespace bramlee {

/// How dots are to be placed; lengths in sheet pixels, greater than 0.
struct DotRule {
  double pitch = 20;     ///< from dot to dot along the stroke
  double diameter = 10;  ///< of a dot, less than three quarters of the pitch
};

/// By how much a gap may be shorter or longer than the pitch, as a part of it.
inline constexpr double kPitchBend = 0.25;

/// The middles of the dots of each stroke, in the direction of the pen. There is one where a stroke
/// begins, where it ends and, if the gaps come out even, at its corners; those between lie evenly.
/// A stroke whose length no gaps fit is shorter than one and a half pitches: it has two dots a
/// little within its ends, or a single one in its middle. A dot that would overlap an earlier one
/// of its letter, or stand between two dots of a way that it runs along or crosses, is left out. A
/// stroke that plots nothing has no dots.
std::vector<std::vector<Point>> PlaceDots(std::span<const StrokePath> strokes, const DotRule& rule);

}  // namespace bramlee
