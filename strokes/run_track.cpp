#include "strokes/run_track.h"

#include <cmath>

namespace bramlee {

std::optional<RunEnds> EndsOf(const Run& run, double step) {
  const std::int64_t dots = DotCount(run, step);
  if (dots == 0) return std::nullopt;
  RunEnds ends;
  RunCursor cursor(run, step);
  cursor.Advance(1, [&ends](double x, double y) { ends.begin = {x, y}; });
  ends.end = ends.begin;
  cursor.Skip(dots - 2);
  cursor.Advance(1, [&ends](double x, double y) { ends.end = {x, y}; });
  return ends;
}

Point RunTrack::OnArc(double part) const {
  const double t = (angle + turn * part) * (kPi / 180);
  return {centre.x + radius * std::cos(t), centre.y - radius * std::sin(t)};
}

std::optional<RunTrack> TrackOf(const Run& run, double step) {
  const std::optional<RunEnds> ends = EndsOf(run, step);
  if (!ends) return std::nullopt;
  RunTrack track;
  track.ends = *ends;
  track.length = DistanceBetween(ends->begin, ends->end);
  if (run.primitive != Primitive::ArcStroke) return track;
  const auto [sweepDir, startAngle, endAngle, centreX, centreY, radius] = run.values;
  track.centre = {centreX, centreY};
  track.radius = radius;
  track.angle = startAngle;
  track.turn = sweepDir * step * static_cast<double>(DotCount(run, step) - 1);
  track.length = std::abs(track.turn * (kPi / 180) * radius);
  return track;
}

}  // namespace bramlee
