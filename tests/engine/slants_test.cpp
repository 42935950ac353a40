// The slant runs: where they start and end, and the registers that they leave.
#include <cmath>
#include <functional>
#include <vector>

#include "tests/engine/stroke_fixture.h"
#include "tests/recorder.h"

namespace bramlee {
namespace {

using SlantTest = Stroke;

TEST_F(SlantTest, FirstDotLiesOnePixelAlongTheRun) {
  const auto first = [](auto slant, double limitY) {
    Recorder sheet(1);
    slant(sheet, 30.0, 500.0, 200.0, limitY);
    return sheet.dots.at(0);
  };
  const auto sine = static_cast<float>(std::sin(30 * kRadians));
  const auto cosine = static_cast<float>(std::cos(30 * kRadians));
  EXPECT_EQ(first(SlantLeft, 250), (Dot{500 - sine, 200 + cosine}));
  EXPECT_EQ(first(SlantRight, 250), (Dot{500 + sine, 200 + cosine}));
  EXPECT_EQ(first(SlantUpRight, 150), (Dot{500 + sine, 200 - cosine}));
}

TEST_F(SlantTest, AtAngleZeroRunsStraightAlongY) {
  Recorder sheet(1);
  SlantRight(sheet, 0, 40, 10, 12);
  EXPECT_EQ(sheet.dots, (std::vector<Dot>{
                            {40, 11},
                            {40, 12}
  }));
}

TEST_F(SlantTest, DotThatCrossesTheLimitIsTheLast) {
  const auto endsAt = [](auto slant, double startY, double limitY, auto crosses) {
    Recorder sheet(1);
    slant(sheet, 20.65, 500.0, startY, limitY);
    ASSERT_EQ(sheet.dots.size(), 214U);  // 200 / cos(20.65 degrees)
    EXPECT_TRUE(crosses(static_cast<double>(sheet.dots[213].y), limitY));
    EXPECT_FALSE(crosses(static_cast<double>(sheet.dots[212].y), limitY));
  };
  endsAt(SlantLeft, 150, 350, std::greater_equal<>());
  endsAt(SlantRight, 150, 350, std::greater_equal<>());
  endsAt(SlantUpRight, 350, 150, std::less_equal<>());
}

TEST_F(SlantTest, DotOnTheLimitIsTheLast) {
  Recorder sheet(1);
  SlantLeft(sheet, 0, 40, 10, 13);
  SlantRight(sheet, 0, 40, 10, 13);
  SlantUpRight(sheet, 0, 40, 16, 13);
  ASSERT_EQ(sheet.runs.size(), 3U);
  for (const RecordedRun& run : sheet.runs) EXPECT_EQ(run.dots, 3);
  EXPECT_EQ(sheet.dots.back(), (Dot{40, 13}));
}

TEST_F(SlantTest, StopsAtOnceWhenTheLimitLiesBehindIt) {
  Recorder sheet(1);
  SlantLeft(sheet, 20, 500, 300, 250);
  SlantRight(sheet, 20, 500, 300, 250);
  SlantUpRight(sheet, 20, 500, 300, 350);
  ASSERT_EQ(sheet.runs.size(), 3U);
  for (const RecordedRun& run : sheet.runs) EXPECT_EQ(run.dots, 1);
}

TEST_F(SlantTest, RightStopsOn300AlongItsSlopeShortOfItsLimit) {
  Recorder sheet(1);
  SlantRight(sheet, 45, 0, 0, 350);
  EXPECT_EQ(sheet.dots.size(), 300U);
  EXPECT_EQ(sheet.dots.back().y, static_cast<float>(300 * std::cos(45 * kRadians)));
}

TEST_F(SlantTest, UpRightStopsOn300AlongItsSlopeShortOfItsLimit) {
  Recorder sheet(1);
  SlantUpRight(sheet, 45, 0, 400, 50);
  EXPECT_EQ(sheet.dots.size(), 300U);
  EXPECT_GT(sheet.dots.back().y, 50.F);
}

TEST_F(SlantTest, LeftCountsToTheValueOfItsLimitSoItMayGoBeyond300) {
  Recorder sheet(1);
  SlantLeft(sheet, 45, 500, 0, 450);
  EXPECT_EQ(sheet.dots.size(), 450U);
  EXPECT_LT(sheet.dots.back().y, 450.F);
}

TEST_F(SlantTest, LeftCountsToTheValueOfItsLimitSoItMayEndEarly) {
  Recorder sheet(1);
  SlantLeft(sheet, 80, 500, 100, 150);  // to reach 150 it would have to go 288
  EXPECT_EQ(sheet.dots.size(), 150U);
  EXPECT_LT(sheet.dots.back().y, 150.F);
}

TEST_F(SlantTest, LeftToALimitBelowOnePlotsNothingAndLeavesTheRegisters) {
  Recorder sheet(1);
  SlantLeft(sheet, 30, 100, -50, 0);
  EXPECT_TRUE(sheet.dots.empty());
  EXPECT_EQ(LastX, kUntouched);
  EXPECT_EQ(LastY, kUntouched);
}

TEST_F(SlantTest, LeftLeavesTheRegistersAtItsLastDotWithin100OfItsStart) {
  Recorder sheet(1);
  SlantLeft(sheet, 20.65, 500, 150, 350);
  const double cosine = std::cos(20.65 * kRadians);
  EXPECT_EQ(LastY, 150 + 106 * cosine);
  EXPECT_LE(LastY, 250);
  EXPECT_GT(LastY + cosine, 250);
  EXPECT_EQ(LastX, 500 - 106 * std::sin(20.65 * kRadians));
  EXPECT_EQ(LastX2, kUntouched);
}

TEST_F(SlantTest, RightLeavesTheSecondRegistersAtItsLastDotWithin100OfItsStart) {
  Recorder sheet(1);
  SlantRight(sheet, 20.65, 500, 150, 350);
  EXPECT_EQ(LastY2, 150 + 106 * std::cos(20.65 * kRadians));
  EXPECT_EQ(LastX2, 500 + 106 * std::sin(20.65 * kRadians));
  EXPECT_EQ(LastX, kUntouched);
}

TEST_F(SlantTest, UpRightLeavesTheSecondRegistersAtItsLastDotWithin100OfItsStart) {
  Recorder sheet(1);
  SlantUpRight(sheet, 20.65, 500, 350, 150);
  EXPECT_EQ(LastY2, 350 - 106 * std::cos(20.65 * kRadians));
  EXPECT_GE(LastY2, 250);
  EXPECT_EQ(LastX2, 500 + 106 * std::sin(20.65 * kRadians));
  EXPECT_EQ(LastX, kUntouched);
}

TEST_F(SlantTest, DotThatLiesExactly100FromTheStartStillMovesTheRegisters) {
  // at angle 0 and step 1 every dot lies on a whole pixel, the 100th on the bound itself
  Recorder sheet(1);
  SlantLeft(sheet, 0, 40, 10, 350);
  EXPECT_EQ(LastY, 110);
  SlantRight(sheet, 0, 40, 10, 350);
  EXPECT_EQ(LastY2, 110);
  SlantUpRight(sheet, 0, 40, 400, 50);
  EXPECT_EQ(LastY2, 300);
  for (const RecordedRun& run : sheet.runs) EXPECT_GT(run.dots, 100);
}

TEST_F(SlantTest, ShorterThan100LeavesTheRegistersAtTheDotThatCrossedTheLimit) {
  Recorder sheet(1);
  SlantRight(sheet, 45, 100, 200, 240);
  EXPECT_GE(LastY2, 240);
  EXPECT_EQ(static_cast<float>(LastX2), sheet.dots.back().x);
  EXPECT_EQ(static_cast<float>(LastY2), sheet.dots.back().y);
}

}  // namespace
}  // namespace bramlee
