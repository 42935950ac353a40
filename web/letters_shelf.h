// The letters that the page holds.
#pragma once

#include "strokes/letter.h"
#include "strokes/stroke_numbers.h"
#include "web/result.h"
#include "web/shelf.h"

namespace bramlee {

Shelf<Letter>& LettersOfPage();

/// Adds how many points the shaft has (0: no arrow), the points, then tip and two corners of the
/// head.
void AddArrow(Result& result, const StrokeArrow& arrow);
/// Adds x, y, radius, whether it is clean, then the arrow.
void AddNumber(Result& result, const StrokeNumber& number);

/// The hand that an argument stands for.
inline Hand HandOf(int leftHand) {
  return leftHand != 0 ? Hand::Left : Hand::Right;
}

}  // namespace bramlee
