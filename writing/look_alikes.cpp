#include "writing/look_alikes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <vector>

#include "writing/guide_path.h"

namespace bramlee {
namespace {

/// Ways are compared at so many points.
constexpr std::size_t kPoints = 32;

/// How much nearer than the right way another has to be: by this share of how far apart those two
/// are, and by so many units at least. 0 would refuse more of what small children write rightly.
constexpr double kClearShare = 0.4;
constexpr double kClear = 1.75;

/// A loop is looked for between so many points; it is so long at least, and is not nearly all of
/// the stroke; its ends are so near, where the points are not further apart.
constexpr std::size_t kLoopPoints = 128;
constexpr double kLeastLoop = 20;
constexpr double kMostOfStroke = 0.9;
constexpr double kLoopEnds = 2;
/// A loop of this radius is wide enough for a hand to show which way round it goes. It does when it
/// takes in this share of the area the other way round.
constexpr double kWideLoop = 4;
constexpr double kOtherWay = 0.2;

using Shape = std::array<Point, kPoints>;

Shape ShapeOf(std::span<const Point> way) {
  Shape shape;
  std::ranges::copy(EvenlyAlong(way, kPoints), shape.begin());
  return shape;
}

/// Moved so that its middle is at (0, 0).
Shape Centred(Shape shape) {
  Point sum;
  for (const Point& point : shape) sum.x += point.x, sum.y += point.y;
  for (Point& point : shape) point.x -= sum.x / kPoints, point.y -= sum.y / kPoints;
  return shape;
}

/// Compares where the two ways differ, the more the more they do there.
bool IsClearlyNearer(const Shape& ink, const Shape& other, const Shape& right) {
  double nearer = 0;
  double apart = 0;
  double weights = 0;
  for (std::size_t i = 0; i < kPoints; ++i) {
    const double weight = DistanceBetween(other[i], right[i]);
    nearer += weight * (DistanceBetween(ink[i], right[i]) - DistanceBetween(ink[i], other[i]));
    apart += weight * weight;
    weights += weight;
  }
  return nearer > kClear * weights && nearer > kClearShare * apart;
}

Shape Backwards(Shape shape) {
  std::ranges::reverse(shape);
  return shape;
}

Shape Mirrored(Shape shape) {
  for (Point& point : shape) point.x = -point.x;
  return shape;
}

Shape Straight(Shape shape) {
  return ShapeOf(std::array{shape.front(), shape.back()});
}

/// On the other side of the straight line between its ends.
Shape TurnedOver(Shape shape) {
  const Point from = shape.front();
  const double length = DistanceBetween(from, shape.back());
  if (length <= 0) return Backwards(shape);
  const Point along{(shape.back().x - from.x) / length, (shape.back().y - from.y) / length};
  for (Point& point : shape) {
    const double aside = (point.y - from.y) * along.x - (point.x - from.x) * along.y;
    point = {point.x + 2 * aside * along.y, point.y - 2 * aside * along.x};
  }
  return shape;
}

/// A part of a way that leads back to where it began.
struct Loop {
  std::size_t from = 0;
  std::size_t to = 0;
  double gap = 0;  ///< between its ends
};

/// Of the parts of that length the one whose ends are nearest to each other.
Loop NearestLoop(std::span<const Point> way, std::size_t length) {
  Loop nearest{0, length, DistanceBetween(way[0], way[length])};
  for (std::size_t from = 1; from + length < way.size(); ++from) {
    const double gap = DistanceBetween(way[from], way[from + length]);
    if (gap < nearest.gap) nearest = {from, from + length, gap};
  }
  return nearest;
}

/// The longest loop of a way of evenly spaced points. Where a way comes back to itself slowly,
/// there are many: of these it is the one that closes best.
std::optional<Loop> LoopOf(std::span<const Point> way, double spacing) {
  const auto least = static_cast<std::size_t>(std::ceil(kLeastLoop / spacing));
  const auto most = static_cast<std::size_t>(kMostOfStroke * static_cast<double>(way.size()));
  std::optional<Loop> longest;
  for (std::size_t length = most; length >= least; --length) {
    const Loop loop = NearestLoop(way, length);
    if (longest && loop.gap > longest->gap) break;
    if (loop.gap <= std::max(kLoopEnds, spacing)) longest = loop;
  }
  return longest;
}

/// Twice the area within a way that is closed by a straight line; below 0 when it goes the other
/// way round.
double AreaOf(std::span<const Point> way) {
  double area = 0;
  for (std::size_t i = 0; i < way.size(); ++i) {
    const Point& next = way[(i + 1) % way.size()];
    area += way[i].x * next.y - next.x * way[i].y;
  }
  return area;
}

/// Whether ink goes the other way round where the right way has that loop. How far round it begins
/// does not matter.
bool GoesOtherWayRound(std::span<const Point> ink, std::span<const Point> right) {
  const double area = AreaOf(right);
  return std::abs(area) > kWideLoop * LengthOf(right) &&
         AreaOf(ink) * area < -kOtherWay * area * area;
}

bool LooksLikeOtherLoop(std::span<const Point> ink, std::span<const Point> right) {
  const double length = LengthOf(right);
  if (length < kLeastLoop) return false;
  std::vector<Point> way = EvenlyAlong(right, kLoopPoints);
  const std::optional<Loop> loop = LoopOf(way, length / (kLoopPoints - 1));
  if (!loop) return false;
  const std::vector<Point> drawn = EvenlyAlong(ink, kLoopPoints);
  const std::size_t count = loop->to - loop->from;
  if (GoesOtherWayRound(std::span(drawn).subspan(loop->from, count),
                        std::span(way).subspan(loop->from, count))) {
    return true;
  }
  way.erase(way.begin() + static_cast<std::ptrdiff_t>(loop->from),
            way.begin() + static_cast<std::ptrdiff_t>(loop->to));
  return IsClearlyNearer(Centred(ShapeOf(ink)), Centred(ShapeOf(way)), Centred(ShapeOf(right)));
}

}  // namespace

bool LooksLikeNext(std::span<const Point> ink, std::span<const Point> right,
                   std::span<const Point> next) {
  return !next.empty() && IsClearlyNearer(ShapeOf(ink), ShapeOf(next), ShapeOf(right));
}

bool LooksMisshapen(std::span<const Point> ink, std::span<const Point> right) {
  const Shape drawn = Centred(ShapeOf(ink));
  const Shape meant = Centred(ShapeOf(right));
  for (const auto change : {&Backwards, &Mirrored, &TurnedOver, &Straight}) {
    if (IsClearlyNearer(drawn, Centred(change(meant)), meant)) return true;
  }
  return LooksLikeOtherLoop(ink, right);
}

}  // namespace bramlee
