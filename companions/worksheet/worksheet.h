// Worksheets to print: what a board's letters become on paper.
#pragma once

namespace bramlee {

class Board;

/// Puts strip_sheets on the board's strip, with the key Ctrl+P. It opens the dialog `worksheet`
/// (worksheet_dialog.h); while a letter is written, as soon as that stands.
void AddWorksheets(Board& board);

}  // namespace bramlee
