// Letters to take away: files for a phone, a slide or a class page.
#pragma once

namespace bramlee {

class Board;

/// Puts strip_export on the board's strip, with the key E: a dialog that writes letters of the
/// board as moving pictures or steps into a folder. It waits while a letter is written.
void AddExport(Board& board);

}  // namespace bramlee
