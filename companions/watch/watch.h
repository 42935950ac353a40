// The hand that a teacher keeps on the pen: pause, strokes back and on, again, speed.
#pragma once

namespace bramlee {

class Board;

/// Puts strip_back, strip_pause, strip_on, strip_again and strip_speed on the board's strip, with
/// the keys Left, Space, Right and R while a letter is written; R also when none is.
void AddWatching(Board& board);

}  // namespace bramlee
