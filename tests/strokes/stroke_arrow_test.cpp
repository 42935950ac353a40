// Arrows along pen strokes.
#include "strokes/stroke_arrow.h"

#include <gtest/gtest.h>

#include <cmath>

namespace bramlee {
namespace {

/// Straight to the right from (100, 50), a point a pixel.
StrokePath PathOfLength(int length) {
  StrokePath path;
  for (int i = 0; i <= length; ++i) path.points.push_back({100.0 + i, 50});
  path.length = length;
  return path;
}

TEST(StrokeArrowTest, LiesOnItsStretchWithItsHeadAtTheEnd) {
  const StrokeArrow arrow =
      ArrowAlong(PathOfLength(60), {.from = 10, .length = 30, .aside = 0, .headHalfWidth = 3});
  ASSERT_TRUE(arrow.IsDrawn());
  EXPECT_EQ(arrow.shaft.front(), (Point{110, 50}));
  EXPECT_EQ(arrow.shaft.back(), (Point{131, 50}));
  EXPECT_EQ(arrow.head[0], (Point{140, 50}));
  EXPECT_EQ(arrow.head[1], (Point{131, 53}));
  EXPECT_EQ(arrow.head[2], (Point{131, 47}));
}

TEST(StrokeArrowTest, LiesToTheRightOfThePensWay) {
  const StrokePath path = PathOfLength(60);
  EXPECT_EQ(ArrowAlong(path, {.length = 30, .aside = 8}).head[0], (Point{130, 58}));
  EXPECT_EQ(ArrowAlong(path, {.length = 30, .aside = -8}).head[0], (Point{130, 42}));
}

TEST(StrokeArrowTest, FollowsABend) {
  StrokePath ring;
  for (int i = 0; i <= 180; ++i) {
    const double angle = i * 3.14159265 / 180;
    ring.points.push_back({200 - 50 * std::cos(angle), 200 - 50 * std::sin(angle)});
  }
  const StrokeArrow arrow = ArrowAlong(ring, {.from = 5, .length = 60, .aside = -10});
  for (const Point& point : arrow.shaft) {
    EXPECT_NEAR(DistanceBetween(point, {200, 200}), 60, 0.1);
  }
  EXPECT_GT(arrow.head[0].x, arrow.shaft.front().x);
}

TEST(StrokeArrowTest, IsAsLongAsAskedOnTheOutsideOfABend) {
  StrokePath ring;
  for (int i = 0; i <= 360; ++i) {
    const double angle = i * 3.14159265 / 180;
    ring.points.push_back({200 - 10 * std::cos(angle), 200 - 10 * std::sin(angle)});
  }
  const StrokeArrow arrow = ArrowAlong(ring, {.from = 0, .length = 20, .aside = -10});
  // a radian of a circle of 20 pixels
  EXPECT_NEAR(DistanceBetween(arrow.shaft.front(), arrow.head[0]), 40 * std::sin(0.5), 0.5);
}

TEST(StrokeArrowTest, IsNotDrawnRoundACorner) {
  StrokePath corner = PathOfLength(30);
  for (int i = 1; i <= 30; ++i) corner.points.push_back({130, 50.0 + i});
  EXPECT_TRUE(ArrowAlong(corner, {.from = 0, .length = 25, .aside = -8}).IsDrawn());
  EXPECT_FALSE(ArrowAlong(corner, {.from = 10, .length = 40, .aside = -12}).IsDrawn());
}

TEST(StrokeArrowTest, IsNotDrawnWhereThePathIsShorter) {
  EXPECT_FALSE(ArrowAlong(PathOfLength(39), {.from = 10, .length = 30}).IsDrawn());
  EXPECT_TRUE(ArrowAlong(PathOfLength(40), {.from = 10, .length = 30}).IsDrawn());
  EXPECT_FALSE(ArrowAlong({}, {.from = 0, .length = 0}).IsDrawn());
}

}  // namespace
}  // namespace bramlee
