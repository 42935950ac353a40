#include "strokes/stroke_arrow.h"

#include <algorithm>
#include <cmath>

namespace bramlee {
namespace {

/// A path's way at a point is taken between its neighbours so many points before and behind: the
/// runs of a stroke join at small corners.
constexpr std::size_t kSmoothed = 3;

/// Where points of the line lie further apart, in sheet pixels, the path turns round a corner.
constexpr double kLongestPart = 4;

/// One unit to the right of the way from one point to the other, as Y goes downward.
Point RightOf(const Point& from, const Point& to) {
  const double length = DistanceBetween(from, to);
  if (length == 0) return {};
  return {(from.y - to.y) / length, (to.x - from.x) / length};
}

/// The arrow's line; none where the path is shorter or turns a corner.
std::vector<Point> LineOf(const StrokePath& path, const ArrowRule& rule) {
  const std::vector<Point>& points = path.points;
  std::vector<Point> line;
  double way = 0;
  double length = 0;
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (i > 0) way += DistanceBetween(points[i - 1], points[i]);
    if (way < rule.from) continue;
    const Point& before = points[i - std::min(i, kSmoothed)];
    const Point& behind = points[std::min(i + kSmoothed, points.size() - 1)];
    const Point next = Moved(points[i], RightOf(before, behind), rule.aside);
    const double part = line.empty() ? 0 : DistanceBetween(line.back(), next);
    if (part > kLongestPart) return {};
    length += part;
    line.push_back(next);
    if (length >= rule.length) return line;
  }
  return {};
}

}  // namespace

StrokeArrow ArrowAlong(const StrokePath& path, const ArrowRule& rule) {
  std::vector<Point> line = LineOf(path, rule);
  if (line.empty()) return {};
  const Point tip = line.back();
  while (line.size() > 1 && DistanceBetween(line.back(), tip) < 3 * rule.headHalfWidth) {
    line.pop_back();
  }
  const Point base = line.back();
  const Point right = RightOf(base, tip);
  return {
      .shaft = std::move(line),
      .head = {tip, Moved(base, right, rule.headHalfWidth),
               Moved(base, right, -rule.headHalfWidth)}
  };
}

}  // namespace bramlee
