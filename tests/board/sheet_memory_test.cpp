// What a sheet shows when the memory for it has run out.
#include <gtest/gtest.h>

#include "board/sheet.h"
#include "engine/primitives.h"
#include "tests/board/scarce_memory.h"
#include "tests/board/sheet_colours.h"

namespace bramlee {
namespace {

constexpr std::size_t kForAPlane = 100000;
constexpr QSize kSize(400, 300);
constexpr QRect kCorner(0, 0, 450, 350);

/// A sheet with a red line that has been shown.
class SheetMemory : public ::testing::Test {
 protected:
  SheetMemory() {
    sheet.resize(kSize);
    sheet.SetBackColor(kSheetGround);
    LineRight(sheet, 100, 100, 200);
    sheet.grab();
  }
  /// What a part of it shows.
  QImage Shown(const QRect& part = QRect({}, kSize)) {
    return sheet.grab(part).toImage().convertToFormat(QImage::Format_RGB32);
  }
  /// What its dots give for that part.
  QImage Dots() const { return sheet.Dots().Picture(QRect({}, kSize), 1, ColourOf(kSheetGround)); }

  Sheet sheet;
};

TEST_F(SheetMemory, NoRoomForAnotherColourLeavesTheLastPicture) {
  const QImage last = Shown();
  {
    const ScarceMemory memory(ScarceMemory::kAny, kForAPlane);
    EXPECT_NO_THROW(sheet.SetForeColor(kBlueWord));
    LineRight(sheet, 100, 200, 200);
    EXPECT_EQ(Shown(), last);
    EXPECT_GE(memory.Refused(), 1);
  }
  EXPECT_EQ(Shown(), Dots());
  EXPECT_EQ(Shown().pixelColor(150, 200), QColor(Qt::blue));
}

TEST_F(SheetMemory, NoRoomForALargerSheetLeavesTheLastPictureOnTheGround) {
  const QImage last = Shown();
  {
    const ScarceMemory memory(ScarceMemory::kAny, kForAPlane);
    sheet.resize(2 * kSize);
    EXPECT_EQ(Shown(), last);
    EXPECT_EQ(Shown(kCorner).pixelColor(420, 320), ColourOf(kSheetGround));
    EXPECT_GE(memory.Refused(), 1);
  }
  LineRight(sheet, 100, 200, 200);
  EXPECT_EQ(Shown(), Dots());
}

TEST_F(SheetMemory, NoRoomForALargerPictureLeavesTheLastOneOnTheGround) {
  sheet.resize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);  // no machine has so much
  EXPECT_EQ(Shown(), Dots());
  EXPECT_EQ(Shown(kCorner).pixelColor(420, 320), ColourOf(kSheetGround));
  sheet.resize(kSize);
  LineRight(sheet, 100, 200, 200);
  EXPECT_EQ(Shown(), Dots());
}

TEST_F(SheetMemory, AWipedSheetWithoutRoomShowsItsGroundAlone) {
  {
    const ScarceMemory memory(ScarceMemory::kAny, kForAPlane);
    sheet.SetForeColor(kBlueWord);
    sheet.Wipe();
    EXPECT_EQ(Shown().pixelColor(150, 100), ColourOf(kSheetGround));
    EXPECT_GE(memory.Refused(), 1);
  }
  EXPECT_EQ(Shown(), Dots());
}

TEST_F(SheetMemory, ASheetThatNeverHadRoomShowsItsGround) {
  Sheet fresh;
  fresh.resize(kSize);
  fresh.SetBackColor(kSheetGround);
  const ScarceMemory memory(ScarceMemory::kAny, kForAPlane);
  LineRight(fresh, 100, 100, 200);
  const QImage shown = fresh.grab().toImage();
  EXPECT_EQ(shown.pixelColor(150, 100), ColourOf(kSheetGround));
  EXPECT_GE(memory.Refused(), 1);
}

TEST_F(SheetMemory, PaintingAFrameAllocatesNothing) {
  LineRight(sheet, 100, 200, 200);
  const ScarceMemory memory(1, 1);
  EXPECT_EQ(Shown().pixelColor(150, 200), QColor(Qt::red));
  EXPECT_EQ(memory.Refused(), 0);
}

TEST_F(SheetMemory, GoingBackToAColourWithoutRoomGoesBackAndShowsItLater) {
  Ink ink(1);
  ink.SetPen(kBlueWord);
  const SurfaceMark mark = ink.Mark();
  ink.SetPen(0);
  LineRight(ink, 100, 100, 200);
  const QRectF area({}, kSize);
  ASSERT_TRUE(ink.Cover(area, 1));  // with no room for blue, in which no dot was written
  {
    const ScarceMemory memory(ScarceMemory::kAny, kForAPlane);
    EXPECT_TRUE(ink.RewindTo(mark));
    EXPECT_EQ(memory.Refused(), 1);
  }
  EXPECT_EQ(ink.Colour(), kBlueWord);
  LineRight(ink, 100, 200, 200);
  EXPECT_TRUE(ink.Cover(area, 1));
  QImage shown(kSize, QImage::Format_RGB32);
  shown.fill(Qt::white);
  ink.Compose(shown, shown.rect());
  EXPECT_EQ(shown, ink.Picture(area, 1, Qt::white));
}

}  // namespace
}  // namespace bramlee
