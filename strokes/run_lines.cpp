#include "strokes/run_lines.h"

namespace bramlee {

std::vector<Lines> LinesOf(const Run& run, const LineRule& rule) {
  std::vector<Lines> pieces;
  const bool thinned = rule.spacing > 0;
  const bool straight = run.primitive != Primitive::ArcStroke;
  Point latest;
  RunCursor(run, rule.step).Advance(RunCursor::kAll, [&](double x, double y) {
    const Point dot = AsPlotted(x, y);
    if (pieces.empty() || DistanceBetween(latest, dot) > rule.joined) {
      if (!pieces.empty()) pieces.back().push_back(latest);
      pieces.push_back({dot});
    } else if (!thinned ||
               (!straight && DistanceBetween(pieces.back().back(), dot) >= rule.spacing)) {
      pieces.back().push_back(dot);
    }
    latest = dot;
  });
  if (!pieces.empty()) pieces.back().push_back(latest);
  return pieces;
}

}  // namespace bramlee
