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
constexpr double kClear = 2;

/// A loop is looked for between so many points; it is so long at least, and is not nearly all of
/// the stroke; its ends are so near, where the points are not further apart.
constexpr std::size_t kLoopPoints = 128;
constexpr double kLeastLoop = 20;
constexpr double kMostOfStroke = 0.9;
constexpr double kLoopEnds = 2;

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

double Between(const Shape& one, const Shape& other) {
  double sum = 0;
  for (std::size_t i = 0; i < kPoints; ++i) sum += DistanceBetween(one[i], other[i]);
  return sum / kPoints;
}

bool IsClearlyNearer(const Shape& ink, const Shape& other, const Shape& right) {
  const double nearer = Between(ink, right) - Between(ink, other);
  return nearer > kClear && nearer > kClearShare * Between(other, right);
}

Shape Backwards(Shape shape) {
  std::ranges::reverse(shape);
  return shape;
}

Shape Mirrored(Shape shape) {
  for (Point& point : shape) point.x = -point.x;
  return shape;
}

Shape Straight(const Shape& shape) {
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

bool LooksLikeOtherLoop(const Shape& ink, std::span<const Point> right) {
  const double length = LengthOf(right);
  if (length < kLeastLoop) return false;
  std::vector<Point> way = EvenlyAlong(right, kLoopPoints);
  const std::optional<Loop> loop = LoopOf(way, length / (kLoopPoints - 1));
  if (!loop) return false;
  const Shape meant = Centred(ShapeOf(right));
  const auto from = way.begin() + static_cast<std::ptrdiff_t>(loop->from);
  const auto to = way.begin() + static_cast<std::ptrdiff_t>(loop->to);
  std::reverse(from, to);
  if (IsClearlyNearer(ink, Centred(ShapeOf(way)), meant)) return true;
  way.erase(from, to);
  return IsClearlyNearer(ink, Centred(ShapeOf(way)), meant);
}

}  // namespace

bool LooksLikeAnother(std::span<const Point> ink, std::span<const Point> right, OtherStroke next) {
  const Shape drawn = ShapeOf(ink);
  const Shape meant = ShapeOf(right);
  if (!next.empty() && IsClearlyNearer(drawn, ShapeOf(next), meant)) return true;
  const Shape drawnMiddle = Centred(drawn);
  const Shape meantMiddle = Centred(meant);
  for (const auto change : {&Backwards, &Mirrored, &TurnedOver}) {
    if (IsClearlyNearer(drawnMiddle, Centred(change(meantMiddle)), meantMiddle)) return true;
  }
  return IsClearlyNearer(drawnMiddle, Centred(Straight(meantMiddle)), meantMiddle) ||
         LooksLikeOtherLoop(drawnMiddle, right);
}

}  // namespace bramlee
