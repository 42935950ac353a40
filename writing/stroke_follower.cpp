#include "writing/stroke_follower.h"

#include <algorithm>

namespace bramlee {
namespace {

/// How far beyond the radius it looks ahead.
constexpr double kLookAhead = 6;
/// How much it keeps to what comes next on a stroke that goes over itself, as
/// GuidePath::NearestTo().
constexpr double kSlower = 0.05;
/// How many times faster a pen that is back in the corridor makes up for what it went beside it.
constexpr double kMakesUp = 2;
/// How much wider the corridor is where the pen comes down; it narrows over the first radius of the
/// way.
constexpr double kWiderAtStart = 1.3;
/// Over what length a pen that missed the start comes to the stroke.
constexpr double kComesBack = 40;

}  // namespace

void StrokeFollower::GoOn(const GuidePath& path, const Point& place, double step, double radius) {
  const double gain = path.Between(from_, at_);
  const double off = std::max(0.0, 1 - gain / kComesBack);
  const Point meant{place.x - miss_.x * off, place.y - miss_.y * off};
  const std::size_t nearest =
      path.NearestTo(meant, at_, path.IndexAfter(at_, radius + kLookAhead), kSlower);
  const double widened = kWiderAtStart - (kWiderAtStart - 1) * std::min(1.0, gain / radius);
  if (DistanceBetween(meant, path.Points()[nearest]) > radius * widened) {
    beside_ += step;
    idle_ += step;
    return;
  }
  beside_ = std::max(0.0, beside_ - kMakesUp * step);
  idle_ = nearest > at_ ? 0 : idle_ + step;
  at_ = nearest;
}

}  // namespace bramlee
