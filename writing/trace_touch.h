// One touch of a pen that traces a stroke.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "writing/guide_path.h"
#include "writing/stroke_follower.h"

namespace bramlee {

/// What a touch of the pen came to when it was lifted.
enum class TraceVerdict : std::uint8_t {
  Done,       ///< the stroke is written
  Resume,     ///< a part of it is; the pen may come down again where it was lifted
  Elsewhere,  ///< it began away from where the stroke begins or goes on
  Reversed,   ///< the stroke from its end to its beginning
  Astray,     ///< it left the stroke, came hardly any further along it, or wrote another
  Scribble,   ///< far more ink than the stroke has
};

/// How near the pen keeps, in the stroke's unit.
struct TraceRule {
  double radius = 0;  ///< half the corridor's width, greater than 0
  double reach = 0;  ///< how far from the stroke's beginning, or where it goes on, the pen may come
                     ///< down
};

/// From where the pen comes down to where it is lifted. It keeps the ink and follows the stroke
/// from each place where the pen may have begun: where the touch before ended, or, as children
/// begin anew and write over what stands, the stroke's start or a place that is written. All
/// lengths are in the stroke's unit; the path and what is written of it are the same in each call.
class TraceTouch {
 public:
  /// The pen comes down at `place`; `written` is the index of the path's point as far as which the
  /// stroke is written. The path has points.
  TraceTouch(const GuidePath& path, std::size_t written, const Point& place, const TraceRule& rule);

  /// The pen goes to `place`, which is finite.
  void Move(const GuidePath& path, const Point& place, const TraceRule& rule);

  /// What the touch has come to, now that the pen is lifted. `next` is the stroke that follows.
  TraceVerdict Lift(const GuidePath& path, std::span<const Point> next, std::size_t written,
                    const TraceRule& rule);
  /// As far as which the stroke is written after that verdict.
  std::size_t WrittenAfter(const GuidePath& path, std::size_t written, const TraceRule& rule,
                           TraceVerdict verdict) const;

  /// Whether the pen came down away from the stroke's start and from what is written.
  bool IsElsewhere() const { return followers_.empty(); }
  /// The follower that came further latest; not for a touch elsewhere.
  const StrokeFollower& Leader() const;

 private:
  void FollowFrom(const GuidePath& path, std::size_t index);
  void Follow(const GuidePath& path, const Point& place, double step, double radius);
  void TakeInk(const GuidePath& path, double radius);
  std::size_t Begin() const;
  bool IsScribble(const GuidePath& path) const;
  bool IsReversed(const GuidePath& path, double radius) const;
  bool IsDone(const GuidePath& path, std::span<const Point> next, const StrokeFollower& follower,
              double radius) const;
  bool HasComeFurther(const GuidePath& path, std::size_t written, const StrokeFollower& follower,
                      double radius) const;

  /// From where the touch before ended, then from further back.
  std::vector<StrokeFollower> followers_;
  std::vector<Point> ink_;
  double inkLength_ = 0;
  Point latest_;  ///< where the pen is; the ink may end a little before that
};

}  // namespace bramlee
