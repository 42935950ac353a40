#include "strokes/stroke_numbers.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <utility>

#include "strokes/ink_grid.h"

namespace bramlee {
namespace {

/// Directions from a beginning in which a place for its disc is looked for.
constexpr int kDirections = 36;
/// How far one such place lies behind the other, in radii of a disc.
constexpr double kStepOut = 0.25;

/// How far the places reach that are looked at, and how much room a disc is to have around it.
struct Search {
  double gap;    ///< between disc and ink, and between discs, in sheet pixels
  double reach;  ///< beyond the nearest place, in radii of a disc
};
/// What looks best first, then whatever touches nothing.
constexpr Search kSearches[] = {
    {2,   1.5},
    {0.5, 4  },
};

// What is disliked of a place, each compared with one radius further away from the beginning.
constexpr double kUnderHand = 0.8;  ///< below the hand
constexpr double kAhead = 1.2;      ///< in the way of the stroke
constexpr double kDoubtful = 0.7;   ///< as near to another stroke as to its own

/// An arrow is so long, in radii of a disc; the first that has room.
constexpr double kArrowLengths[] = {3.2, 2.4, 1.7};
/// How far along its stroke an arrow may begin, to leave the disc free, in radii.
constexpr double kLatestTail = 1.8;
constexpr double kTailStep = 0.4;
/// The head is so wide, as a part of the ink and of the disc: it has to stand out on either.
constexpr double kHeadOfPen = 0.85;
constexpr double kHeadOfDisc = 0.45;
/// Free room beside an arrow, in sheet pixels.
constexpr double kArrowGap = 1.5;
/// How far beside its line an arrow may come where its stroke bends, in sheet pixels.
constexpr double kArrowSlack = 0.75;
/// The cosine of the largest angle between an arrow's shaft and its head; and of the one that is
/// preferred on the ink, where a bent arrow is seen less well.
constexpr double kHeadInLine = 0.75;
constexpr double kHeadInLineOnInk = 0.93;

/// A disc is nearer to its own beginning by so much, in sheet pixels.
constexpr double kNearer = 0.5;
/// The sine up to which a disc stands behind its stroke rather than beside it.
constexpr double kStraightBehind = 0.2;

double Dot(const Point& a, const Point& b) {
  return a.x * b.x + a.y * b.y;
}

Point Towards(const Point& from, const Point& to) {
  const double length = DistanceBetween(from, to);
  if (length == 0) return {};
  return {(to.x - from.x) / length, (to.y - from.y) / length};
}

/// Where a stroke is after that way, or at its end.
Point After(const StrokePath& path, double way) {
  std::size_t i = 1;
  for (; i < path.points.size() && way > 0; ++i) {
    way -= DistanceBetween(path.points[i - 1], path.points[i]);
  }
  return path.points[i - 1];
}

/// Whether one sees at a glance where the arrow points.
bool HeadIsInLine(const StrokeArrow& arrow, double cosine) {
  if (!arrow.IsDrawn()) return false;
  const std::vector<Point>& shaft = arrow.shaft;
  const Point& end = shaft.back();
  const Point& before = shaft[shaft.size() - std::min<std::size_t>(shaft.size(), 4)];
  return Dot(Towards(before, end), Towards(end, arrow.head[0])) >= cosine;
}

/// How a stroke sets out.
struct Begin {
  Point place;
  Point lead;                     ///< where it is a little later
  Point way;                      ///< one unit in its direction; zero for a dot
  std::vector<std::size_t> near;  ///< strokes that begin near by
};

struct Candidate {
  Point centre;
  double cost;
};

std::vector<Point> PointsOf(std::span<const StrokePath> strokes,
                            std::span<const StrokePath> obstacles) {
  std::vector<Point> points;
  for (const std::span<const StrokePath> paths : {strokes, obstacles}) {
    for (const StrokePath& path : paths) {
      points.insert(points.end(), path.points.begin(), path.points.end());
    }
  }
  return points;
}

class Placer {
 public:
  Placer(std::span<const StrokePath> strokes, const NumberRule& rule,
         std::span<const StrokePath> obstacles)
      : strokes_(strokes),
        rule_(rule),
        hand_{rule.hand == Hand::Right ? 0.8 : -0.8, 0.6},
        headHalfWidth_(std::min(kHeadOfPen * rule.penHalfWidth, kHeadOfDisc * rule.discRadius)),
        ink_(PointsOf(strokes, obstacles), TouchingInk() + kSearches[0].gap + headHalfWidth_),
        begins_(strokes.size()),
        numbers_(strokes.size()) {}

  std::vector<StrokeNumber> Place() &&;

 private:
  /// From a disc's centre to a path that it touches.
  double TouchingInk() const { return rule_.discRadius + rule_.penHalfWidth; }
  void FindBegins();
  double CostOf(const Point& centre, std::size_t stroke) const;
  std::vector<Candidate> CandidatesOf(std::size_t stroke, const Search& search) const;
  double FaultOf(const Point& centre, std::size_t stroke, double gap) const;
  bool PlaceDisc(std::size_t stroke, const Search& search);
  bool PlaceDiscs(const Search& search);
  bool HasRoom(const StrokeArrow& arrow) const;
  StrokeArrow ArrowBeside(std::size_t stroke, double side) const;
  StrokeArrow ArrowOn(std::size_t stroke) const;
  double SideOf(std::size_t stroke) const;

  std::span<const StrokePath> strokes_;
  NumberRule rule_;
  Point hand_;            ///< one unit from the pen towards the hand
  double headHalfWidth_;  ///< of an arrow
  InkGrid ink_;
  std::vector<Begin> begins_;
  std::vector<std::size_t> drawn_;  ///< the strokes that plot something, as their turn comes
  std::vector<StrokeNumber> numbers_;
};

void Placer::FindBegins() {
  const double radius = rule_.discRadius;
  for (std::size_t i = 0; i < strokes_.size(); ++i) {
    if (strokes_[i].points.empty()) continue;
    drawn_.push_back(i);
    const Point& place = strokes_[i].points.front();
    const Point lead = After(strokes_[i], radius);
    begins_[i] = {.place = place, .lead = lead, .way = Towards(place, lead), .near = {}};
  }
  const double farthest = TouchingInk() + kSearches[1].gap + kSearches[1].reach * radius;
  for (const std::size_t i : drawn_) {
    for (const std::size_t j : drawn_) {
      const double apart = DistanceBetween(begins_[i].place, begins_[j].place);
      if (i != j && apart < 2 * farthest + 2 * radius) begins_[i].near.push_back(j);
    }
  }
}

/// What is disliked of a place, in radii of a disc.
double Placer::CostOf(const Point& centre, std::size_t stroke) const {
  const Begin& own = begins_[stroke];
  const double away = DistanceBetween(own.place, centre);
  const double toLead = DistanceBetween(own.lead, centre);
  const Point out = Towards(own.place, centre);
  double cost = away / rule_.discRadius;
  cost += kUnderHand * (1 + Dot(out, hand_)) / 2;
  cost += kAhead * std::max(0.0, Dot(out, own.way));
  for (const std::size_t other : begins_[stroke].near) {
    const double nearer = DistanceBetween(begins_[other].place, centre) - away;
    const double nearerToLead = DistanceBetween(begins_[other].lead, centre) - toLead;
    cost += kDoubtful * std::clamp(1 - (nearer + nearerToLead) / rule_.discRadius, 0.0, 2.0);
  }
  return cost;
}

std::vector<Candidate> Placer::CandidatesOf(std::size_t stroke, const Search& search) const {
  std::vector<Candidate> candidates;
  const Point& begin = begins_[stroke].place;
  for (double out = 0; out <= search.reach; out += kStepOut) {
    const double distance = TouchingInk() + search.gap + out * rule_.discRadius;
    for (int i = 0; i < kDirections; ++i) {
      const double angle = 2 * std::numbers::pi * i / kDirections;
      const Point centre = Moved(begin, {std::cos(angle), std::sin(angle)}, distance);
      candidates.push_back({centre, CostOf(centre, stroke)});
    }
  }
  std::ranges::stable_sort(candidates, {}, &Candidate::cost);
  return candidates;
}

/// By how much a disc there would touch ink and the discs that are placed, and stand nearer to
/// another beginning, in sheet pixels; 0 for a clean place.
double Placer::FaultOf(const Point& centre, std::size_t stroke, double gap) const {
  double fault = std::max(0.0, TouchingInk() + gap - ink_.DistanceFrom(centre));
  const Point& begin = begins_[stroke].place;
  const double away = DistanceBetween(begin, centre);
  for (const std::size_t other : begins_[stroke].near) {
    const Point& otherBegin = begins_[other].place;
    if (DistanceBetween(begin, otherBegin) >= kSameBegin) {
      fault += std::max(0.0, away + kNearer - DistanceBetween(otherBegin, centre));
    }
    const StrokeNumber& number = numbers_[other];
    if (number.radius == 0) continue;
    const double touching = number.radius + rule_.discRadius;
    fault += std::max(0.0, touching + gap - DistanceBetween(number.centre, centre));
  }
  return fault;
}

/// Returns whether there is a clean place.
bool Placer::PlaceDisc(std::size_t stroke, const Search& search) {
  double least = std::numeric_limits<double>::infinity();
  for (const Candidate& candidate : CandidatesOf(stroke, search)) {
    const double fault = FaultOf(candidate.centre, stroke, search.gap);
    if (fault >= least) continue;
    least = fault;
    numbers_[stroke].centre = candidate.centre;
    if (fault == 0) break;
  }
  numbers_[stroke].radius = rule_.discRadius;
  return least == 0;
}

/// Returns whether all stand in clean places. A disc that finds none is the first of the next try.
bool Placer::PlaceDiscs(const Search& search) {
  for (std::size_t tries = 0; tries <= drawn_.size(); ++tries) {
    std::ranges::fill(numbers_, StrokeNumber());
    auto failed = drawn_.end();
    for (auto it = drawn_.begin(); it != drawn_.end(); ++it) {
      const bool clean = PlaceDisc(*it, search);
      if (!clean && failed == drawn_.end()) failed = it;
    }
    if (failed == drawn_.end()) return true;
    if (failed == drawn_.begin()) return false;
    std::rotate(drawn_.begin(), failed, failed + 1);
  }
  return false;
}

/// Whether an arrow beside its stroke stands free.
bool Placer::HasRoom(const StrokeArrow& arrow) const {
  const double aside = rule_.penHalfWidth + kArrowGap + headHalfWidth_;
  const auto stands = [&](const Point& point) {
    if (ink_.DistanceFrom(point) < aside - kArrowSlack) return false;
    return std::ranges::all_of(numbers_, [&](const StrokeNumber& number) {
      if (number.radius == 0) return true;
      if (DistanceBetween(number.centre, point) < number.radius + kArrowGap + headHalfWidth_ / 2) {
        return false;
      }
      return std::ranges::all_of(number.arrow.shaft, [&](const Point& other) {
        return DistanceBetween(other, point) > 3 * headHalfWidth_;
      });
    });
  };
  return arrow.IsDrawn() && stands(arrow.head[0]) && std::ranges::all_of(arrow.shaft, stands);
}

/// On which side of its stroke the number stands: +1 for the right of the pen's way, else -1.
double Placer::SideOf(std::size_t stroke) const {
  const Begin& begin = begins_[stroke];
  const Point right{-begin.way.y, begin.way.x};
  const Point out = Towards(begin.place, numbers_[stroke].centre);
  const double side = Dot(right, out);
  if (std::abs(side) > kStraightBehind) return side > 0 ? 1 : -1;
  return Dot(right, hand_) < 0 ? 1 : -1;
}

StrokeArrow Placer::ArrowBeside(std::size_t stroke, double side) const {
  const double radius = rule_.discRadius;
  for (const double length : kArrowLengths) {
    for (double tail = 0; tail <= kLatestTail; tail += kTailStep) {
      StrokeArrow arrow = ArrowAlong(
          strokes_[stroke], {.from = tail * radius,
                             .length = length * radius,
                             .aside = side * (rule_.penHalfWidth + kArrowGap + headHalfWidth_),
                             .headHalfWidth = headHalfWidth_});
      if (HeadIsInLine(arrow, kHeadInLine) && HasRoom(arrow)) return arrow;
    }
  }
  return {};
}

StrokeArrow Placer::ArrowOn(std::size_t stroke) const {
  for (const double inLine : {kHeadInLineOnInk, kHeadInLine}) {
    for (const double length : kArrowLengths) {
      StrokeArrow arrow = ArrowAlong(strokes_[stroke], {.from = 0,
                                                        .length = length * rule_.discRadius,
                                                        .aside = 0,
                                                        .headHalfWidth = headHalfWidth_});
      if (HeadIsInLine(arrow, inLine)) return arrow;
    }
  }
  return {};
}

std::vector<StrokeNumber> Placer::Place() && {
  FindBegins();
  for (const Search& search : kSearches) {
    if (PlaceDiscs(search)) break;
  }
  for (const std::size_t stroke : drawn_) {
    StrokeNumber& number = numbers_[stroke];
    number.clean = FaultOf(number.centre, stroke, kSearches[1].gap) == 0;
    const double side = SideOf(stroke);
    number.arrow = ArrowBeside(stroke, side);
    if (!number.arrow.IsDrawn()) number.arrow = ArrowBeside(stroke, -side);
    if (!number.arrow.IsDrawn()) number.arrow = ArrowOn(stroke);
  }
  return std::move(numbers_);
}

}  // namespace

std::vector<StrokeNumber> PlaceNumbers(std::span<const StrokePath> strokes, const NumberRule& rule,
                                       std::span<const StrokePath> obstacles) {
  return Placer(strokes, rule, obstacles).Place();
}

}  // namespace bramlee
