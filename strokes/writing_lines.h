// Where the lines of a writing book run through the letters of a set.
#pragma once

#include <string_view>

#include "engine/stroke_rec.h"

namespace bramlee {

/// Four lines across, in sheet pixels, downward.
struct WritingLines {
  double top = 0;      ///< the highest line
  double middle = 0;   ///< the second
  double base = 0;     ///< what letters stand on
  double foot = 0;     ///< what hangs below the base line ends there
  double bodyTop = 0;  ///< where what a letter's size is measured by begins: one of the upper two

  /// From its top to the base line: the height of a capital, a tall small letter, a digit, and of a
  /// Hindi or Telugu letter without its signs.
  double BodyHeight() const { return base - bodyTop; }
  bool operator==(const WritingLines&) const = default;
};

/// The lines of a set's sheet: rows of it. Small letters, Hindi and Telugu have the rows 1, 2, 4
/// and 5, so that the second line is that of x or the head line; capitals and digits have the rows
/// 2 to 5, with the second line in their middle. A set that does not exist has no lines.
WritingLines WritingLinesOf(std::string_view letterSet);

}  // namespace bramlee
