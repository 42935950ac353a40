#include "strokes/stroke_dots.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace bramlee {
namespace {

/// A corner is where the way turns by more than an eighth of a circle within so many points on
/// either side: this is the cosine.
constexpr std::size_t kCornerPoints = 3;
constexpr double kCorner = 0.7071;

/// So far from a dot of another stroke, in pitches, a dot is left out: where strokes run over each
/// other, one between two dots of the longest gap lies no further from either.
constexpr double kApart = (1 + kPitchBend) / 2;

/// A stroke by the way that the pen has gone.
class Way {
 public:
  explicit Way(const StrokePath& path) : points_(path.points) {
    ways_.reserve(points_.size());
    for (std::size_t i = 0; i < points_.size(); ++i) {
      ways_.push_back(i == 0 ? 0 : ways_.back() + DistanceBetween(points_[i - 1], points_[i]));
    }
  }

  double Length() const { return ways_.back(); }

  Point At(double way) const {
    const auto next =
        static_cast<std::size_t>(std::ranges::upper_bound(ways_, way) - ways_.begin());
    if (next == ways_.size()) return points_.back();
    const Point& from = points_[next - 1];
    const Point& to = points_[next];
    const double part = (way - ways_[next - 1]) / (ways_[next] - ways_[next - 1]);
    return {from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part};
  }

  /// Where it turns, in the order of the way.
  std::vector<double> Corners() const {
    std::vector<double> corners;
    double sharpest = kCorner;  // of the points that make up one corner
    for (std::size_t i = kCornerPoints; i + kCornerPoints < points_.size(); ++i) {
      const double cosine = CosineAt(i);
      if (cosine >= kCorner) {
        sharpest = kCorner;
      } else if (cosine < sharpest) {
        if (sharpest < kCorner) corners.pop_back();
        corners.push_back(ways_[i]);
        sharpest = cosine;
      }
    }
    return corners;
  }

 private:
  double CosineAt(std::size_t i) const {
    const Point& before = points_[i - kCornerPoints];
    const Point& behind = points_[i + kCornerPoints];
    const Point in{points_[i].x - before.x, points_[i].y - before.y};
    const Point out{behind.x - points_[i].x, behind.y - points_[i].y};
    const double lengths = std::hypot(in.x, in.y) * std::hypot(out.x, out.y);
    return lengths == 0 ? 1 : (in.x * out.x + in.y * out.y) / lengths;
  }

  const std::vector<Point>& points_;
  std::vector<double> ways_;
};

/// The number of gaps that comes nearest to the pitch.
double GapsOf(double length, double pitch) {
  return std::max(1.0, std::round(length / pitch));
}

bool ComesOutEven(double length, double pitch) {
  constexpr double kRounding = 1e-9;
  const double gap = length / GapsOf(length, pitch);
  return std::abs(gap - pitch) <= (kPitchBend + kRounding) * pitch;
}

/// Where dots stand that others are spread between: both ends and corners. Nothing for a stroke
/// that no even gaps fit.
std::vector<double> FixedWays(const Way& way, double pitch) {
  std::vector<double> fixed{0};
  for (const double corner : way.Corners()) {
    if (ComesOutEven(corner - fixed.back(), pitch)) fixed.push_back(corner);
  }
  while (!fixed.empty() && !ComesOutEven(way.Length() - fixed.back(), pitch)) fixed.pop_back();
  if (!fixed.empty()) fixed.push_back(way.Length());
  return fixed;
}

/// Of a stroke that no even gaps fit.
std::vector<double> WaysOnShortStroke(double length, double pitch) {
  const double longest = (1 + kPitchBend) * pitch;
  if (length < longest) return {length / 2};
  const double within = (length - longest) / 2;
  return {within, length - within};
}

std::vector<double> WaysOfDots(const Way& way, double pitch) {
  const std::vector<double> fixed = FixedWays(way, pitch);
  if (fixed.empty()) return WaysOnShortStroke(way.Length(), pitch);
  std::vector<double> ways{0};
  for (std::size_t i = 1; i < fixed.size(); ++i) {
    const double length = fixed[i] - fixed[i - 1];
    const double gaps = GapsOf(length, pitch);
    for (double gap = 1; gap <= gaps; ++gap) ways.push_back(fixed[i - 1] + length * gap / gaps);
  }
  return ways;
}

bool IsNear(const Point& dot, std::span<const Point> dots, double distance) {
  return std::ranges::any_of(
      dots, [&](const Point& other) { return DistanceBetween(dot, other) < distance; });
}

/// The dots of one stroke that are not too near to those of the earlier ones.
std::vector<Point> DotsOf(const StrokePath& path, const DotRule& rule,
                          std::span<const std::vector<Point>> earlier) {
  std::vector<Point> own;
  if (path.points.empty()) return own;
  const double apart = std::max(rule.diameter, kApart * rule.pitch);
  const Way way(path);
  for (const double at : WaysOfDots(way, rule.pitch)) {
    const Point dot = way.At(at);
    const std::span<const Point> before(own);
    // The dot before it is its neighbour, however narrow the bend between them.
    const bool overlaps = !own.empty() && IsNear(dot, before.last(1), rule.diameter);
    const bool crosses = !own.empty() && IsNear(dot, before.first(own.size() - 1), apart);
    const bool runsAlong = std::ranges::any_of(
        earlier, [&](const std::vector<Point>& dots) { return IsNear(dot, dots, apart); });
    if (!overlaps && !crosses && !runsAlong) own.push_back(dot);
  }
  return own;
}

}  // namespace

std::vector<std::vector<Point>> PlaceDots(std::span<const StrokePath> strokes,
                                          const DotRule& rule) {
  std::vector<std::vector<Point>> dots;
  for (const StrokePath& path : strokes) dots.push_back(DotsOf(path, rule, dots));
  return dots;
}

}  // namespace bramlee
