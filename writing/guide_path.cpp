#include "writing/guide_path.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace bramlee {
namespace {

/// A stroke has at least so many parts, however short it is, and at most so many, however small the
/// letter is beside it.
constexpr double kLeastParts = 16;
constexpr double kMostParts = 20000;

std::vector<Point> InUnits(std::span<const Point> points, double unit) {
  std::vector<Point> scaled;
  scaled.reserve(points.size());
  for (const Point& point : points) {
    const Point inUnits{point.x / unit, point.y / unit};
    if (std::isfinite(inUnits.x) && std::isfinite(inUnits.y)) scaled.push_back(inUnits);
  }
  return scaled;
}

}  // namespace

double LengthOf(std::span<const Point> way) {
  double length = 0;
  for (std::size_t i = 1; i < way.size(); ++i) length += DistanceBetween(way[i - 1], way[i]);
  return length;
}

std::vector<Point> EvenlyAlong(std::span<const Point> way, std::size_t count) {
  std::vector<Point> points;
  if (way.empty()) return points;
  points.reserve(count);
  const double spacing = LengthOf(way) / static_cast<double>(count - 1);
  double passed = 0;  // as far as way[i]
  std::size_t i = 0;
  for (std::size_t k = 0; k + 1 < count; ++k) {
    const double along = spacing * static_cast<double>(k);
    double part = 0;
    while (i + 1 < way.size()) {
      part = DistanceBetween(way[i], way[i + 1]);
      if (passed + part > along) break;
      passed += part;
      ++i;
    }
    if (i + 1 == way.size()) {
      points.push_back(way.back());
      continue;
    }
    const double share = (along - passed) / part;
    points.push_back({way[i].x + (way[i + 1].x - way[i].x) * share,
                      way[i].y + (way[i + 1].y - way[i].y) * share});
  }
  points.push_back(way.back());
  return points;
}

GuidePath::GuidePath(std::span<const Point> points, double unit) : points_(InUnits(points, unit)) {
  const double length = LengthOf(points_);
  if (length <= 0 || !std::isfinite(length)) {
    points_.resize(std::min<std::size_t>(points_.size(), 1));
    return;
  }
  const double parts = std::clamp(std::ceil(length), kLeastParts, kMostParts);
  points_ = EvenlyAlong(points_, static_cast<std::size_t>(parts) + 1);
  spacing_ = length / parts;
}

std::size_t GuidePath::IndexAfter(std::size_t from, double units) const {
  if (units >= Between(from, Last())) return Last();
  return from + static_cast<std::size_t>(std::ceil(units / spacing_));
}

std::size_t GuidePath::NearestTo(const Point& place, std::size_t first, std::size_t last,
                                 double slower) const {
  std::size_t nearest = first;
  double least = std::numeric_limits<double>::infinity();
  double beyond = 0;
  for (std::size_t i = first; i <= last; ++i, beyond += slower * spacing_) {
    const double right = points_[i].x - place.x;
    const double down = points_[i].y - place.y;
    const double squared = right * right + down * down + beyond * beyond;
    if (squared < least) nearest = i, least = squared;
  }
  return nearest;
}

}  // namespace bramlee
