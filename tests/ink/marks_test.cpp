// Going back to a mark: what came after it goes, what it covered is there again.
#include <gtest/gtest.h>

#include "ink/ink.h"
#include "letters/letter_sets.h"
#include "tests/ink/discs.h"

namespace bramlee {
namespace {

constexpr QRectF kSheetPart(380, 40, 820, 320);

void WriteCapitalOn(Ink& ink, std::int16_t letter) {
  StrokeRec rec = FillStrokeRec(SheetKind::Capitals, letter);
  WriteCapital(rec, ink);
}

QImage PictureOf(const Ink& ink, double ratio = 1) {
  return ink.Picture(kSheetPart, ratio, Qt::white);
}

TEST(InkMarks, TakeAwayWhatCameAfterThem) {
  Ink ink(0.2);
  WriteCapitalOn(ink, 1);
  const QImage before = PictureOf(ink);
  const std::size_t dots = ink.KeptDots();
  const SurfaceMark mark = ink.Mark();
  WriteCapitalOn(ink, 2);
  ASSERT_NE(PictureOf(ink), before);
  EXPECT_TRUE(ink.RewindTo(mark));
  EXPECT_EQ(PictureOf(ink), before);
  EXPECT_EQ(ink.KeptDots(), dots);
}

TEST(InkMarks, BringBackTheColourOfTheirTime) {
  Ink ink(0.2);
  ink.SetPen(kBlue);
  const SurfaceMark mark = ink.Mark();
  ink.SetPen(kPenColour);
  WriteCapitalOn(ink, 1);
  ink.RewindTo(mark);
  EXPECT_EQ(ink.Colour(), kBlue);
}

TEST(InkMarks, UncoverWhatWasWrittenOver) {
  Ink ink(0.2);
  ink.SetPen(kBlue);
  WriteCapitalOn(ink, 2);
  const QImage before = PictureOf(ink, 2);
  const SurfaceMark mark = ink.Mark();
  ink.SetPen(kPenColour);
  WriteCapitalOn(ink, 16);  // P, on the stem and the upper bowl of B in another column
  WriteCapitalOn(ink, 2);
  ink.RewindTo(mark);
  EXPECT_EQ(PictureOf(ink, 2), before);
}

TEST(InkMarks, WriteTheSameDotsAgain) {
  Ink ink(0.2);
  const SurfaceMark mark = ink.Mark();
  WriteCapitalOn(ink, 2);
  const QImage once = PictureOf(ink, 1.5);
  const std::size_t dots = ink.KeptDots();
  ink.RewindTo(mark);
  WriteCapitalOn(ink, 2);
  EXPECT_EQ(PictureOf(ink, 1.5), once);
  EXPECT_EQ(ink.KeptDots(), dots);
}

TEST(InkMarks, StandInTheMiddleOfARun) {
  Ink ink(0.2);
  const double middle[] = {425, 150, 500};
  ink.BeginRun(Primitive::LineRight, middle);
  for (float x = 425; x < 450; x += 0.2F) ink.PSet(x, 150);
  const SurfaceMark mark = ink.Mark();
  const QImage before = PictureOf(ink);
  for (float x = 450; x < 500; x += 0.2F) ink.PSet(x, 150);
  ink.EndRun();
  ink.RewindTo(mark);
  EXPECT_EQ(PictureOf(ink), before);
}

TEST(InkMarks, GoWithTheMarksBeforeThem) {
  Ink ink(0.2);
  const SurfaceMark first = ink.Mark();
  WriteCapitalOn(ink, 1);
  const SurfaceMark second = ink.Mark();
  WriteCapitalOn(ink, 2);
  EXPECT_TRUE(ink.RewindTo(first));
  EXPECT_FALSE(ink.RewindTo(second));
  EXPECT_TRUE(ink.RewindTo(first));
  EXPECT_EQ(ink.KeptDots(), 0U);
}

TEST(InkMarks, AreGoneAfterAWipeAndOnceDropped) {
  Ink ink(0.2);
  const SurfaceMark wiped = ink.Mark();
  ink.Wipe();
  WriteCapitalOn(ink, 1);
  const std::size_t dots = ink.KeptDots();
  EXPECT_FALSE(ink.RewindTo(wiped));
  const SurfaceMark dropped = ink.Mark();
  ink.DropMarks();
  EXPECT_FALSE(ink.RewindTo(dropped));
  EXPECT_FALSE(ink.RewindTo(SurfaceMark{}));
  EXPECT_EQ(ink.KeptDots(), dots);
}

TEST(InkMarks, ShowALivingWindowWhatAPictureShows) {
  Ink ink(0.2);
  ink.Cover(kSheetPart, 1.5);
  ink.SetPen(kBlue);
  WriteCapitalOn(ink, 1);
  const SurfaceMark mark = ink.Mark();
  ink.SetPen(kPenColour);
  WriteCapitalOn(ink, 1);
  ink.TakeDirty();
  ink.RewindTo(mark);
  QImage live(ink.CoveredSize(), QImage::Format_RGB32);
  live.setDevicePixelRatio(1.5);
  EXPECT_FALSE(ink.TakeDirty().isEmpty());
  live.fill(Qt::white);
  ink.Compose(live, live.rect());
  EXPECT_EQ(live, PictureOf(ink, 1.5));
}

/// Enough writing for the covered dots to be looked for, several times.
void WriteOften(Ink& ink, std::int16_t letter) {
  for (int i = 0; i < 400; ++i) WriteCapitalOn(ink, letter);
}

TEST(InkMarks, KeepWhatWasCoveredMeanwhileForTheWayBack) {
  Ink ink(1);
  ink.SetPen(kBlue);
  WriteCapitalOn(ink, 2);
  const QImage first = PictureOf(ink);
  const SurfaceMark one = ink.Mark();
  ink.SetPen(kPenColour);
  WriteOften(ink, 2);
  const QImage second = PictureOf(ink);
  const SurfaceMark two = ink.Mark();
  ink.SetPen(kBlue);
  WriteOften(ink, 2);
  ink.RewindTo(two);
  EXPECT_EQ(PictureOf(ink), second);
  ink.RewindTo(one);
  EXPECT_EQ(PictureOf(ink), first);
}

TEST(InkMarks, LetTheInkStayAsSmallAsWithoutThem) {
  Ink ink(1);
  WriteCapitalOn(ink, 2);
  ink.Mark();
  WriteOften(ink, 2);
  const std::size_t once = ink.KeptDots();
  for (int i = 0; i < 4; ++i) WriteOften(ink, 2);
  EXPECT_LE(ink.KeptDots(), std::max<std::size_t>(once, 1 << 17));
}

}  // namespace
}  // namespace bramlee
