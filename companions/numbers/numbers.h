// The order of the strokes, seen over the sheet: numbers and arrows.
#pragma once

namespace bramlee {

class Board;

/// Puts strip_numbers on the board's strip, with the key N. While it is on, the letters on the
/// sheet have their strokes' numbers and arrows over them; while a letter is written or stands
/// half-way, those of its strokes to come alone. Off at first; the choice lasts.
void AddNumbers(Board& board);

}  // namespace bramlee
