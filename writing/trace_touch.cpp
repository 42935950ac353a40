#include "writing/trace_touch.h"

#include <algorithm>
#include <cmath>

#include "writing/look_alikes.h"

namespace bramlee {
namespace {

/// A pen that moves less keeps its place: at 240 points a second a hand that rests would make ink.
constexpr double kGrain = 0.5;
/// A pen that moves further in one go passed the places between.
constexpr double kMostStep = 3;

/// A stroke of this length is a dot: any small mark at its place is one.
constexpr double kDot = 7;
/// A stroke of this length is no longer than a hand errs, so that no one can tell how far along it
/// the pen is: a mark of its length at its place is one.
constexpr double kShort = 16;

/// How much ink there is at least for a part of the stroke, as a share: a tap here and there leaves
/// out too much.
constexpr double kLeastInk = 0.55;
/// How much ink there is at most: so many times as long as what is left of the stroke, and so much
/// more for those who hesitate.
constexpr double kMostInk = 2.2;
constexpr double kSpareInk = 20;

/// A touch that the next one may go on from comes further by this share of the stroke, or by this
/// length. A tap does not.
constexpr double kLeastShare = 0.2;
constexpr double kLeastGain = 8;

/// Ends are overshot and cut short: the stroke is done so far before its end at most, in radii and
/// as a share of the stroke, and at least this other share before.
constexpr double kEndRadii = 1;
constexpr double kEndMost = 0.3;
constexpr double kEndLeast = 0.08;
/// How far from the end the pen is lifted at most, in radii: beyond that it has written on.
constexpr double kLiftRadii = 2;

/// Ink of this share of the stroke is all of it, where its direction is asked for.
constexpr double kMostOfIt = 0.7;
/// The direction shows in so many points, and by so many units on average.
constexpr std::size_t kCompared = 32;
constexpr double kClearly = 2;

double MeanDistance(std::span<const Point> one, std::span<const Point> other) {
  double sum = 0;
  for (std::size_t i = 0; i < one.size(); ++i) sum += DistanceBetween(one[i], other[i]);
  return sum / static_cast<double>(one.size());
}

double MostInkFor(double way) {
  return kMostInk * way + kSpareInk;
}

bool IsAtEnd(const GuidePath& path, std::size_t index, double radius) {
  const double length = path.Length();
  const double slack =
      std::max(std::min(kEndRadii * radius, kEndMost * length), kEndLeast * length);
  return path.Between(index, path.Last()) <= slack;
}

}  // namespace

TraceTouch::TraceTouch(const GuidePath& path, std::size_t written, const Point& place,
                       const TraceRule& rule)
    : ink_{place}, latest_(place) {
  const auto isNear = [&](std::size_t index) {
    return DistanceBetween(place, path.Points()[index]) <= rule.reach;
  };
  if (isNear(written)) FollowFrom(path, written);
  const std::size_t again = isNear(0) ? 0 : path.NearestTo(place, 0, written);
  if (again != written && isNear(again)) FollowFrom(path, again);
  Follow(path, place, 0, rule.radius);
}

void TraceTouch::FollowFrom(const GuidePath& path, std::size_t index) {
  const Point& meant = path.Points()[index];
  followers_.emplace_back(index);
  followers_.emplace_back(index, Point{latest_.x - meant.x, latest_.y - meant.y});
}

void TraceTouch::Follow(const GuidePath& path, const Point& place, double step, double radius) {
  for (StrokeFollower& follower : followers_) follower.GoOn(path, place, step, radius);
}

void TraceTouch::Move(const GuidePath& path, const Point& place, const TraceRule& rule) {
  latest_ = place;
  if (DistanceBetween(ink_.back(), place) >= kGrain) TakeInk(path, rule.radius);
}

/// Ink goes on to where the pen is.
void TraceTouch::TakeInk(const GuidePath& path, double radius) {
  const Point from = ink_.back();
  const double way = DistanceBetween(from, latest_);
  inkLength_ += way;
  if (IsScribble(path)) return;  // it is judged; and the way may be too far to be followed
  ink_.push_back(latest_);
  const double parts = std::max(1.0, std::ceil(way / kMostStep));
  for (double part = 1; part <= parts; ++part) {
    const double share = part / parts;
    const Point place{from.x + (latest_.x - from.x) * share, from.y + (latest_.y - from.y) * share};
    Follow(path, place, way / parts, radius);
  }
}

const StrokeFollower& TraceTouch::Leader() const {
  return *std::ranges::min_element(followers_, {}, &StrokeFollower::Idle);
}

/// The index of the first point that the pen may have come down at.
std::size_t TraceTouch::Begin() const {
  return followers_.empty() ? 0 : followers_.back().From();
}

bool TraceTouch::IsScribble(const GuidePath& path) const {
  return inkLength_ > MostInkFor(path.Between(Begin(), path.Last()));
}

bool TraceTouch::IsReversed(const GuidePath& path, double radius) const {
  if (path.Length() <= kDot || inkLength_ < kMostOfIt * path.Between(Begin(), path.Last())) {
    return false;
  }
  const std::vector<Point> drawn = EvenlyAlong(ink_, kCompared);
  std::vector<Point> meant = EvenlyAlong(path.Points().subspan(Begin()), kCompared);
  const double forwards = MeanDistance(drawn, meant);
  std::ranges::reverse(meant);
  const double backwards = MeanDistance(drawn, meant);
  return backwards + kClearly < forwards && backwards <= radius;
}

bool TraceTouch::IsDone(const GuidePath& path, std::span<const Point> next,
                        const StrokeFollower& follower, double radius) const {
  if (path.Length() <= kDot) return !follower.IsAstray();
  const auto way = path.Points().subspan(follower.From());
  if (inkLength_ < kLeastInk * path.Between(follower.From(), path.Last()) ||
      DistanceBetween(latest_, way.back()) > kLiftRadii * radius ||
      LooksLikeNext(ink_, way, next)) {
    return false;
  }
  if (path.Length() <= kShort) return !follower.IsAstray() && !IsReversed(path, radius);
  return IsAtEnd(path, follower.At(), radius) && !LooksMisshapen(ink_, way);
}

bool TraceTouch::HasComeFurther(const GuidePath& path, std::size_t written,
                                const StrokeFollower& follower, double radius) const {
  if (follower.At() <= written || IsAtEnd(path, follower.At(), radius)) return false;
  const double way = path.Between(follower.From(), follower.At());
  return path.Between(written, follower.At()) >=
             std::min(kLeastShare * path.Length(), kLeastGain) &&
         inkLength_ >= kLeastInk * way;
}

TraceVerdict TraceTouch::Lift(const GuidePath& path, std::span<const Point> next,
                              std::size_t written, const TraceRule& rule) {
  if (latest_ != ink_.back()) TakeInk(path, rule.radius);
  if (!IsElsewhere() && IsScribble(path)) return TraceVerdict::Scribble;
  const auto isDone = [&](const StrokeFollower& follower) {
    return IsDone(path, next, follower, rule.radius);
  };
  const auto mayGoOn = [&](const StrokeFollower& follower) {
    return HasComeFurther(path, written, follower, rule.radius) && !follower.IsAstray() &&
           inkLength_ <= MostInkFor(path.Between(follower.From(), follower.At()));
  };
  if (std::ranges::any_of(followers_, isDone)) return TraceVerdict::Done;
  if (IsReversed(path, rule.radius)) return TraceVerdict::Reversed;
  if (IsElsewhere()) return TraceVerdict::Elsewhere;
  return std::ranges::any_of(followers_, mayGoOn) ? TraceVerdict::Resume : TraceVerdict::Astray;
}

std::size_t TraceTouch::WrittenAfter(const GuidePath& path, std::size_t written,
                                     const TraceRule& rule, TraceVerdict verdict) const {
  if (verdict == TraceVerdict::Done) return path.Last();
  if (verdict != TraceVerdict::Resume && verdict != TraceVerdict::Astray) return written;
  std::size_t reached = written;
  for (const StrokeFollower& follower : followers_) {
    if (!HasComeFurther(path, written, follower, rule.radius)) continue;
    reached = std::max(reached, follower.At());
  }
  return reached;
}

}  // namespace bramlee
