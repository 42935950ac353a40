// One's own voice: a teacher or a parent records the sounds of a board.
#pragma once

namespace bramlee {

class Board;

/// Puts strip_voice on the board's strip, with the key V: a window in which the board's sounds are
/// heard, recorded and given back to the sounds' maker. It waits while a letter is written.
void AddOwnVoice(Board& board);

}  // namespace bramlee
