// Distances from ink.
#include "strokes/ink_grid.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace bramlee {
namespace {

/// Points on a slanting line and one far away.
std::vector<Point> SomePoints() {
  std::vector<Point> points;
  for (int i = 0; i < 60; ++i) points.push_back({20.0 + i, 300.0 - 2 * i});
  points.push_back({4000, -900});
  return points;
}

double NearestOf(const std::vector<Point>& points, const Point& place, double reach) {
  double nearest = reach;
  for (const Point& point : points) nearest = std::min(nearest, DistanceBetween(point, place));
  return nearest;
}

TEST(InkGridTest, GivesTheDistanceToTheNearestPoint) {
  const std::vector<Point> points = SomePoints();
  constexpr double kReach = 16;
  const InkGrid grid(points, kReach);
  for (double x = -30; x < 130; x += 3.7) {
    for (double y = 150; y < 340; y += 4.1) {
      const Point place{x, y};
      EXPECT_NEAR(grid.DistanceFrom(place), NearestOf(points, place, kReach), 1e-9);
    }
  }
  EXPECT_NEAR(grid.DistanceFrom({4003, -896}), 5, 1e-9);
}

TEST(InkGridTest, GivesItsReachWhereNothingIsNearer) {
  EXPECT_EQ(InkGrid(SomePoints(), 16).DistanceFrom({-500, 9000}), 16);
  EXPECT_EQ(InkGrid({}, 16).DistanceFrom({3, 4}), 16);
}

TEST(InkGridTest, TakesManyPointsAtOnePlace) {
  const InkGrid grid(std::vector<Point>(5, Point{7, 7}), 10);
  EXPECT_NEAR(grid.DistanceFrom({7, 11}), 4, 1e-9);
}

}  // namespace
}  // namespace bramlee
