// A letter's geometry: points along its pen strokes, bounds and lengths.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "engine/run.h"
#include "strokes/pen_strokes.h"

namespace bramlee {

/// A place on the sheet, in sheet pixels, Y downward.
struct Point {
  double x = 0;
  double y = 0;
  bool operator==(const Point&) const = default;
};

/// The place of a dot as the sheet has it: in single precision.
inline Point AsPlotted(double x, double y) {
  return {static_cast<double>(static_cast<float>(x)), static_cast<double>(static_cast<float>(y))};
}

double DistanceBetween(const Point& a, const Point& b);

/// The point so many times `by` away.
Point Moved(const Point& point, const Point& by, double times);

/// A rectangle on the sheet; all zeros for one around nothing.
struct Box {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;
  bool operator==(const Box&) const = default;
};

/// The way of the pen in one stroke.
struct StrokePath {
  std::vector<Point> points;  ///< in the direction of the pen, about one sheet pixel apart
  double length = 0;          ///< from point to point, in sheet pixels
  bool closed = false;        ///< whether it ends where it began, as a ring does
};

struct LetterShape {
  std::vector<StrokePath> strokes;  ///< one a pen stroke, in writing order
  Box bounds;                       ///< around all dots, without the pen's width
  double length = 0;                ///< of all strokes together
};

/// Around all dots of the runs as plotted at that step, without the pen's width; nothing when they
/// plot none.
std::optional<Box> BoundsOf(std::span<const Run> runs, double step);

/// Works out the shape of pen strokes at kUsualStep. The points are dots of the runs, the first and
/// last of each stroke among them; where a run goes on at a distance from the one before, they lie
/// on the straight line between.
LetterShape ShapeOf(std::span<const Run> runs, std::span<const PenStroke> strokes);

}  // namespace bramlee
