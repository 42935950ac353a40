#include "tests/writing/hands.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "writing/guide_path.h"

namespace bramlee {
namespace {

/// A way that is nowhere further than this from the right one may be a right one: two and a half
/// times a four-year-old's deviation.
constexpr double kTellable = 15;

/// Points so far apart at most, at least 3.
Way Even(const Way& way, double spacing) {
  const auto parts = static_cast<std::size_t>(std::ceil(LengthOf(way) / spacing));
  return EvenlyAlong(way, std::max<std::size_t>(3, parts + 1));
}

/// Waves of 25 to 120 units; what they add up to has that sigma.
class Waves {
 public:
  Waves(double sigma, Chance& chance) {
    for (Wave& wave : waves_) {
      wave.size = sigma * std::sqrt(2.0 / static_cast<double>(waves_.size()));
      wave.perUnit = 2 * std::numbers::pi / chance.Between(25, 120);
      wave.begin = chance.Between(0, 2 * std::numbers::pi);
    }
  }
  double At(double along) const {
    double sum = 0;
    for (const Wave& wave : waves_) sum += wave.size * std::sin(wave.begin + wave.perUnit * along);
    return sum;
  }

 private:
  struct Wave {
    double size;
    double perUnit;
    double begin;
  };
  std::array<Wave, 4> waves_{};
};

/// Each point becomes the mean of its neighbours up to that distance; the ends stay.
Way Rounded(const Way& way, double reach) {
  Way rounded = way;
  const auto most = static_cast<std::size_t>(reach);
  for (std::size_t i = 0; i < way.size(); ++i) {
    const std::size_t sides = std::min({most, i, way.size() - 1 - i});
    Point sum;
    for (std::size_t k = i - sides; k <= i + sides; ++k) sum.x += way[k].x, sum.y += way[k].y;
    const auto count = static_cast<double>(2 * sides + 1);
    rounded[i] = {sum.x / count, sum.y / count};
  }
  return rounded;
}

/// The direction at a point, of length 1; none where the way stands still.
Point DirectionAt(const Way& way, std::size_t i) {
  const Point& before = way[i == 0 ? 0 : i - 1];
  const Point& after = way[std::min(i + 1, way.size() - 1)];
  const double length = DistanceBetween(before, after);
  if (length <= 0) return {};
  return {(after.x - before.x) / length, (after.y - before.y) / length};
}

/// Goes on straight for so much, or leaves out so much, a quarter at most.
Way Ended(Way way, double further) {
  const Point direction = DirectionAt(way, way.size() - 1);
  for (double more = 1; more <= further; ++more) {
    const Point& last = way.back();
    way.push_back({last.x + direction.x, last.y + direction.y});
  }
  const auto without = static_cast<std::size_t>(std::max(0.0, -further));
  way.resize(way.size() - std::min(without, way.size() / 4));
  return way;
}

}  // namespace

double Chance::Between(double least, double most) {
  return least + (most - least) * (static_cast<double>(engine_()) / 4294967296.0);
}

double Chance::Error(double sigma) {
  const double radius = std::sqrt(-2 * std::log(1 - Between(0, 1)));
  return sigma * radius * std::cos(2 * std::numbers::pi * Between(0, 1));
}

Way DrawnBy(const ChildHand& hand, const Way& right, Chance& chance) {
  Way way = Ended(Rounded(Even(right, 1), hand.rounding), chance.Error(hand.end));
  const Way straightOn = way;
  const Waves sideways(hand.deviation, chance);
  const double missBy = chance.Error(hand.start);
  const double towards = chance.Between(0, 2 * std::numbers::pi);
  const Point miss{missBy * std::cos(towards), missBy * std::sin(towards)};
  const double over = chance.Between(25, 50);
  const double tremor = hand.deviation > 0 ? 0.3 : 0;
  for (std::size_t i = 0; i < way.size(); ++i) {
    const auto along = static_cast<double>(i);
    const Point direction = DirectionAt(straightOn, i);
    const double still = std::max(0.0, 1 - along / over);
    const double aside = sideways.At(along);
    way[i].x += miss.x * still - direction.y * aside + chance.Error(tremor);
    way[i].y += miss.y * still + direction.x * aside + chance.Error(tremor);
  }
  return Even(way, chance.Between(0.3, 4));
}

double Apart(const Way& one, const Way& other) {
  // the least that the greatest distance can be, over all ways to go along both
  constexpr std::size_t kPoints = 96;
  const Way a = EvenlyAlong(one, kPoints);
  const Way b = EvenlyAlong(other, kPoints);
  std::array<double, kPoints> row{};
  for (std::size_t i = 0; i < kPoints; ++i) {
    double diagonal = 0;
    for (std::size_t k = 0; k < kPoints; ++k) {
      const double above = row[k];
      double before = i == 0 && k == 0 ? 0 : 1e300;
      if (i > 0) before = std::min(before, above);
      if (k > 0) before = std::min(before, row[k - 1]);
      if (i > 0 && k > 0) before = std::min(before, diagonal);
      diagonal = above;
      row[k] = std::max(before, DistanceBetween(a[i], b[k]));
    }
  }
  return row[kPoints - 1];
}

const char* NameOf(Wrong wrong) {
  switch (wrong) {
    case Wrong::Backwards:
      return "backwards";
    case Wrong::NextStroke:
      return "next stroke";
    case Wrong::Half:
      return "half of it";
    case Wrong::Mirrored:
      return "mirrored";
    case Wrong::MirroredWithLetter:
      return "letter mirrored";
    case Wrong::Scribble:
      return "scribble";
    case Wrong::Tap:
      return "tap";
    case Wrong::Straight:
      return "straight";
    case Wrong::OtherWayRound:
      return "other way round";
    case Wrong::LoopLeftOut:
      break;
  }
  return "loop left out";
}

namespace {

Way MirroredAbout(double middle, Way way) {
  for (Point& point : way) point.x = 2 * middle - point.x;
  return way;
}

double MiddleOf(const std::vector<Way>& ways) {
  double left = 1e300, right = -1e300;
  for (const Way& way : ways) {
    for (const Point& point : way) left = std::min(left, point.x), right = std::max(right, point.x);
  }
  return (left + right) / 2;
}

Way ScribbleOn(const Way& right, Chance& chance) {
  const auto [left, rightmost] = std::ranges::minmax(right, {}, &Point::x);
  const auto [top, bottom] = std::ranges::minmax(right, {}, &Point::y);
  Way way{right.front()};
  const double enough = chance.Between(2.5, 5) * LengthOf(right) + 60;
  for (double length = 0; length < enough;
       length += DistanceBetween(way[way.size() - 2], way.back())) {
    way.push_back(
        {chance.Between(left.x - 15, rightmost.x + 15), chance.Between(top.y - 15, bottom.y + 15)});
  }
  return way;
}

/// Where a way comes by a place again: from one index to the other it is a loop.
struct Loop {
  std::size_t from = 0;
  std::size_t to = 0;
};

/// The longest loop of a way of points 1 unit apart that is not nearly all of it.
std::optional<Loop> LoopOf(const Way& way) {
  constexpr double kMeet = 2;
  constexpr std::size_t kLeast = 20;
  std::optional<Loop> longest;
  for (std::size_t from = 0; from < way.size(); ++from) {
    for (std::size_t to = from + kLeast; to < way.size(); ++to) {
      const bool longer = !longest || to - from > longest->to - longest->from;
      if (!longer || (to - from) * 10 > way.size() * 9) continue;
      if (DistanceBetween(way[from], way[to]) <= kMeet) longest = {from, to};
    }
  }
  return longest;
}

std::optional<Way> WithLoop(const Way& right, bool leftOut) {
  Way way = Even(right, 1);
  const std::optional<Loop> loop = LoopOf(way);
  if (!loop) return std::nullopt;
  const auto from = way.begin() + static_cast<std::ptrdiff_t>(loop->from);
  const auto to = way.begin() + static_cast<std::ptrdiff_t>(loop->to);
  if (leftOut) {
    way.erase(from, to);
  } else {
    std::reverse(from, to);
  }
  return way;
}

std::optional<Way> Drawn(Wrong wrong, const std::vector<Way>& letter, std::size_t stroke,
                         Chance& chance) {
  const Way& right = letter[stroke];
  switch (wrong) {
    case Wrong::Backwards:
      return Way(right.rbegin(), right.rend());
    case Wrong::NextStroke:
      if (stroke + 1 == letter.size()) return std::nullopt;
      return letter[stroke + 1];
    case Wrong::Half: {
      const Way even = Even(right, 1);
      return Way(even.begin(), even.begin() + static_cast<std::ptrdiff_t>(even.size() / 2));
    }
    case Wrong::Mirrored:
      return MirroredAbout(MiddleOf({right}), right);
    case Wrong::MirroredWithLetter:
      return MirroredAbout(MiddleOf(letter), right);
    case Wrong::Scribble:
      return ScribbleOn(right, chance);
    case Wrong::Tap:
      return Way{right.front(), right.front()};
    case Wrong::Straight:
      return Way{right.front(), right.back()};
    case Wrong::OtherWayRound:
      if (DistanceBetween(right.front(), right.back()) < 5)
        return Way(right.rbegin(), right.rend());
      return WithLoop(right, false);
    case Wrong::LoopLeftOut:
      break;
  }
  return WithLoop(right, true);
}

}  // namespace

std::optional<Way> DrawnWrongly(Wrong wrong, const std::vector<Way>& letter, std::size_t stroke,
                                Chance& chance) {
  std::optional<Way> way = Drawn(wrong, letter, stroke, chance);
  if (way && Apart(*way, letter[stroke]) < kTellable) return std::nullopt;
  return way;
}

}  // namespace bramlee
