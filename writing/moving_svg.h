// A letter that writes itself, as one small SVG text.
#pragma once

#include <span>
#include <string>

#include "strokes/letter.h"
#include "strokes/stroke_numbers.h"

namespace bramlee {

/// How a letter is shown. Colours are as SVG has them: "#ff0000".
struct MovingSvg {
  Box view;              ///< what is shown of the sheet, in sheet pixels
  int width = 0;         ///< of the picture, in pixels; as high as the view asks
  double penWidth = 10;  ///< in sheet pixels
  std::string ink;
  std::string ground;  ///< empty for none: what is behind shows through
  std::string title;   ///< what a screen reader says, UTF-8
  double rate = 1;     ///< how many times as fast as usual the pen goes, greater than 0
  double rest = 0;     ///< seconds that the whole letter stands before it is written again
  /// Those of the strokes' numbers that are shown, one a stroke; empty for none. A number goes as
  /// its stroke begins and comes back as the letter stands.
  std::span<const StrokeNumber> numbers = {};
  std::string sign;  ///< colour of numbers and arrows
  std::string rim;   ///< around them, and of the digits
};

/// The letter's centre lines drawn by a pen of that width, at the times of its timeline, over and
/// over. No script, no fonts but for numbers; whoever wants no motion sees the whole letter. A
/// letter without strokes is an empty picture.
std::string MovingSvgOf(const Letter& letter, const MovingSvg& look);

}  // namespace bramlee
