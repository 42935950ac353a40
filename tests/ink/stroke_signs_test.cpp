// The numbers and arrows of pen strokes, as painted.
#include "ink/stroke_signs.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

namespace bramlee {
namespace {

const QColor kGround(Qt::cyan);
const SignColours kColours{.sign = Qt::black, .rim = Qt::white};

StrokeNumber NumberAt(double x, double y) {
  StrokeNumber number;
  number.centre = {x, y};
  number.radius = 12;
  return number;
}

StrokeArrow SomeArrow() {
  return {
      .shaft = {{20, 10}, {20, 30}},
        .head = {{{20, 42}, {16, 30}, {24, 30}}       }
  };
}

QImage Painted(int number, const StrokeNumber& place, double scale = 1) {
  QImage image(QSize(60, 60) * scale, QImage::Format_RGB32);
  image.fill(kGround);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(scale, scale);
  PaintNumber(painter, number, place, kColours);
  return image;
}

TEST(StrokeSignsTest, AreADiscWithARimAroundItsNumber) {
  const QImage image = Painted(1, NumberAt(30, 30));
  EXPECT_EQ(image.pixelColor(30 - 8, 30), kColours.sign);
  EXPECT_EQ(image.pixelColor(30, 30), kColours.rim);  // the 1
  EXPECT_EQ(image.pixelColor(30 - 13, 30), kGround);
  EXPECT_GT(image.pixelColor(30 - 12, 30).red(), 0x60);
}

TEST(StrokeSignsTest, ShowEachNumberOtherwise) {
  std::vector<QImage> images;
  for (int number = 0; number <= 12; ++number) images.push_back(Painted(number, NumberAt(30, 30)));
  for (std::size_t i = 0; i < images.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) EXPECT_NE(images[i], images[j]) << i << ' ' << j;
  }
}

TEST(StrokeSignsTest, KeepTwoDigitsWithinTheDisc) {
  const QImage image = Painted(28, NumberAt(30, 30));
  for (int y = 0; y < 60; ++y) {
    for (int x = 0; x < 60; ++x) {
      if (std::hypot(x + 0.5 - 30, y + 0.5 - 30) < 13) continue;
      ASSERT_EQ(image.pixelColor(x, y), kGround) << x << ' ' << y;
    }
  }
  // the rim is dark at the digits' height: they do not run into it
  EXPECT_EQ(image.pixelColor(20, 30), kColours.sign);
  EXPECT_EQ(image.pixelColor(39, 30), kColours.sign);
}

TEST(StrokeSignsTest, KeepThreeDigitsApartAndWithinTheDisc) {
  for (const int number : {100, 444, 888}) {
    const QImage image = Painted(number, NumberAt(30, 30), 4);
    EXPECT_EQ(image.pixelColor(120 - 42, 120), kColours.sign) << number;
    EXPECT_EQ(image.pixelColor(120 + 42, 120), kColours.sign) << number;
  }
  EXPECT_NE(Painted(137, NumberAt(30, 30)), Painted(37, NumberAt(30, 30)));
}

TEST(StrokeSignsTest, AreDrawnAtTheScaleThatTheyAreSeenAt) {
  const QImage image = Painted(1, NumberAt(30, 30), 4);
  EXPECT_EQ(image.pixelColor(120 - 40, 120), kColours.sign);
  EXPECT_EQ(image.pixelColor(120, 120), kColours.rim);
  // as sharp as at the first size: within two pixels from ground to rim
  EXPECT_EQ(image.pixelColor(120 - 49, 120), kGround);
  EXPECT_EQ(image.pixelColor(120 - 47, 120), kColours.rim);
}

TEST(StrokeSignsTest, ShowNothingForAStrokeWithoutANumber) {
  StrokeNumber none;
  none.arrow = SomeArrow();
  QImage empty(60, 60, QImage::Format_RGB32);
  empty.fill(kGround);
  EXPECT_EQ(Painted(1, none), empty);
}

TEST(StrokeSignsTest, ShowAnArrowWithARim) {
  QImage image(60, 60, QImage::Format_RGB32);
  image.fill(kGround);
  QPainter painter(&image);
  PaintArrow(painter, SomeArrow(), kColours);
  painter.end();
  EXPECT_EQ(image.pixelColor(20, 20), kColours.sign);
  EXPECT_EQ(image.pixelColor(20, 32), kColours.sign);
  EXPECT_EQ(image.pixelColor(22, 20), kColours.rim);
  EXPECT_EQ(image.pixelColor(15, 29), kColours.rim);
  EXPECT_EQ(image.pixelColor(28, 20), kGround);
  EXPECT_EQ(image.pixelColor(20, 47), kGround);
}

TEST(StrokeSignsTest, ShowNoArrowThatIsNotDrawn) {
  StrokeNumber number = NumberAt(45, 45);
  const QImage without = Painted(1, number);
  number.arrow.head = SomeArrow().head;
  EXPECT_EQ(Painted(1, number), without);
}

}  // namespace
}  // namespace bramlee
