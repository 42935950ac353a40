// Boards that fit their window.
#pragma once

namespace bramlee {

class Board;

/// Puts strip_fit on the board's strip, with the key F: the whole board is scaled to its window, or
/// stands as designed. That lasts, and all boards follow; off at first.
void AddFitting(Board& board);

}  // namespace bramlee
