// Dots along strokes: even, apart from each other, and on the ink.
#include "strokes/stroke_dots.h"

#include <gtest/gtest.h>

#include "strokes/ink_grid.h"
#include "strokes/letter.h"
#include "tests/strokes/every_letter.h"

namespace bramlee {
namespace {

constexpr DotRule kRule{.pitch = 20, .diameter = 10};

/// A stroke along these corners, with points one apart.
StrokePath PathAlong(const std::vector<Point>& corners) {
  StrokePath path{.points = {corners.front()}, .length = 0, .closed = false};
  for (std::size_t i = 1; i < corners.size(); ++i) {
    const double length = DistanceBetween(corners[i - 1], corners[i]);
    for (double way = 1; way <= length; ++way) {
      const double part = way / length;
      path.points.push_back({corners[i - 1].x + (corners[i].x - corners[i - 1].x) * part,
                             corners[i - 1].y + (corners[i].y - corners[i - 1].y) * part});
    }
    path.length += length;
  }
  return path;
}

std::vector<Point> DotsOf(const StrokePath& path, const DotRule& rule = kRule) {
  return PlaceDots(std::vector{path}, rule).front();
}

StrokePath LevelLine(double from, double to, double y = 0) {
  return PathAlong({
      {from, y},
      {to,   y}
  });
}

void ExpectDots(const std::vector<Point>& dots, const std::vector<Point>& expected) {
  ASSERT_EQ(dots.size(), expected.size());
  for (std::size_t i = 0; i < dots.size(); ++i) {
    EXPECT_NEAR(DistanceBetween(dots[i], expected[i]), 0, 1e-9) << i;
  }
}

TEST(StrokeDots, StandAtBothEndsAndEvenlyBetween) {
  ExpectDots(DotsOf(LevelLine(0, 60)), {
                                           {0,  0},
                                           {20, 0},
                                           {40, 0},
                                           {60, 0}
  });
  ExpectDots(DotsOf(LevelLine(0, 50)), {
                                           {0,         0},
                                           {50.0 / 3,  0},
                                           {100.0 / 3, 0},
                                           {50,        0}
  });
}

TEST(StrokeDots, StandAtACorner) {
  const StrokePath l = PathAlong({
      {0,  0 },
      {0,  45},
      {36, 45}
  });
  ExpectDots(DotsOf(l), {
                            {0,  0   },
                            {0,  22.5},
                            {0,  45  },
                            {18, 45  },
                            {36, 45  }
  });
}

TEST(StrokeDots, LeaveACornerOutWhereNoGapsComeOutEven) {
  const StrokePath hook = PathAlong({
      {0, 0 },
      {0, 50},
      {8, 50}
  });
  const std::vector<Point> dots = DotsOf(hook);
  ASSERT_EQ(dots.size(), 4U);
  EXPECT_NEAR(dots[1].y, 58.0 / 3, 1e-9);
  EXPECT_NEAR(dots[2].y, 58.0 / 3 * 2, 1e-9);
  EXPECT_EQ(dots[3], (Point{8, 50}));
}

TEST(StrokeDots, OfAShortStrokeAreOneInItsMiddle) {
  ExpectDots(DotsOf(LevelLine(100, 114)), {
                                              {107, 0}
  });
  ExpectDots(DotsOf({
                 .points = {{5, 6}}
  }),
             {{5, 6}});
}

TEST(StrokeDots, OfAStrokeThatNoGapsFitStandALittleWithinItsEnds) {
  ExpectDots(DotsOf(LevelLine(0, 28)), {
                                           {1.5,  0},
                                           {26.5, 0}
  });
}

TEST(StrokeDots, OfARingMeetInOneDot) {
  StrokePath ring;
  for (int degrees = 0; degrees <= 360; ++degrees) {
    ring.points.push_back({40 * std::cos(degrees * kPi / 180), 40 * std::sin(degrees * kPi / 180)});
  }
  const std::vector<Point> dots = DotsOf(ring);
  ASSERT_EQ(dots.size(), 13U);
  EXPECT_NEAR(DistanceBetween(dots.back(), dots.front()), 20, 1);
}

TEST(StrokeDots, AreLeftOutWhereAnEarlierStrokeRuns) {
  const auto dots = PlaceDots(std::vector{LevelLine(0, 100), LevelLine(7, 120)}, kRule);
  EXPECT_EQ(dots[0].size(), 6U);
  ExpectDots(dots[1], {
                          {120, 0}
  });
}

TEST(StrokeDots, StayWhereStrokesCrossApartFromTheDots) {
  const StrokePath upright = PathAlong({
      {50, -40},
      {50, 40 }
  });
  const auto dots = PlaceDots(std::vector{LevelLine(0, 100), upright}, kRule);
  ASSERT_EQ(dots[1].size(), 4U) << "the one on the other line's dots is left out";
}

TEST(StrokeDots, OfNothingAreNone) {
  EXPECT_TRUE(PlaceDots({}, kRule).empty());
  EXPECT_TRUE(DotsOf(StrokePath()).empty());
}

/// Pitches that sheets have, in pixels of letters from large to small.
constexpr double kPitches[] = {12, 16, 20, 26, 34, 50};

class DotsOfLetters : public testing::TestWithParam<double> {
 protected:
  DotRule rule_{.pitch = GetParam(), .diameter = 0.55 * GetParam()};
};
INSTANTIATE_TEST_SUITE_P(Pitches, DotsOfLetters, testing::ValuesIn(kPitches));

TEST_P(DotsOfLetters, NeverOverlap) {
  for (const LetterId& id : EveryLetter()) {
    std::vector<Point> all;
    for (const auto& stroke : PlaceDots(LetterOf(id).Shape().strokes, rule_)) {
      for (const Point& dot : stroke) {
        for (const Point& other : all) {
          ASSERT_GE(DistanceBetween(dot, other), rule_.diameter) << NameOf(id);
        }
        all.push_back(dot);
      }
    }
  }
}

TEST_P(DotsOfLetters, OfEachStrokeLieOnItsLine) {
  for (const LetterId& id : EveryLetter()) {
    const auto& strokes = LetterOf(id).Shape().strokes;
    const auto dots = PlaceDots(strokes, rule_);
    ASSERT_EQ(dots.size(), strokes.size());
    for (std::size_t i = 0; i < dots.size(); ++i) {
      if (strokes[i].points.empty()) continue;
      const InkGrid line(strokes[i].points, 2);
      for (const Point& dot : dots[i]) ASSERT_LT(line.DistanceFrom(dot), 1) << NameOf(id);
    }
  }
}

/// Whether an earlier dot of the stroke stands beside the way from dot `i` - 1 to dot `i`.
bool CrossesItself(const std::vector<Point>& dots, std::size_t i, double pitch) {
  const double half = DistanceBetween(dots[i - 1], dots[i]) / 2;
  const Point middle{(dots[i - 1].x + dots[i].x) / 2, (dots[i - 1].y + dots[i].y) / 2};
  return std::any_of(dots.begin(), dots.begin() + static_cast<std::ptrdiff_t>(i) - 1,
                     [&](const Point& dot) { return DistanceBetween(dot, middle) < half + pitch; });
}

/// Each stroke by itself, so that no dot is left out for another stroke's.
TEST_P(DotsOfLetters, HaveGapsOfAboutThePitchAlongTheStroke) {
  std::size_t gaps = 0, crossings = 0;
  for (const LetterId& id : EveryLetter()) {
    for (const StrokePath& path : LetterOf(id).Shape().strokes) {
      const std::vector<Point> dots = DotsOf(path, {.pitch = rule_.pitch, .diameter = 1e-6});
      for (std::size_t i = 1; i < dots.size(); ++i) {
        ++gaps;
        if (DistanceBetween(dots[i - 1], dots[i]) <= (1 + kPitchBend) * rule_.pitch + 1e-6)
          continue;
        ++crossings;
        ASSERT_TRUE(CrossesItself(dots, i, rule_.pitch)) << NameOf(id);
      }
      if (dots.size() < 2) continue;
      const double gap = path.length / static_cast<double>(dots.size() - 1);
      ASSERT_GE(gap, (1 - kPitchBend) * rule_.pitch - 1e-6) << NameOf(id);
    }
  }
  EXPECT_LT(crossings * 20, gaps) << crossings << " of " << gaps;
}

TEST_P(DotsOfLetters, StandWhereEachFirstStrokeBegins) {
  for (const LetterId& id : EveryLetter()) {
    const auto& strokes = LetterOf(id).Shape().strokes;
    const auto dots = PlaceDots(strokes, rule_);
    if (dots.empty() || dots[0].size() < 2 || strokes[0].length < 1.5 * rule_.pitch) continue;
    EXPECT_EQ(dots[0].front(), strokes[0].points.front()) << NameOf(id);
  }
}

}  // namespace
}  // namespace bramlee
