// Arcs and lines, and what holds for all primitives.
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "tests/engine/stroke_fixture.h"
#include "tests/recorder.h"

namespace bramlee {
namespace {

using ArcStrokeTest = Stroke;
using LineTest = Stroke;
using AnyStrokeTest = Stroke;

double DistanceBetween(const Dot& a, const Dot& b) {
  return std::hypot(static_cast<double>(a.x - b.x), static_cast<double>(a.y - b.y));
}

// --- arcs

TEST_F(ArcStrokeTest, PlotsTheRightHalfFromTopToBottom) {
  Recorder sheet(1);
  ArcStroke(sheet, -1, 0, 90, -90, 100, 100, 50);
  ASSERT_EQ(sheet.dots.size(), 181U);
  EXPECT_NEAR(sheet.dots.front().y, 50, 1e-3);
  EXPECT_NEAR(sheet.dots.back().y, 150, 1e-3);
  for (const Dot& dot : sheet.dots) EXPECT_GE(dot.x, 99.99F);
  EXPECT_NEAR(LastY, 150, 1e-3);
}

TEST_F(ArcStrokeTest, WithTheOtherSweepPlotsNothingAndZeroesTheRegisters) {
  Recorder sheet(1);
  ArcStroke(sheet, +1, 0, 90, -90, 100, 100, 50);
  EXPECT_TRUE(sheet.dots.empty());
  EXPECT_EQ(LastX, 0);
  EXPECT_EQ(LastY, 0);
  EXPECT_EQ(LastX2, kUntouched);
}

TEST_F(ArcStrokeTest, WithoutDotsClockwiseZeroesTheRegistersToo) {
  Recorder sheet(1);
  ArcStroke(sheet, -1, 0, -90, 90, 100, 100, 50);
  EXPECT_TRUE(sheet.dots.empty());
  EXPECT_EQ(LastX, 0);
  EXPECT_EQ(LastY, 0);
}

TEST_F(ArcStrokeTest, WithoutDotsLetsAJoinStartAtTheSheetsCorner) {
  Recorder sheet(1);
  ArcStroke(sheet, +1, 0, 90, -90, 100, 100, 50);
  LineRight(sheet, LastX, LastY, LastX + 3);
  ASSERT_EQ(sheet.dots.size(), 4U);
  EXPECT_EQ(sheet.dots.front().x, 0);
  EXPECT_EQ(sheet.dots.front().y, 0);
}

TEST_F(ArcStrokeTest, FromAnAngleToItselfIsOneDot) {
  for (const std::int16_t sweep : {std::int16_t{+1}, std::int16_t{-1}}) {
    Recorder sheet(0.01);
    ArcStroke(sheet, sweep, 0, 30, 30, 0, 0, 10);
    EXPECT_EQ(sheet.dots.size(), 1U);
    EXPECT_EQ(LastX, 10 * std::cos(30 * kRadians));
  }
}

TEST_F(ArcStrokeTest, RisesAnticlockwiseOnASheetWhoseYGrowsDownward) {
  Recorder sheet(90);
  ArcStroke(sheet, +1, 0, 0, 270, 0, 0, 10);
  ASSERT_EQ(sheet.dots.size(), 4U);
  const Dot right = sheet.dots[0];
  const Dot top = sheet.dots[1];
  const Dot left = sheet.dots[2];
  const Dot bottom = sheet.dots[3];
  EXPECT_NEAR(right.x, 10, 1e-3);
  EXPECT_NEAR(top.y, -10, 1e-3);
  EXPECT_NEAR(left.x, -10, 1e-3);
  EXPECT_NEAR(bottom.y, 10, 1e-3);
}

TEST_F(ArcStrokeTest, TakesAnglesBeyondATurnAsTheyAre) {
  Recorder sheet(1);
  ArcStroke(sheet, +1, 0, -360, 630, 0, 0, 10);
  EXPECT_EQ(sheet.dots.size(), 991U);
  EXPECT_EQ(LastX, 10 * std::cos(630 * kRadians));
}

TEST_F(ArcStrokeTest, EndsWhereARoundedPiPutsIt) {
  Recorder sheet(1);
  ArcStroke(sheet, +1, 0, 0, 180, 0, 0, 100);
  EXPECT_EQ(LastY, -100 * std::sin(180 * (3.14159 / 180)));
  EXPECT_NEAR(LastY, -2.65359e-4, 1e-9);  // with an exact pi it would be 0
}

TEST_F(ArcStrokeTest, LeavesTheSecondRegistersAlone) {
  Recorder sheet(1);
  ArcStroke(sheet, +1, 0, 0, 180, 0, 0, 100);
  EXPECT_EQ(LastX2, kUntouched);
  EXPECT_EQ(LastY2, kUntouched);
}

TEST_F(ArcStrokeTest, DoesNotReadTheStepFlag) {
  Recorder plain(0.5);
  Recorder flagged(0.5);
  ArcStroke(plain, -1, 0, 90, -90, 1075, 250, 100);
  ArcStroke(flagged, -1, 1, 90, -90, 1075, 250, 100);
  EXPECT_EQ(plain.dots, flagged.dots);
  EXPECT_EQ(plain.runs, flagged.runs);
}

// --- lines

TEST_F(LineTest, RightRunsWithRisingX) {
  Recorder sheet(1);
  LineRight(sheet, 10, 5, 13);
  EXPECT_EQ(sheet.dots, (std::vector<Dot>{
                            {10, 5},
                            {11, 5},
                            {12, 5},
                            {13, 5}
  }));
}

TEST_F(LineTest, LeftTakesItsEndFirstAndRunsWithFallingX) {
  Recorder sheet(1);
  LineLeft(sheet, 10, 5, 12);
  EXPECT_EQ(sheet.dots, (std::vector<Dot>{
                            {12, 5},
                            {11, 5},
                            {10, 5}
  }));
}

TEST_F(LineTest, DownRunsWithRisingY) {
  Recorder sheet(1);
  LineDown(sheet, 5, 10, 12);
  EXPECT_EQ(sheet.dots, (std::vector<Dot>{
                            {5, 10},
                            {5, 11},
                            {5, 12}
  }));
}

TEST_F(LineTest, UpRunsWithFallingY) {
  Recorder sheet(1);
  LineUp(sheet, 5, 12, 10);
  EXPECT_EQ(sheet.dots, (std::vector<Dot>{
                            {5, 12},
                            {5, 11},
                            {5, 10}
  }));
}

TEST_F(LineTest, WithEndsTheWrongWayRoundPlotsNothing) {
  Recorder sheet(1);
  LineRight(sheet, 11, 5, 10);
  LineLeft(sheet, 11, 5, 10);
  LineDown(sheet, 5, 11, 10);
  LineUp(sheet, 5, 10, 11);
  EXPECT_TRUE(sheet.dots.empty());
  EXPECT_EQ(sheet.runs.size(), 4U);
}

TEST_F(LineTest, FromAPointToItselfIsOneDot) {
  Recorder sheet(0.01);
  LineRight(sheet, 10, 5, 10);
  LineLeft(sheet, 10, 5, 10);
  LineDown(sheet, 10, 5, 5);
  LineUp(sheet, 10, 5, 5);
  EXPECT_EQ(sheet.dots, (std::vector<Dot>(4, Dot{10, 5})));
}

TEST_F(LineTest, StopsShortOfItsEndByLessThanAStep) {
  Recorder sheet(4);
  LineRight(sheet, 0, 0, 10);
  EXPECT_EQ(sheet.dots, (std::vector<Dot>{
                            {0, 0},
                            {4, 0},
                            {8, 0}
  }));
}

TEST_F(LineTest, LeavesTheRegistersAlone) {
  Recorder sheet(1);
  LineRight(sheet, 0, 0, 10);
  LineLeft(sheet, 0, 0, 10);
  LineDown(sheet, 0, 0, 10);
  LineUp(sheet, 0, 10, 0);
  EXPECT_EQ(LastX, kUntouched);
  EXPECT_EQ(LastY, kUntouched);
  EXPECT_EQ(LastX2, kUntouched);
  EXPECT_EQ(LastY2, kUntouched);
}

// --- what holds for all runs

/// One call of each primitive, in both registers' reach.
void RunEachOnce(DrawingSurface& sheet) {
  EXPECT_EQ(ArcStroke(sheet, -1, 1, 90, 0, 300, 200, 57.29577), 0);
  EXPECT_EQ(LineRight(sheet, 10, 20, 30), 0);
  EXPECT_EQ(LineLeft(sheet, 10, 20, 30), 0);
  EXPECT_EQ(LineDown(sheet, 10, 20, 30), 0);
  EXPECT_EQ(LineUp(sheet, 10, 30, 20), 0);
  EXPECT_EQ(SlantLeft(sheet, 40, 500, 100, 150), 0);
  EXPECT_EQ(SlantRight(sheet, 40, 500, 100, 150), 0);
  EXPECT_EQ(SlantUpRight(sheet, 40, 500, 150, 100), 0);
}

TEST_F(AnyStrokeTest, PassesItsArgumentsToTheSurfaceInItsOwnOrder) {
  Recorder sheet(1);
  RunEachOnce(sheet);
  const std::vector<std::pair<std::string, std::vector<double>>> wanted = {
      {"ArcStroke",    {-1, 90, 0, 300, 200, 57.29577}},
      {"LineRight",    {10, 20, 30}                   },
      {"LineLeft",     {10, 20, 30}                   },
      {"LineDown",     {10, 20, 30}                   },
      {"LineUp",       {10, 30, 20}                   },
      {"SlantLeft",    {40, 500, 100, 150}            },
      {"SlantRight",   {40, 500, 100, 150}            },
      {"SlantUpRight", {40, 500, 150, 100}            },
  };
  ASSERT_EQ(sheet.runs.size(), wanted.size());
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    EXPECT_EQ(PrimitiveName(sheet.runs[i].primitive), wanted[i].first);
    EXPECT_EQ(sheet.runs[i].arguments, wanted[i].second) << wanted[i].first;
  }
}

TEST_F(AnyStrokeTest, PlotsItsDotsAStepApart) {
  for (const double step : {1.0, 0.25}) {
    Recorder sheet(step);
    RunEachOnce(sheet);
    std::size_t dot = 0;
    for (const RecordedRun& run : sheet.runs) {
      ASSERT_GT(run.dots, 10);
      for (int i = 1; i < run.dots; ++i, ++dot) {
        // the arc's radius makes a degree as long as a pixel
        EXPECT_NEAR(DistanceBetween(sheet.dots[dot], sheet.dots[dot + 1]), step, 1e-4)
            << PrimitiveName(run.primitive);
      }
      ++dot;
    }
  }
}

TEST_F(AnyStrokeTest, AddsTheStepAndNeverMultipliesIt) {
  // both sums pass the end by their rounding, where 18000 or 30 times the step would meet it
  ASSERT_EQ(90 - 18000 * 0.01, -90.0);
  ASSERT_EQ(30 * 0.01, 0.3);
  Recorder sheet(0.01);
  ArcStroke(sheet, -1, 0, 90, -90, 725, 200, 50);
  LineDown(sheet, 0, 0, 0.3);
  EXPECT_EQ(sheet.runs[0].dots, 18000);
  EXPECT_EQ(sheet.runs[1].dots, 30);
  EXPECT_NEAR(LastX, 725 + 50 * std::cos(89.99 * kRadians), 1e-6);
}

/// Returns another step at every call.
class FicklePace : public Recorder {
 public:
  FicklePace() : Recorder(0) {}
  double Step() const override { return ++asked_; }
  int Asked() const { return asked_; }

 private:
  mutable int asked_ = 0;
};

TEST_F(AnyStrokeTest, ReadsTheStepOnceOnEntry) {
  FicklePace sheet;
  RunEachOnce(sheet);
  EXPECT_EQ(sheet.Asked(), 8);
  EXPECT_EQ(sheet.runs[1].dots, 11);  // 10 to 30 by the second answer, 2
}

/// Notes the calls that it gets, in order.
class Diary : public DrawingSurface {
 public:
  void PSet(float /*x*/, float /*y*/) override { text += '.'; }
  double Step() const override { return 1; }
  void BeginRun(Primitive /*primitive*/, std::span<const double> /*arguments*/) override {
    text += '(';
  }
  void EndRun() override { text += ')'; }

  std::string text;
};

TEST_F(AnyStrokeTest, BeginsAndEndsAroundItsDotsEvenWithoutAny) {
  Diary sheet;
  LineRight(sheet, 0, 0, 2);
  LineRight(sheet, 2, 0, 0);
  ArcStroke(sheet, +1, 0, 0, 1, 0, 0, 10);
  EXPECT_EQ(sheet.text, "(...)()(..)");
}

TEST_F(AnyStrokeTest, NarrowsToSinglePrecisionInThePlottingAlone) {
  Recorder sheet(0.001);
  LineRight(sheet, 1000, 0, 1010);
  double x = 1000;
  std::size_t dots = 0;
  for (; x <= 1010; x += 0.001) {
    ASSERT_LT(dots, sheet.dots.size());
    EXPECT_EQ(sheet.dots[dots++].x, static_cast<float>(x));
  }
  EXPECT_EQ(sheet.dots.size(), dots);  // a sum of floats would be off by hundreds

  ArcStroke(sheet, +1, 0, 0, 77, 1000, 400, 75);
  EXPECT_EQ(static_cast<float>(LastX), sheet.dots.back().x);
  EXPECT_NE(LastX, static_cast<double>(sheet.dots.back().x));
}

TEST(LastPoint, IsClearedAsAtTheStartOfTheProgram) {
  LastX = LastY = LastX2 = LastY2 = 5;
  ClearLastPoint();
  EXPECT_EQ(LastX, 0);
  EXPECT_EQ(LastY, 0);
  EXPECT_EQ(LastX2, 0);
  EXPECT_EQ(LastY2, 0);
}

}  // namespace
}  // namespace bramlee
