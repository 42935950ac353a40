// Where the number of each pen stroke stands, and the arrow that shows which way the stroke goes.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "strokes/letter_shape.h"
#include "strokes/stroke_arrow.h"

namespace bramlee {

/// The hand that writes: it covers what lies below the pen on its own side.
enum class Hand : std::uint8_t { Right, Left };

/// How numbers are to be placed; lengths in sheet pixels.
struct NumberRule {
  double discRadius = 9;    ///< of the disc that holds a number
  double penHalfWidth = 5;  ///< how far ink reaches from a path
  Hand hand = Hand::Right;  ///< numbers and arrows stand away from it where they can
};

/// The number of a pen stroke and its arrow, in sheet pixels.
struct StrokeNumber {
  Point centre;       ///< of the disc
  double radius = 0;  ///< of the disc; 0 for a stroke that plots nothing, which has no number
  /// Along the first stretch of the stroke: beside it where there is room, else on it. Not drawn
  /// for a stroke too short to show a way, such as a dot.
  StrokeArrow arrow;
  /// Whether the disc touches no ink and no other disc, and no other stroke begins as near to it as
  /// its own. Strokes that begin less than kSameBegin apart begin at one place.
  bool clean = false;
};

/// Beginnings nearer than this, in sheet pixels, look like one.
inline constexpr double kSameBegin = 1;

/// Places numbers at the beginnings of a letter's strokes, one for each path in their order. What
/// else stands on the sheet, such as letters near by, is `obstacles`. A number that finds no clean
/// place gets the one that comes nearest to it. The same strokes give the same places.
std::vector<StrokeNumber> PlaceNumbers(std::span<const StrokePath> strokes, const NumberRule& rule,
                                       std::span<const StrokePath> obstacles = {});

}  // namespace bramlee
