#include "strokes/telugu_signs.h"

#include <algorithm>
#include <cstddef>

#include "strokes/letter.h"
#include "strokes/word_ink.h"

namespace bramlee {
namespace {

constexpr double kRing = 22;  ///< of aa and au: of the size of o's
constexpr double kAuPitch = 37.5;

/// The sign of o on its tile: the end of its curl there, the run that is its bar, and its ring.
constexpr int kTileOfO = 26;
constexpr int kTileOfOo = 27;
constexpr double kCurlOfO = 175, kRingOfO = 265, kLevelOfO = 316;
constexpr double kColumnOfOo = 250;  ///< further right than o
constexpr std::size_t kBarOfO = 4;

/// How far right of the curl's end the turn of au has its middle.
constexpr double kTurnOfAu = 28.75;

}  // namespace

std::vector<Run> BarWithRing(double from, double level, double ring) {
  return {LineRightRun(from, level, ring), ArcRun(90, -270, -1, {ring, level + kRing}, kRing)};
}

std::vector<Run> SignOfAa(const SignReach& reach) {
  return BarWithRing(reach.bar, reach.level, reach.ring);
}

std::vector<Run> SignOfO(const SignReach& reach, bool isLong) {
  const Letter& tile =
      LetterOf({.set = "telv", .tile = isLong ? kTileOfOo : kTileOfO, .form = {.book = true}});
  const double column = isLong ? kColumnOfOo : 0;
  const double right = reach.curl - kCurlOfO - column;
  const double down = reach.level - kLevelOfO;
  const double longer = std::max(0.0, reach.ring - (reach.curl + kRingOfO - kCurlOfO));
  std::vector<Run> sign;
  for (std::size_t i = 0; i < tile.Runs().size(); ++i) {
    const double moved = i > kBarOfO ? right + longer : right;
    sign.push_back(PlacedRun(tile.Runs()[i], {.right = moved, .down = down}));
    if (i == kBarOfO) sign.back().values[2] += longer;
  }
  return sign;
}

std::vector<Run> SignOfAu(const SignReach& reach) {
  const double turn = reach.curl + kTurnOfAu;
  return {LineRightRun(reach.bar, reach.level, turn),
          ArcRun(-90, 90, +1, {turn, reach.level - kAuPitch / 2}, kAuPitch / 2),
          LineRightRun(reach.bar, reach.level - kAuPitch, reach.ring),
          ArcRun(90, -270, -1, {reach.ring, reach.level - kAuPitch + kRing}, kRing)};
}

Run BowOfHaa(double x, double y) {
  constexpr double kBow = 26;
  return ArcRun(-90, 130, +1, {x, y - kBow}, kBow);
}

}  // namespace bramlee
