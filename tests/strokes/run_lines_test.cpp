// Runs as lines for pictures that are not made of dots.
#include "strokes/run_lines.h"

#include <gtest/gtest.h>

#include <vector>

namespace bramlee {
namespace {

constexpr LineRule kEveryDot{.step = 1};
constexpr LineRule kThin{.step = 1, .spacing = 3, .joined = 2.5};

Run LineTo(double toX) {
  return {
      Primitive::LineRight, {10, 5, toX}
  };
}

TEST(RunLinesTest, HaveAPointADotAtNoSpacing) {
  const auto pieces = LinesOf(LineTo(13), kEveryDot);
  ASSERT_EQ(pieces.size(), 1U);
  EXPECT_EQ(pieces[0], (Lines{
                           {10, 5},
                           {11, 5},
                           {12, 5},
                           {13, 5},
                           {13, 5}
  }));
}

TEST(RunLinesTest, OfAStraightRunAreItsEnds) {
  const auto pieces = LinesOf(LineTo(100), kThin);
  ASSERT_EQ(pieces.size(), 1U);
  EXPECT_EQ(pieces[0], (Lines{
                           {10,  5},
                           {100, 5}
  }));
}

TEST(RunLinesTest, OfAnArcHavePointsAsFarApartAsAsked) {
  const auto pieces = LinesOf(
      {
          Primitive::ArcStroke, {+1, 0, 180, 200, 200, 57.3}
  },
      kThin);
  ASSERT_EQ(pieces.size(), 1U);
  const Lines& lines = pieces[0];
  EXPECT_NEAR(static_cast<double>(lines.size()), 180 / 4.0, 2);  // each fourth dot
  for (std::size_t i = 1; i + 1 < lines.size(); ++i) {
    EXPECT_GE(DistanceBetween(lines[i - 1], lines[i]), 3);
  }
  EXPECT_NEAR(lines.back().x, 200 - 57.3, 1e-3);
}

TEST(RunLinesTest, StandApartWhereTheDotsDo) {
  const auto pieces = LinesOf(LineTo(16), {.step = 3, .spacing = 1, .joined = 2.5});
  ASSERT_EQ(pieces.size(), 3U);
  EXPECT_EQ(pieces[1], (Lines{
                           {13, 5},
                           {13, 5}
  }));
}

TEST(RunLinesTest, OfARunThatPlotsNothingAreAbsent) {
  EXPECT_TRUE(LinesOf(LineTo(9), kEveryDot).empty());
}

TEST(RunLinesTest, AreInSinglePrecisionAsPlotted) {
  const auto pieces = LinesOf(
      {
          Primitive::LineDown, {0.1, 5, 5}
  },
      kEveryDot);
  EXPECT_EQ(pieces.at(0).at(0).x, static_cast<double>(0.1F));
}

}  // namespace
}  // namespace bramlee
