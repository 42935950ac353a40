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
  double bodyTop = 0;  ///< where the body of a letter begins: one of the upper two

  /// From its top to the base line.
  double BodyHeight() const { return base - bodyTop; }
  bool operator==(const WritingLines&) const = default;
};

/// The lines of a set's sheet. Its body lies between the rows 2 and 4. Small letters, Hindi and
/// Telugu have a line above that, for what rises over the body; capitals and digits have one in the
/// body's middle instead. A set that does not exist has no lines.
WritingLines WritingLinesOf(std::string_view letterSet);

}  // namespace bramlee
