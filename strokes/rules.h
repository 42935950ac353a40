// The ruled sheet behind the letters: a grid of cells and one to five ruled lines, written dot
// by dot like a letter.
#pragma once

#include <cstdint>
#include <span>

#include "engine/drawing_surface.h"

namespace bramlee {

/// A sheet's extents, in sheet pixels.
struct SheetExtent {
  double left;
  double right;
  double top;
  double bottom;
  double rowPitch;
  double columnPitch;
};

// From the left edge and the top, as wide and as high as four cells.
inline constexpr SheetExtent kCapitalsExtent{400, 400 + 800, 50, 50 + 400, 100, 200};
inline constexpr SheetExtent kSmallExtent{400, 400 + 800, 50, 50 + 300, 75, 200};
inline constexpr SheetExtent kWideExtent{100, 100 + 1000, 250, 250 + 300, 50 / 2.0 * 3, 250};

/// Which of a sheet's five row lines a rule is made of.
enum class RuleLines : std::uint8_t {
  FirstToLast,  ///< every line from the rule's first to its last
  WritingBook,  ///< the lines of a double-ruled book, some left out
};

/// Five lines across, then five down.
void DrawGrid(DrawingSurface& sheet, const SheetExtent& extent);

/// The lines of rule `number`, 1 to 5; any other number draws nothing. With
/// RuleLines::FirstToLast the number is the loop's counter, so it is changed on return.
void DrawRules(DrawingSurface& sheet, const SheetExtent& extent, RuleLines lines,
               std::int16_t& number);

}  // namespace bramlee
