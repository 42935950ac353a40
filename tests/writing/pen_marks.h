// Strokes to trace and ways of a pen, for tests of the tracer. Their unit is a sheet pixel.
#pragma once

#include <cmath>
#include <numbers>
#include <optional>
#include <utility>
#include <vector>

#include "writing/tracer.h"

namespace bramlee {

using Way = std::vector<Point>;

/// From place to place.
inline GuideStroke StrokeThrough(Way places) {
  return {.points = std::move(places), .unit = 1};
}

/// A circle's part about a centre, from angle to angle in degrees, clockwise on the sheet where the
/// second is greater.
inline Way Arc(const Point& centre, double radius, double from, double to) {
  constexpr int kParts = 90;
  Way way;
  for (int i = 0; i <= kParts; ++i) {
    const double angle = (from + (to - from) * i / kParts) * std::numbers::pi / 180;
    way.push_back({centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)});
  }
  return way;
}

inline Way Joined(Way first, const Way& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

inline Way Backwards(const Way& way) {
  return {way.rbegin(), way.rend()};
}

inline Way Moved(Way way, double right, double down) {
  for (Point& point : way) point.x += right, point.y += down;
  return way;
}

/// One touch of the pen; nothing when the tracer says nothing.
inline std::optional<TraceJudgement> Draw(Tracer& tracer, const Way& way) {
  tracer.Down(way.front());
  for (const Point& place : way) tracer.Move(place);
  return tracer.Up();
}

/// The verdict of one touch of the pen.
inline TraceVerdict VerdictOf(Tracer& tracer, const Way& way) {
  return Draw(tracer, way).value().verdict;
}

}  // namespace bramlee
