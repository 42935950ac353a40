// Finds how far a place lies from ink.
#pragma once

#include <cstddef>
#include <vector>

#include "strokes/letter_shape.h"

namespace bramlee {

/// Points sorted into square cells, so that only those near a place are looked at.
class InkGrid {
 public:
  /// `reach`: the longest distance that is asked for, in sheet pixels, greater than 0. All points
  /// are finite.
  InkGrid(const std::vector<Point>& points, double reach);

  /// From the place to the nearest point, in sheet pixels; the reach where none is nearer.
  double DistanceFrom(const Point& place) const;

 private:
  /// The number of the cell that holds this distance from the first one, of so many.
  std::size_t CellAt(double distance, std::size_t cells) const;
  std::size_t CellOf(const Point& point) const;

  double reach_;
  double cellSize_;
  double left_ = 0;
  double top_ = 0;
  std::size_t columns_ = 1;
  std::size_t rows_ = 1;
  std::vector<Point> points_;        ///< cell by cell, row by row
  std::vector<std::size_t> firsts_;  ///< where each cell's points begin, and the end
};

}  // namespace bramlee
