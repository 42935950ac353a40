#include "ink/ink.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <ostream>

#include "engine/primitives.h"
#include "letters/letter_sets.h"
#include "tests/ink/discs.h"

namespace bramlee {
namespace {

constexpr QRectF kArea(380, 40, 80, 80);

using Strokes = std::function<void(DrawingSurface&)>;

Ink Written(double step, ColourWord colour, const Strokes& strokes) {
  Ink ink(step);
  ink.SetPen(colour);
  strokes(ink);
  return ink;
}

void ExpectExactEdges(const Ink& ink, double ratio, double step, const Strokes& strokes) {
  Recorder recorder(step);
  strokes(recorder);
  Discs exact(kArea, ratio);
  exact.Add(recorder.dots);
  const Distance distance = Compare(ink.Picture(kArea, ratio, Qt::white), exact);
  EXPECT_LE(distance.worst, 20);
  EXPECT_LE(distance.mean, 4);
}

QImage WrittenCapital(Ink& ink, std::int16_t letter, const QRectF& area, double ratio) {
  StrokeRec rec = FillStrokeRec(SheetKind::Capitals, letter);
  WriteCapital(rec, ink);
  return ink.Picture(area, ratio, Qt::white);
}

struct StrokeCase {
  const char* name;
  double step;
  Strokes strokes;
};

void PrintTo(const StrokeCase& stroke, std::ostream* out) {
  *out << stroke.name;
}

void Cross(DrawingSurface& sheet) {
  SlantRight(sheet, 37, 390.3, 50.7, 105);
  SlantLeft(sheet, 41, 448.6, 49.2, 105);
  LineRight(sheet, 385, 77.45, 455);
  LineDown(sheet, 420.7, 45, 112);
  ArcStroke(sheet, 1, 0, 0, 360, 420.2, 80.9, 25);
}

const StrokeCase kStrokes[] = {
    {"Dot",            0.01,  [](DrawingSurface& s) { LineRight(s, 420.37, 80.61, 420.37); }        },
    {"Level",          0.01,  [](DrawingSurface& s) { LineRight(s, 390, 80, 450); }                 },
    {"Upright",        0.01,  [](DrawingSurface& s) { LineDown(s, 420.43, 50.2, 110); }             },
    {"Backward",       0.01,  [](DrawingSurface& s) { LineLeft(s, 390.77, 80.29, 449.1); }          },
    {"Steep",          0.01,  [](DrawingSurface& s) { SlantRight(s, 9.89, 410, 50, 110); }          },
    {"Slanted",        0.01,  [](DrawingSurface& s) { SlantLeft(s, 45, 445.21, 50.6, 105); }        },
    {"Flat",           0.03,  [](DrawingSurface& s) { SlantUpRight(s, 80, 388, 90, 80); }           },
    {"Bow",            0.01,  [](DrawingSurface& s) { ArcStroke(s, -1, 0, 90, -90, 410, 80, 25.3); }},
    {"SmallBow",       0.01,  [](DrawingSurface& s) { ArcStroke(s, 1, 0, 0, 360, 420, 80, 5); }     },
    {"Turn",           0.01,  [](DrawingSurface& s) { ArcStroke(s, 1, 0, 0, 300, 420, 80, 0.4); }   },
    {"Crossing",       0.01,  Cross                                                                 },
    {"BowSlow",        0.001, [](DrawingSurface& s) { ArcStroke(s, 1, 0, 30, 70, 420, 80, 30); }    },
    {"CrossingSwift",  0.2,   Cross                                                                 },
    {"CrossingAtOnce", 1,     Cross                                                                 },
};

class InkEdges : public ::testing::TestWithParam<std::tuple<StrokeCase, double>> {};

TEST_P(InkEdges, AreThoseOfTheUnionOfDiscs) {
  const auto& [stroke, ratio] = GetParam();
  const Ink ink = Written(stroke.step, kBlack, stroke.strokes);
  ExpectExactEdges(ink, ratio, stroke.step, stroke.strokes);
}

std::string NameOfEdges(const ::testing::TestParamInfo<InkEdges::ParamType>& tried) {
  return std::string(std::get<0>(tried.param).name) + "At" +
         std::to_string(std::lround(std::get<1>(tried.param) * 100));
}

INSTANTIATE_TEST_SUITE_P(Ink, InkEdges,
                         ::testing::Combine(::testing::ValuesIn(kStrokes),
                                            ::testing::Values(1, 1.5)),
                         NameOfEdges);
INSTANTIATE_TEST_SUITE_P(SweepOfMoreRatios, InkEdges,
                         ::testing::Combine(::testing::ValuesIn(kStrokes),
                                            ::testing::Values(1.25, 2)),
                         NameOfEdges);

class InkAtRatio : public ::testing::TestWithParam<double> {};

TEST_P(InkAtRatio, KeepsTheEdgeOfOneStrokeUnderTenThousandInOneClick) {
  const Strokes bow = [](DrawingSurface& s) { ArcStroke(s, 1, 0, 20, 160, 420, 95, 30.7); };
  const Ink once = Written(1, kBlack, bow);
  const Ink often = Written(1, kBlack, [&](DrawingSurface& s) {
    for (int i = 0; i < 10000; ++i) bow(s);
  });
  EXPECT_EQ(often.Picture(kArea, GetParam(), Qt::white),
            once.Picture(kArea, GetParam(), Qt::white));
}

TEST_P(InkAtRatio, KeepsTheEdgeUnderTenThousandDotsOnOnePlace) {
  const Strokes dot = [](DrawingSurface& s) { s.PSet(420.4F, 80.7F); };
  Ink ink(0.01);
  ink.SetPen(kBlack);
  ink.Cover(kArea, GetParam());
  for (int i = 0; i < 10000; ++i) dot(ink);
  ink.EndRun();
  ExpectExactEdges(ink, GetParam(), 0.01, dot);
}

TEST_P(InkAtRatio, KeepsTheEdgeOfSlowStrokesUnderManyFasterOnes) {
  // Full circles, which end at the same place at every step.
  Ink ink(1);
  ink.SetPen(kBlack);
  const auto circle = [](DrawingSurface& s) { ArcStroke(s, 1, 0, 0, 360, 420.6, 80.3, 25); };
  for (const double step : {0.01, 0.03, 0.08, 0.2, 0.004, 1.0}) {
    ink.SetStep(step);
    for (int i = 0; i < 20; ++i) circle(ink);
  }
  ExpectExactEdges(ink, GetParam(), 0.01, circle);
}

TEST_P(InkAtRatio, ShowsTheSameLiveAndReplayed) {
  Ink live(0.01);
  live.Cover(kArea, GetParam());
  Ink later(0.01);
  for (Ink* ink : {&live, &later}) {
    Cross(*ink);
    ink->SetPen(kYellow);
    LineRight(*ink, 390, 70, 450);
    ink->SetPen(kRed);
    LineDown(*ink, 430, 50, 110);
  }
  QImage shown(live.CoveredSize(), QImage::Format_RGB32);
  shown.fill(Qt::white);
  live.Compose(shown, shown.rect());
  later.Cover(kArea, GetParam());
  QImage replayed(later.CoveredSize(), QImage::Format_RGB32);
  replayed.fill(Qt::white);
  later.Compose(replayed, replayed.rect());
  shown.setDevicePixelRatio(GetParam());
  EXPECT_EQ(shown, live.Picture(kArea, GetParam(), Qt::white));
  replayed.setDevicePixelRatio(GetParam());
  EXPECT_EQ(replayed, shown);
}

TEST_P(InkAtRatio, ReportsEveryChangeByTheDirtyRectangles) {
  Ink ink(0.08);
  ink.Cover(kArea, GetParam());
  QImage frames(ink.CoveredSize(), QImage::Format_RGB32);
  const auto showFrame = [&] {
    const QRect dirty = ink.TakeDirty();
    FillPart(frames, dirty, Qt::white);
    ink.Compose(frames, dirty);
  };
  showFrame();
  for (const ColourWord colour : {kRed, kBlue, kRed}) {
    ink.SetPen(colour);
    for (float x = 385; x < 450; x += 0.08F) {
      ink.PSet(x, 60 + 15 * std::sin(x / 7));
      if (static_cast<int>(x * 100) % 37 == 0) showFrame();
    }
    ink.EndRun();
  }
  showFrame();
  frames.setDevicePixelRatio(GetParam());
  EXPECT_EQ(frames, ink.Picture(kArea, GetParam(), Qt::white));
  ink.Wipe();
  showFrame();
  EXPECT_EQ(frames, Ink().Picture(kArea, GetParam(), Qt::white));
}

void ExpectNothingOfTheFirstColour(std::int16_t letter, double ratio) {
  const QRectF area(400, 130, 800, 240);
  Ink blueOnly(0.03);
  blueOnly.SetPen(kBlue);
  const QImage wanted = WrittenCapital(blueOnly, letter, area, ratio);
  Ink ink(0.03);
  ink.SetPen(kRed);
  WrittenCapital(ink, letter, area, ratio);
  ink.SetPen(kBlue);
  EXPECT_EQ(WrittenCapital(ink, letter, area, ratio), wanted) << "capital " << letter;
}

TEST_P(InkAtRatio, LeavesNothingOfTheFirstColourWhenWrittenAgainInAnother) {
  for (const std::int16_t letter : std::initializer_list<std::int16_t>{2, 11, 17, 23}) {
    ExpectNothingOfTheFirstColour(letter, GetParam());
  }
}

TEST_P(InkAtRatio, SweepOfCapitalsWrittenAgainInAnotherColour) {
  for (std::int16_t letter = 1; letter <= 26; ++letter) {
    ExpectNothingOfTheFirstColour(letter, GetParam());
  }
}

TEST_P(InkAtRatio, CoversACrossedStrokeFullyAndLeaveTheRestOfIt) {
  const Strokes under = [](DrawingSurface& s) { SlantRight(s, 40, 390, 50, 105); };
  const Strokes over = [](DrawingSurface& s) { SlantLeft(s, 33, 440, 48, 108); };
  Ink ink(0.01);
  ink.SetPen(kRed);
  under(ink);
  ink.SetPen(kBlue);
  over(ink);
  Recorder underDots(0.01);
  Recorder overDots(0.01);
  under(underDots);
  over(overDots);
  Discs blue(kArea, GetParam());
  blue.Add(overDots.dots);
  Discs both(kArea, GetParam());
  both.Add(overDots.dots);
  both.Add(underDots.dots);
  const QImage picture = ink.Picture(kArea, GetParam(), Qt::white);
  int worst = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const double full = Discs::kFull;
      const double red = 255.0 * (full - blue.Covered(x, y)) / full;
      const double blueLevel = 255.0 * (full - both.Covered(x, y) + blue.Covered(x, y)) / full;
      const QRgb pixel = picture.pixel(x, y);
      worst = std::max(worst, static_cast<int>(std::abs(qRed(pixel) - red)));
      worst = std::max(worst, static_cast<int>(std::abs(qBlue(pixel) - blueLevel)));
    }
  }
  EXPECT_LE(worst, 20);
}

std::string NameOfRatio(const ::testing::TestParamInfo<double>& tried) {
  return "At" + std::to_string(std::lround(tried.param * 100));
}

INSTANTIATE_TEST_SUITE_P(Ink, InkAtRatio, ::testing::Values(1, 1.5), NameOfRatio);
INSTANTIATE_TEST_SUITE_P(SweepOfMoreRatios, InkAtRatio, ::testing::Values(1.25, 2), NameOfRatio);

TEST(Ink, KeepsWhatLiesOffTheCoveredPart) {
  Ink ink(0.01);
  ink.Cover(QRectF(0, 0, 200, 100), 1);
  ink.SetPen(kBlack);
  Cross(ink);
  ink.Cover(kArea, 2);
  QImage shown(ink.CoveredSize(), QImage::Format_RGB32);
  shown.fill(Qt::white);
  ink.Compose(shown, shown.rect());
  shown.setDevicePixelRatio(2);
  EXPECT_EQ(shown, Written(0.01, kBlack, Cross).Picture(kArea, 2, Qt::white));
}

TEST(Ink, GivesThePartOfALargerPicture) {
  const Ink ink = Written(0.08, kRed, Cross);
  const QImage whole = ink.Picture(QRectF(380, 40, 80, 80), 1, Qt::white);
  const QImage part = ink.Picture(QRectF(400, 60, 30, 20), 1, Qt::white);
  EXPECT_EQ(part, whole.copy(20, 20, 30, 20));
}

TEST(Ink, ShowsEveryDotAlsoBeforeItsRunHasEnded) {
  Ink ink(0.2);
  ink.BeginRun(Primitive::LineRight, {});
  ink.PSet(400, 60);
  ink.PSet(400.2F, 60);
  const QImage early = ink.Picture(kArea, 1, Qt::white);
  ink.EndRun();
  EXPECT_EQ(early, ink.Picture(kArea, 1, Qt::white));
}

TEST(Ink, LeavesOutDotsThatChangeNothing) {
  const Ink ink = Written(0.01, kRed, [](DrawingSurface& s) { LineRight(s, 400, 60, 600); });
  EXPECT_LT(ink.KeptDots(), 600U);
  EXPECT_GT(ink.KeptDots(), 400U);
}

/// Hundreds of letters over each other, in two colours and at two steps, the last ones black.
void WriteForLong(Ink& ink) {
  StrokeRec rec;
  for (int i = 0; i < 600; ++i) {
    ink.SetPen(i % 3 == 0 ? kBlack : kRed);
    ink.SetStep(i % 2 == 0 ? 1 : 0.5);
    rec = FillStrokeRec(SheetKind::Capitals, static_cast<std::int16_t>(1 + i % 4));
    WriteCapital(rec, ink);
  }
}

TEST(Ink, DoesNotGrowWithLettersThatAreWrittenAgain) {
  Ink ink(1);
  WriteForLong(ink);
  EXPECT_LT(ink.KeptDots(), 200000U);
}

TEST(Ink, ShowsAllColoursAsBeforeWhenItDropsCoveredDots) {
  const QRectF area(400, 100, 800, 300);
  Ink ink(1);
  ink.SetPen(kBlue);
  LineRight(ink, 410, 260, 1190);  // crossed by the letters, and left as it is between them
  ink.Cover(area, 1);
  WriteForLong(ink);
  ink.SetPen(kYellow);
  LineDown(ink, 640, 120, 380);
  QImage shown(ink.CoveredSize(), QImage::Format_RGB32);
  shown.fill(Qt::white);
  ink.Compose(shown, shown.rect());
  const QImage anew = ink.Picture(area, 1, Qt::white);
  EXPECT_EQ(anew, shown);
  EXPECT_EQ(anew.pixelColor(790 - 400, 260 - 100), QColor(Qt::blue));
  EXPECT_EQ(anew.pixelColor(640 - 400, 370 - 100), QColor(Qt::yellow));
}

TEST(Ink, KeepsADotThatComesBack) {
  Ink ink(0.1);
  for (const float x : {400.0F, 400.1F, 400.2F, 400.3F, 400.1F, 399.9F}) ink.PSet(x, 60);
  ink.EndRun();
  Ink back(0.1);
  back.PSet(399.9F, 60);
  back.PSet(400.3F, 60);
  back.EndRun();
  EXPECT_EQ(ink.Picture(kArea, 2, Qt::white), back.Picture(kArea, 2, Qt::white));
}

TEST(Ink, TakesDotsAnywhereWithoutHarm) {
  Ink ink(1);
  ink.Cover(kArea, 1);
  for (const float far : {-1e30F, -1e9F, -1.0F, 1e9F, 1e30F, INFINITY, -INFINITY, NAN}) {
    ink.PSet(far, 60);
    ink.PSet(400, far);
  }
  ink.EndRun();
  EXPECT_EQ(ink.Picture(kArea, 1, Qt::white), Ink().Picture(kArea, 1, Qt::white));
}

TEST(Ink, CutsDotsAtEveryEdgeOfThePicture) {
  const Strokes frame = [](DrawingSurface& s) {
    LineRight(s, 375, 40, 465);
    LineRight(s, 375, 120, 465);
    LineDown(s, 380, 35, 125);
    LineDown(s, 460, 35, 125);
  };
  ExpectExactEdges(Written(0.01, kBlack, frame), 1, 0.01, frame);
}

TEST(Ink, GivesNoPictureOfAnEmptyOrMonstrousArea) {
  const Ink ink = Written(1, kRed, Cross);
  EXPECT_TRUE(ink.Picture(QRectF(), 1, Qt::white).isNull());
  EXPECT_TRUE(ink.Picture(QRectF(0, 0, 1e6, 10), 1, Qt::white).isNull());
  EXPECT_TRUE(ink.Picture(QRectF(0, 0, 1000, 1000), 1e4, Qt::white).isNull());
}

}  // namespace
}  // namespace bramlee
