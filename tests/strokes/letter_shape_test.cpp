// The geometry of letters: points, bounds, lengths.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <span>
#include <vector>

#include "strokes/letter.h"
#include "tests/recorder.h"
#include "tests/strokes/every_letter.h"

namespace bramlee {
namespace {

Letter LetterOfRuns(std::vector<Run> runs) {
  return {{}, kUsualStep, std::move(runs)};
}

Point AsPoint(const Dot& dot) {
  return {static_cast<double>(dot.x), static_cast<double>(dot.y)};
}

Run Arc(double from, double to, double radius) {
  return {
      Primitive::ArcStroke, {+1, from, to, 200, 200, radius}
  };
}

TEST(LetterShapeTest, HasPointsAPixelApartAlongALine) {
  const Letter letter = LetterOfRuns({Line(10, 110)});
  ASSERT_EQ(letter.Shape().strokes.size(), 1U);
  const StrokePath& path = letter.Shape().strokes[0];
  ASSERT_EQ(path.points.size(), 101U);
  EXPECT_EQ(path.points.front(), (Point{10, 40}));
  EXPECT_NEAR(path.points[50].x, 60, 0.02);
  EXPECT_NEAR(path.points.back().x, 110, 0.02);
  EXPECT_NEAR(path.length, 100, 0.02);
  EXPECT_FALSE(path.closed);
}

TEST(LetterShapeTest, IsInTheDirectionOfThePen) {
  const Letter letter = LetterOfRuns({
      {Primitive::LineUp, {5, 90, 20}}
  });
  const auto& points = letter.Shape().strokes.at(0).points;
  EXPECT_EQ(points.front(), (Point{5, 90}));
  EXPECT_NEAR(points.back().y, 20, 0.02);
}

TEST(LetterShapeTest, GoesStraightOnToARunThatBeginsAtADistance) {
  const Letter letter = LetterOfRuns({Line(10, 20), Line(28, 40)});
  ASSERT_EQ(letter.Shape().strokes.size(), 1U);
  const auto& points = letter.Shape().strokes[0].points;
  for (std::size_t i = 1; i < points.size(); ++i) {
    EXPECT_NEAR(DistanceBetween(points[i - 1], points[i]), 1, 0.02);
  }
  EXPECT_NEAR(letter.Length(), 30, 0.02);
}

TEST(LetterShapeTest, EndsWhereThePenLeavesAlsoAfterARunThatIsShorterThanAPixel) {
  const Letter letter = LetterOfRuns({Line(10, 20), Line(20.2, 20.3)});
  const auto& points = letter.Shape().strokes.at(0).points;
  EXPECT_EQ(points.size(), 11U);
  EXPECT_NEAR(points.back().x, 20.3, 0.011);
}

TEST(LetterShapeTest, OfARingIsClosed) {
  const Letter letter = LetterOfRuns({Arc(90, 450, 2)});
  const StrokePath& ring = letter.Shape().strokes.at(0);
  EXPECT_TRUE(ring.closed);
  EXPECT_NEAR(ring.length, 4 * 3.14159, 0.4);  // a polygon of twelve points or so
  EXPECT_FALSE(LetterOfRuns({Arc(0, 300, 50)}).Shape().strokes.at(0).closed);
}

TEST(LetterShapeTest, OfAShortLineIsNotClosed) {
  EXPECT_FALSE(LetterOfRuns({Line(10, 13)}).Shape().strokes.at(0).closed);
  EXPECT_FALSE(LetterOfRuns({Line(10, 10)}).Shape().strokes.at(0).closed);
}

TEST(LetterShapeTest, HasNoPointsForARunThatPlotsNothing) {
  const Letter letter = LetterOfRuns({Line(20, 10)});
  ASSERT_EQ(letter.Shape().strokes.size(), 1U);
  EXPECT_TRUE(letter.Shape().strokes[0].points.empty());
  EXPECT_EQ(letter.Bounds(), Box());
}

TEST(LetterShapeTest, IsBoundByItsOutermostDots) {
  const Box bounds = LetterOfRuns({Arc(0, 180, 50), Line(300, 310)}).Bounds();
  EXPECT_NEAR(bounds.x, 150, 1e-3);
  EXPECT_NEAR(bounds.y, 40, 1e-3);
  EXPECT_NEAR(bounds.x + bounds.width, 310, 0.02);
  EXPECT_NEAR(bounds.y + bounds.height, 200, 0.02);
}

/// How far those of the runs' dots go that go furthest, found by looking at each.
std::optional<Box> BoundsOfDots(std::span<const Run> runs, double step) {
  Recorder sheet(step);
  for (const Run& run : runs) RunCursor(run, step).Plot(sheet);
  if (sheet.dots.empty()) return std::nullopt;
  const auto [left, right] = std::ranges::minmax(sheet.dots, {}, &Dot::x);
  const auto [top, bottom] = std::ranges::minmax(sheet.dots, {}, &Dot::y);
  const Point from = AsPoint({left.x, top.y});
  const Point to = AsPoint({right.x, bottom.y});
  return Box{.x = from.x, .y = from.y, .width = to.x - from.x, .height = to.y - from.y};
}

void ExpectBoundByItsDots(const LetterId& id, double step) {
  const Letter letter = RecordTile(id, step);
  EXPECT_EQ(BoundsOf(letter.Runs(), step), BoundsOfDots(letter.Runs(), step)) << NameOf(id);
}

TEST(LetterShapeTest, OfEveryLetterIsBoundByTheDotsAsPlotted) {
  for (const LetterId& id : EveryLetter()) ExpectBoundByItsDots(id, 1);
}

TEST(LetterShapeTest, SweepOfTheBoundsOfEveryLetterAtTheUsualStep) {
  for (const LetterId& id : EveryLetter()) ExpectBoundByItsDots(id, kUsualStep);
}

TEST(LetterShapeTest, OfArcsIsBoundByTheirDotsWhereverTheyBeginAndEnd) {
  for (const double from : {-400.0, -90.0, -0.3, 0.0, 17.25, 89.7, 90.0, 90.4, 271.0}) {
    for (const double sweep : {0.0, 0.6, 44.0, 90.0, 181.0, 360.0, 500.0}) {
      for (const double to : {from + sweep, from - sweep}) {
        const std::vector arc{Arc(from, to, 73)};
        for (const double step : {kUsualStep, 0.2, 1.0, 7.0}) {
          EXPECT_EQ(BoundsOf(arc, step), BoundsOfDots(arc, step))
              << from << " to " << to << " at " << step;
        }
      }
    }
  }
}

TEST(LetterShapeTest, OfEveryLetterRunsFromFirstToLastDotInStepsOfAboutAPixel) {
  for (const LetterId& id : EveryLetter()) {
    if (id.form.place > 1) continue;  // the same digit, moved
    SCOPED_TRACE(NameOf(id));
    const Letter& letter = LetterOf(id);
    ASSERT_EQ(letter.Shape().strokes.size(), letter.PenStrokes().size());
    for (std::size_t i = 0; i < letter.PenStrokes().size(); ++i) {
      const PenStroke stroke = letter.PenStrokes()[i];
      Recorder sheet(kUsualStep);
      RunCursor(letter.Runs()[stroke.firstRun], kUsualStep).Plot(sheet, 1);
      RunCursor last(letter.Runs()[stroke.firstRun + stroke.runs - 1], kUsualStep);
      last.Plot(sheet);
      const auto& points = letter.Shape().strokes[i].points;
      EXPECT_NEAR(DistanceBetween(points.front(), AsPoint(sheet.dots.front())), 0, 1e-4);
      EXPECT_NEAR(DistanceBetween(points.back(), AsPoint(sheet.dots.back())), 0, 1e-4);
      for (std::size_t p = 1; p < points.size(); ++p) {
        const double apart = DistanceBetween(points[p - 1], points[p]);
        ASSERT_GT(apart, 0.5);
        ASSERT_LT(apart, 1.51);
      }
    }
  }
}

}  // namespace
}  // namespace bramlee
