// An arrow along a pen stroke.
#pragma once

#include <array>
#include <vector>

#include "strokes/letter_shape.h"

namespace bramlee {

/// An arrow, in sheet pixels.
struct StrokeArrow {
  std::vector<Point> shaft;     ///< from the tail to where the head begins
  std::array<Point, 3> head{};  ///< the tip and the two corners behind it
  bool IsDrawn() const { return !shaft.empty(); }
};

/// Where an arrow lies; lengths in sheet pixels.
struct ArrowRule {
  double from = 0;           ///< where it begins: so far along the path
  double length = 0;         ///< of the arrow itself
  double aside = 0;          ///< how far to the right of the pen's way; negative: to the left
  double headHalfWidth = 3;  ///< the head is three times as long
};

/// The arrow along the path from there on. Not drawn where the path ends before the arrow or turns
/// round a corner beside it.
StrokeArrow ArrowAlong(const StrokePath& path, const ArrowRule& rule);

}  // namespace bramlee
