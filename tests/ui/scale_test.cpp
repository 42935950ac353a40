// Controls at another scale than they were designed for.
#include "ui/scale.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>

#include "ui/twips.h"

namespace bramlee {
namespace {

constexpr TwipsRect kPlace{.left = 600, .top = 1207, .width = 900, .height = 825};

/// As pixels: 40, 80 and a half (to even), 60 and 55.
constexpr QRect kDesigned(40, 80, 60, 55);

class Scaled : public ::testing::Test {
 protected:
  Scaled() { Place(&placed, kPlace); }

  static std::string Text(const TwipsRect& rect) {
    return std::to_string(rect.left) + " " + std::to_string(rect.top) + " " +
           std::to_string(rect.width) + " " + std::to_string(rect.height);
  }

  QWidget ground;
  QLabel placed{&ground};
};

TEST_F(Scaled, AtFirstAllStandsAsDesigned) {
  EXPECT_EQ(ScaleOf(&ground), Scale());
  EXPECT_EQ(ScaleOf(nullptr), Scale());
  EXPECT_EQ(placed.geometry(), kDesigned);
}

TEST_F(Scaled, ControlsGoToWhereTheirPlacesLie) {
  SetScale(&ground, {
                        .factor = 1.5, .origin = {7, 11}
  });
  // From 120.7 to 203.2.
  EXPECT_EQ(placed.geometry(), QRect(7 + 60, 11 + 121, 90, 82));
  SetScale(&ground, {.factor = 0.8, .origin = {}});
  EXPECT_EQ(placed.geometry(), QRect(32, 64, 48, 44));
}

TEST_F(Scaled, NeighboursGoOnToMeet) {
  QWidget neighbour(&ground);
  for (int factor = 50; factor < 400; ++factor) {
    SetScale(&ground, {.factor = factor / 100.0, .origin = {}});
    Place(&neighbour, {.left = 1500, .top = 2032, .width = 900, .height = 825});
    EXPECT_EQ(neighbour.geometry().topLeft(), placed.geometry().bottomRight() + QPoint(1, 1));
  }
}

TEST_F(Scaled, PlacesAreToldAsDesigned) {
  SetScale(&ground, {
                        .factor = 1.37, .origin = {7, 11}
  });
  EXPECT_EQ(Text(PlaceOf(&placed)), Text(kPlace));
  QWidget control(&ground);
  control.setGeometry(7 + 137, 11 + 274, 137, 274);
  EXPECT_NEAR(PlaceOf(&control).left, 1500, 1e-9);
  EXPECT_NEAR(PlaceOf(&control).top, 3000, 1e-9);
  EXPECT_NEAR(PlaceOf(&control).width, 1500, 1e-9);
  EXPECT_NEAR(PlaceOf(&control).height, 3000, 1e-9);
}

TEST_F(Scaled, WhatIsPlacedAtAScaleStandsAsDesignedAfterIt) {
  SetScale(&ground, {
                        .factor = 1.37, .origin = {7, 11}
  });
  QWidget late(&ground);
  Place(&late, kPlace);
  EXPECT_EQ(late.geometry(), placed.geometry());
  MoveTo(&placed, 615, 1222);
  EXPECT_NE(late.geometry(), placed.geometry());
  SetScale(&ground, {});
  EXPECT_EQ(late.geometry(), kDesigned);
  EXPECT_EQ(placed.geometry(), kDesigned.translated(1, 1));
}

TEST_F(Scaled, WhatWasNotPlacedStays) {
  QWidget control(&ground);
  control.setGeometry(3, 4, 50, 60);
  SetScale(&ground, {
                        .factor = 2, .origin = {10, 10}
  });
  EXPECT_EQ(control.geometry(), QRect(3, 4, 50, 60));
}

TEST_F(Scaled, FontsGrowAndShrinkAndComeBack) {
  QFont points(QStringLiteral("Sans"), 18);
  QFont pixels(QStringLiteral("Sans"));
  pixels.setPixelSize(30);
  SetDesignFont(&ground, points);
  SetDesignFont(&placed, pixels);
  const QLabel heir(&ground);
  const QFont groundFont = ground.font();
  const QFont ownFont = placed.font();
  EXPECT_EQ(heir.font().pointSizeF(), 18);
  SetScale(&ground, {.factor = 1.55, .origin = {}});
  EXPECT_DOUBLE_EQ(ground.font().pointSizeF(), 27.9);
  EXPECT_DOUBLE_EQ(heir.font().pointSizeF(), 27.9);
  EXPECT_EQ(placed.font().pixelSize(), 46);  // 46.5
  SetScale(&ground, {.factor = 0.01, .origin = {}});
  EXPECT_EQ(placed.font().pixelSize(), 1);
  SetScale(&ground, {});
  EXPECT_EQ(ground.font(), groundFont);
  EXPECT_EQ(placed.font(), ownFont);
}

TEST_F(Scaled, AFontGivenAtAScaleHasItsSize) {
  SetScale(&ground, {.factor = 2, .origin = {}});
  QFont font(QStringLiteral("Sans"));
  font.setPixelSize(20);
  SetDesignFont(&placed, font);
  EXPECT_EQ(placed.font().pixelSize(), 40);
  EXPECT_EQ(LettersScaleOf(&placed), 2);
  EXPECT_EQ(LettersScaleOf(&ground), 2);
  SetScale(&ground, {});
  EXPECT_EQ(placed.font().pixelSize(), 20);
}

}  // namespace
}  // namespace bramlee
