#include "letters/telugu_shapes.h"

#include <gtest/gtest.h>

#include "tests/recorder.h"

namespace bramlee {
namespace {

/// A pen over a sheet that remembers, in a record as a click on a Telugu tile makes it.
struct TeluguSheet {
  Recorder sheet{1};
  StrokeRec rec = FillStrokeRec(SheetKind::Wide, 1);
  Pen pen{rec, sheet};

  const std::vector<double>& Arguments(std::size_t run) const {
    return sheet.runs.at(run).arguments;
  }
};

TEST(HeadTick, LeavesTheEndOfItsFirstArmInTheCallersX) {
  TeluguSheet t;
  double x = 300;
  HeadTick(t.pen, x, 325, 52.5);
  const Dot armEnd = t.sheet.dots.at(static_cast<std::size_t>(t.sheet.runs.at(0).dots) - 1);
  EXPECT_NE(x, 300);
  EXPECT_FLOAT_EQ(static_cast<float>(x), armEnd.x);
  EXPECT_EQ(t.Arguments(1), (std::vector<double>{45, x, 325, 325 - 52.5}));
}

TEST(HeadTick, FallsByItsRadiusOverTwoPointTwoInTheConsonants) {
  TeluguSheet t;
  double x = 300;
  HeadTick(t.pen, x, 325, 52.5);
  EXPECT_EQ(t.Arguments(0), (std::vector<double>{45, 300 - 52.5, 325 - 52.5 / 2.2, 325}));
}

TEST(HeadTick, IsFlatterInTheVowels) {
  TeluguSheet t;
  double x = 281.25;
  HeadTick(t.pen, x, 315, 75, kVowelTick);
  EXPECT_EQ(t.Arguments(0), (std::vector<double>{45, 206.25, 296.25, 315}));
  EXPECT_EQ(t.Arguments(1), (std::vector<double>{45, x, 315, 277.5}));
}

TEST(FootHook, WritesBothStrokesAtThePlaceItIsGivenAndLowersTheCallersX) {
  TeluguSheet t;
  double x = 230;
  FootHook(t.pen, x, 523, 20);
  EXPECT_EQ(t.Arguments(0), (std::vector<double>{-1, 270, -90, 280, 503, 20}));
  EXPECT_EQ(t.Arguments(1), (std::vector<double>{190, 523, 280}));
  EXPECT_EQ(x, 190);
}

TEST(DoubleCrest, LeavesAQuarterOfTheRadiusToItsCaller) {
  TeluguSheet t;
  double r = 75;
  DoubleCrest(t.pen, 200, 325, r);
  EXPECT_EQ(r, 18.75);
  ASSERT_EQ(t.sheet.runs.size(), 5U);
  EXPECT_EQ(t.Arguments(1), (std::vector<double>{-1, 270, 90, 190.625, 296.25, 18.75}));
  EXPECT_EQ(t.Arguments(3), (std::vector<double>{-1, 270, 90, 190.625, 258.625, 18.75}));
}

TEST(DoubleCrest, WritesASmallerOneWhenTheRadiusIsNotSetAnew) {
  TeluguSheet t;
  double r = 75;
  DoubleCrest(t.pen, 200, 325, r);
  DoubleCrest(t.pen, 200, 325, r);
  EXPECT_EQ(r, 4.6875);
  EXPECT_EQ(t.Arguments(6).back(), 4.6875);
}

TEST(DoubleCrest, HangsItsUpperBarsOnTheEndsOfItsHalfCircles) {
  TeluguSheet t;
  double r = 75;
  DoubleCrest(t.pen, 200, 325, r);
  const double middle = t.Arguments(2).at(1);
  const double top = t.Arguments(4).at(1);
  EXPECT_NEAR(middle, 296.25 - 18.75, 0.01);
  EXPECT_NEAR(top, 258.625 - 18.75, 0.01);
  EXPECT_EQ(top, LastY);
}

TEST(SideHook, IsABarWithARingBelowItsEnd) {
  TeluguSheet t;
  SideHook(t.pen, 425, 315, 18.75);
  EXPECT_EQ(t.Arguments(0), (std::vector<double>{425, 315, 509.375}));
  EXPECT_EQ(t.Arguments(1), (std::vector<double>{-1, 90, -270, 509.375, 333.75, 18.75}));
}

TEST(CrestHook, IsTwoBarsAHalfCircleAndARing) {
  TeluguSheet t;
  CrestHook(t.pen, 700, 325, 18.75);
  EXPECT_EQ(t.Arguments(0), (std::vector<double>{681.25, 316, 718.75}));
  EXPECT_EQ(t.Arguments(1), (std::vector<double>{1, -90, 90, 718.75, 297.25, 18.75}));
  EXPECT_EQ(t.Arguments(2), (std::vector<double>{681.25, 278.5, 784.375}));
  EXPECT_EQ(t.Arguments(3), (std::vector<double>{-1, 90, -270, 784.375, 297.25, 18.75}));
}

TEST(TwinCurl, TakesItsPlaceFromTheRecord) {
  TeluguSheet t;
  t.rec.CX1 = 1080, t.rec.CY1 = 430, t.rec.CY2 = 370, t.rec.Rad = 30;
  TwinCurl(t.pen);
  EXPECT_EQ(t.Arguments(0), (std::vector<double>{-1, 90, -270, 1080, 430, 30}));
  EXPECT_EQ(t.Arguments(1), (std::vector<double>{1, -90, 180, 1080, 370, 30}));
}

TEST(OpenCurl, HasShorterArcsThanTwinCurl) {
  TeluguSheet t;
  t.rec.CX1 = 225, t.rec.CY1 = 437.5, t.rec.CY2 = 362.5, t.rec.Rad = 37.5;
  OpenCurl(t.pen);
  EXPECT_EQ(t.Arguments(0), (std::vector<double>{-1, 40, -270, 225, 437.5, 37.5}));
  EXPECT_EQ(t.Arguments(1), (std::vector<double>{1, -90, 100, 225, 362.5, 37.5}));
}

}  // namespace
}  // namespace bramlee
