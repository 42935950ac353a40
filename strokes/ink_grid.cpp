#include "strokes/ink_grid.h"

#include <algorithm>
#include <cmath>

namespace bramlee {
namespace {

/// As many cells a side at most: points far apart are no reason for a large table.
constexpr double kMostCells = 128;

}  // namespace

InkGrid::InkGrid(const std::vector<Point>& points, double reach) : reach_(reach), cellSize_(reach) {
  if (!points.empty()) {
    const auto [left, right] = std::ranges::minmax(points, {}, &Point::x);
    const auto [top, bottom] = std::ranges::minmax(points, {}, &Point::y);
    left_ = left.x, top_ = top.y;
    const double width = right.x - left.x, height = bottom.y - top.y;
    cellSize_ = std::max({reach, width / kMostCells, height / kMostCells});
    columns_ = static_cast<std::size_t>(width / cellSize_) + 1;
    rows_ = static_cast<std::size_t>(height / cellSize_) + 1;
  }
  firsts_.resize(columns_ * rows_ + 1);
  for (const Point& point : points) ++firsts_[CellOf(point) + 1];
  for (std::size_t i = 1; i < firsts_.size(); ++i) firsts_[i] += firsts_[i - 1];
  points_.resize(points.size());
  std::vector<std::size_t> next(firsts_);
  for (const Point& point : points) points_[next[CellOf(point)]++] = point;
}

std::size_t InkGrid::CellAt(double distance, std::size_t cells) const {
  return static_cast<std::size_t>(
      std::clamp(distance / cellSize_, 0.0, static_cast<double>(cells - 1)));
}

std::size_t InkGrid::CellOf(const Point& point) const {
  return CellAt(point.y - top_, rows_) * columns_ + CellAt(point.x - left_, columns_);
}

double InkGrid::DistanceFrom(const Point& place) const {
  double nearest = reach_ * reach_;  // squared
  const std::size_t firstColumn = CellAt(place.x - reach_ - left_, columns_);
  const std::size_t lastColumn = CellAt(place.x + reach_ - left_, columns_);
  const std::size_t lastRow = CellAt(place.y + reach_ - top_, rows_);
  for (std::size_t row = CellAt(place.y - reach_ - top_, rows_); row <= lastRow; ++row) {
    const std::size_t end = firsts_[row * columns_ + lastColumn + 1];
    for (std::size_t i = firsts_[row * columns_ + firstColumn]; i < end; ++i) {
      const double right = points_[i].x - place.x, down = points_[i].y - place.y;
      nearest = std::min(nearest, right * right + down * down);
    }
  }
  return std::sqrt(nearest);
}

}  // namespace bramlee
