#include "strokes/pen_strokes.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace bramlee {
namespace {

/// Where a run's pen touches down and where it leaves.
struct Ends {
  double beginX = 0;
  double beginY = 0;
  double endX = 0;
  double endY = 0;
};

std::optional<Ends> EndsOf(const Run& run) {
  const std::int64_t dots = DotCount(run, kUsualStep);
  if (dots == 0) return std::nullopt;
  Ends ends;
  RunCursor cursor(run, kUsualStep);
  cursor.Advance(1, [&ends](double x, double y) { ends.beginX = x, ends.beginY = y; });
  ends.endX = ends.beginX, ends.endY = ends.beginY;
  cursor.Skip(dots - 2);
  cursor.Advance(1, [&ends](double x, double y) { ends.endX = x, ends.endY = y; });
  return ends;
}

bool GoesOn(const Ends& before, const Ends& next) {
  return std::hypot(next.beginX - before.endX, next.beginY - before.endY) <= kJoinReach;
}

}  // namespace

std::vector<PenStroke> JoinedRuns(const LetterId& /*id*/, std::span<const Run> runs) {
  std::vector<PenStroke> strokes;
  std::optional<Ends> before;
  for (std::size_t i = 0; i < runs.size(); ++i) {
    const std::optional<Ends> ends = EndsOf(runs[i]);
    const bool goesOn = !ends || (before && GoesOn(*before, *ends));
    if (strokes.empty() || !goesOn) strokes.push_back({.firstRun = i, .runs = 0});
    ++strokes.back().runs;
    if (ends) before = ends;
  }
  return strokes;
}

}  // namespace bramlee
