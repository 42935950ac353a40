#include "strokes/rules.h"

#include "engine/primitives.h"

namespace bramlee {
namespace {

constexpr int kLines = 5;

/// First and last line of rules 1 to 5.
struct LineRange {
  std::int16_t first;
  std::int16_t last;
};
constexpr LineRange kFirstToLast[] = {
    {4, 4},
    {3, 4},
    {2, 4},
    {2, 5},
    {1, 5}
};

/// The lines of rules 1 to 5, 0 for none: the letter's body lies between lines 2 and 4.
constexpr int kWritingBook[][kLines] = {
    {4, 0, 0, 0, 0},
    {2, 4, 0, 0, 0},
    {2, 3, 4, 0, 0},
    {1, 2, 4, 5, 0},
    {1, 2, 3, 4, 5}
};

void RuleLine(DrawingSurface& sheet, const SheetExtent& extent, int line) {
  LineRight(sheet, extent.left, extent.top + (line - 1) * extent.rowPitch, extent.right);
}

}  // namespace

void DrawGrid(DrawingSurface& sheet, const SheetExtent& extent) {
  double y = extent.top;
  for (int line = 1; line <= kLines; ++line) {
    LineRight(sheet, extent.left, y, extent.right);
    y = y + extent.rowPitch;
  }
  double x = extent.left;
  for (int line = 1; line <= kLines; ++line) {
    LineDown(sheet, x, extent.top, extent.bottom);
    x = x + extent.columnPitch;
  }
}

void DrawRules(DrawingSurface& sheet, const SheetExtent& extent, RuleLines lines,
               std::int16_t& number) {
  if (number < 1 || number > kLines) return;
  if (lines == RuleLines::FirstToLast) {
    const LineRange range = kFirstToLast[number - 1];
    for (number = range.first; number <= range.last; ++number) RuleLine(sheet, extent, number);
    return;
  }
  for (const int line : kWritingBook[number - 1]) {
    if (line != 0) RuleLine(sheet, extent, line);
  }
}

}  // namespace bramlee
