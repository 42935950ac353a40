// The letters of the book: a switch for all boards.
#pragma once

namespace bramlee {

class Board;

/// Puts strip_book on the board's strip, with the key B. Off at first; what was chosen lasts.
void AddBookSwitch(Board& board);

}  // namespace bramlee
