#include "strokes/letter_shape.h"

#include <algorithm>
#include <cmath>

namespace bramlee {
namespace {

/// How far apart points stand, in sheet pixels; as near to it as makes equal parts of a run.
constexpr double kSpacing = 1;

/// A stroke whose ends lie as near as runs that join is closed if it goes this many times as far
/// in between: a short line's ends are near too.
constexpr double kRoundabout = 4;

/// How far apart the dots of a run lie at kUsualStep.
double DotSpacing(const Run& run) {
  if (run.primitive != Primitive::ArcStroke) return kUsualStep;
  return kUsualStep * (kPi / 180) * std::abs(run.values[5]);
}

std::int64_t PartsOf(double length) {
  return std::max<std::int64_t>(1, std::llround(length / kSpacing));
}

std::vector<Point> PointsOf(const Run& run) {
  std::vector<Point> points;
  const std::int64_t dots = DotCount(run, kUsualStep);
  if (dots == 0) return points;
  const std::int64_t last = dots - 1;
  const std::int64_t parts = PartsOf(static_cast<double>(last) * DotSpacing(run));
  RunCursor cursor(run, kUsualStep);
  std::int64_t next = 0;
  for (std::int64_t i = 0; i <= parts; ++i) {
    const std::int64_t dot = last * i / parts;
    if (dot < next) continue;  // a run of fewer dots than parts
    cursor.Skip(dot - next);
    cursor.Advance(1, [&points](double x, double y) { points.push_back({x, y}); });
    next = dot + 1;
  }
  return points;
}

/// Points on a straight line, both ends left out.
void AddBetween(Point from, const Point& to, std::vector<Point>& points) {
  const std::int64_t parts = PartsOf(DistanceBetween(from, to));
  for (std::int64_t i = 1; i < parts; ++i) {
    const double way = static_cast<double>(i) / static_cast<double>(parts);
    points.push_back({from.x + (to.x - from.x) * way, from.y + (to.y - from.y) * way});
  }
}

/// Goes on to the points of the next run.
void Join(const std::vector<Point>& next, std::vector<Point>& points) {
  if (!points.empty() && !next.empty()) AddBetween(points.back(), next.front(), points);
  for (const Point& point : next) {
    const bool distinct = points.empty() || DistanceBetween(points.back(), point) >= kSpacing / 2;
    if (distinct) {
      points.push_back(point);
    } else if (points.size() > 1) {
      points.back() = point;  // so that a stroke ends where the pen leaves
    }
  }
}

StrokePath PathOf(std::span<const Run> runs) {
  StrokePath path;
  for (const Run& run : runs) Join(PointsOf(run), path.points);
  for (std::size_t i = 1; i < path.points.size(); ++i) {
    path.length += DistanceBetween(path.points[i - 1], path.points[i]);
  }
  if (path.points.empty()) return path;
  const double apart = DistanceBetween(path.points.front(), path.points.back());
  path.closed = path.points.size() > 1 && apart <= kJoinReach && path.length > kRoundabout * apart;
  return path;
}

/// Calls `take(double x, double y)` for dots of a run, the outermost ones among them: its ends and,
/// of an arc, those about where it turns back, which is at each quarter turn. In between it goes
/// one way. Every dot of a letter takes some forty times as long.
template <class Take>
void TakeOutermostDots(const Run& run, double step, Take take) {
  constexpr double kQuarter = 90;
  const std::int64_t dots = DotCount(run, step);
  RunCursor cursor(run, step);
  std::int64_t next = 0;
  const auto takeFrom = [&](std::int64_t first, std::int64_t behind) {
    next += cursor.Skip(first - next);
    next += cursor.Advance(behind - next, take);
  };
  takeFrom(0, 1);
  if (run.primitive == Primitive::ArcStroke) {
    const auto [sweepDir, startAngle, endAngle, centreX, centreY, radius] = run.values;
    const double turn = sweepDir > 0 ? kQuarter : -kQuarter;
    const auto about = static_cast<std::int64_t>(1 / step) + 1;  // a degree, and a dot at least
    for (double angle = std::ceil(startAngle / turn) * turn; (endAngle - angle) / turn >= 0;
         angle += turn) {
      const std::int64_t dot = std::llround((angle - startAngle) / (sweepDir * step));
      takeFrom(dot - about, dot + about + 1);
    }
  }
  takeFrom(dots - 1, dots);
}

}  // namespace

double DistanceBetween(const Point& a, const Point& b) {
  return std::hypot(b.x - a.x, b.y - a.y);
}

Point Moved(const Point& point, const Point& by, double times) {
  return {point.x + by.x * times, point.y + by.y * times};
}

std::optional<Box> BoundsOf(std::span<const Run> runs, double step) {
  constexpr double kFar = 1e9;
  double left = kFar, top = kFar, right = -kFar, bottom = -kFar;
  for (const Run& run : runs) {
    TakeOutermostDots(run, step, [&](double x, double y) {
      const Point dot = AsPlotted(x, y);
      left = std::min(left, dot.x), right = std::max(right, dot.x);
      top = std::min(top, dot.y), bottom = std::max(bottom, dot.y);
    });
  }
  if (left > right) return std::nullopt;
  return Box{.x = left, .y = top, .width = right - left, .height = bottom - top};
}

LetterShape ShapeOf(std::span<const Run> runs, std::span<const PenStroke> strokes) {
  LetterShape shape;
  for (const PenStroke& stroke : strokes) {
    shape.strokes.push_back(PathOf(runs.subspan(stroke.firstRun, stroke.runs)));
    shape.length += shape.strokes.back().length;
  }
  shape.bounds = BoundsOf(runs, kUsualStep).value_or(Box());
  return shape;
}

}  // namespace bramlee
