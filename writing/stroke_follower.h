// Follows a pen along a stroke that is there to be traced.
#pragma once

#include <cstddef>

#include "writing/guide_path.h"

namespace bramlee {

/// Knows how far along a stroke one touch of the pen has come. It looks for the pen only a little
/// way ahead of where that is, not on the whole stroke: so a pen that comes to a crossing goes on
/// in the stroke's own direction, and one that leaves out a loop does not arrive behind it. All
/// lengths are in the stroke's unit.
class StrokeFollower {
 public:
  /// How far the pen goes beside the corridor before it counts as astray: less is a wobble.
  static constexpr double kMostBeside = 12;

  /// A pen that comes down beside the point of index `from`, off by `miss`: who misses the start
  /// writes the stroke's first part as far beside it, and comes to it by and by. Without a miss it
  /// is followed as it is.
  explicit StrokeFollower(std::size_t from, const Point& miss = {})
      : from_(from), at_(from), miss_(miss) {}

  /// The pen has gone `step` further and is at `place` now. `radius` is half the corridor's width,
  /// greater than 0. The path is the same each time.
  void GoOn(const GuidePath& path, const Point& place, double step, double radius);

  /// The index of the point where the pen came down.
  std::size_t From() const { return from_; }
  /// The index of the point as far as which it has followed.
  std::size_t At() const { return at_; }
  /// Whether the pen has left the corridor for more than a wobble.
  bool IsAstray() const { return beside_ > kMostBeside; }
  /// How far the pen has gone since it last came further along the stroke.
  double Idle() const { return idle_; }

 private:
  std::size_t from_;
  std::size_t at_;
  Point miss_;
  double beside_ = 0;
  double idle_ = 0;
};

}  // namespace bramlee
