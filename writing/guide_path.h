// A stroke that is there to be traced, as points at even distances.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "strokes/letter_shape.h"

namespace bramlee {

/// A stroke's way in its letter's unit. The unit makes one set of thresholds do for letters of any
/// size: what a child's hand misses by grows with what it writes.
class GuidePath {
 public:
  /// A way without points.
  GuidePath() = default;
  /// The way through these points, in sheet pixels; `unit` in sheet pixels, greater than 0. Points
  /// that are not finite are left out.
  GuidePath(std::span<const Point> points, double unit);

  bool IsEmpty() const { return points_.empty(); }
  /// The points, in units, as far apart as Spacing(); one alone when all lie at one place.
  std::span<const Point> Points() const { return points_; }
  /// At most 1 unit, and less on a stroke of a few units, so that half of it does not pass for all.
  double Spacing() const { return spacing_; }
  /// From the first point to the last along the way, in units.
  double Length() const { return Between(0, Last()); }
  /// The index of the last point; 0 when there is none.
  std::size_t Last() const { return points_.empty() ? 0 : points_.size() - 1; }

  /// The index of the point at least so many units further than another, or of the last one.
  std::size_t IndexAfter(std::size_t from, double units) const;
  /// From one point along the way to a later one, in units.
  double Between(std::size_t from, std::size_t to) const {
    return spacing_ * static_cast<double>(to - from);
  }

  /// The index of the point nearest to `place`, of those from `first` to `last`; of points that are
  /// equally near the first. Both are indices of points. A point counts as `slower` units further
  /// off, at a right angle, for each unit that it lies beyond `first`: where the way comes back
  /// over itself, the part that comes first is the nearest.
  std::size_t NearestTo(const Point& place, std::size_t first, std::size_t last,
                        double slower = 0) const;

 private:
  std::vector<Point> points_;
  double spacing_ = 0;
};

/// `count` points at even distances along a way, its ends among them; at least 2 of them. A way of
/// one point gives that point over and over, one without points gives none.
std::vector<Point> EvenlyAlong(std::span<const Point> way, std::size_t count);

/// From each point to the next, added up.
double LengthOf(std::span<const Point> way);

}  // namespace bramlee
