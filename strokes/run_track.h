// A run as one line or one arc of a circle.
#pragma once

#include <optional>

#include "engine/run.h"
#include "strokes/letter_shape.h"

namespace bramlee {

/// Where a run's pen touches down and where it leaves, in sheet pixels.
struct RunEnds {
  Point begin;
  Point end;
};

/// The ends of a run at that step; none for a run that plots nothing.
std::optional<RunEnds> EndsOf(const Run& run, double step);

/// The way of the pen in one run; lengths in sheet pixels.
struct RunTrack {
  RunEnds ends;
  double length = 0;  ///< along the way
  double radius = 0;  ///< of an arc; 0 for a straight run
  Point centre;       ///< of an arc
  double angle = 0;   ///< of an arc: where it begins, in degrees as ArcStroke has them
  double turn = 0;    ///< of an arc: how far it goes round, in degrees, anticlockwise
  /// The place on an arc after that part, 0 to 1, of its turn.
  Point OnArc(double part) const;
};

/// The track of a run at that step; none for a run that plots nothing.
std::optional<RunTrack> TrackOf(const Run& run, double step);

}  // namespace bramlee
