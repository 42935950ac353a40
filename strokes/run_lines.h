// Runs as lines between their dots, for pictures that are not made of dots.
#pragma once

#include <vector>

#include "engine/run.h"
#include "strokes/letter_shape.h"

namespace bramlee {

/// Which dots of a run become points of its lines.
struct LineRule {
  double step = kUsualStep;  ///< the dots are those of this step
  /// Points stand at least so far apart, in sheet pixels, but for the ends; 0 for a point a dot.
  /// Otherwise a straight run has its ends alone.
  double spacing = 0;
  /// Dots further apart than this are not joined: the sheet shows them apart.
  double joined = 1e9;
};

/// Points joined by lines.
using Lines = std::vector<Point>;

/// The run as plotted, in the direction of the pen: one piece, or more where its dots stand apart;
/// none for a run that plots nothing. A single dot is a piece from itself to itself.
std::vector<Lines> LinesOf(const Run& run, const LineRule& rule);

}  // namespace bramlee
