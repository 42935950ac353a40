// Worksheets to print: what a board's letters become on paper.
#pragma once

class QString;

namespace bramlee {

class Board;

/// Puts strip_sheets on the board's strip, with the key Ctrl+P. It opens the dialog `worksheet`
/// (worksheet_dialog.h); while a letter is written, as soon as that stands.
void AddWorksheets(Board& board);

/// Whether the board has worksheets.
bool HasWorksheets(const Board& board);

/// Opens the dialog with these words in it, commas between them, and presses its Print; while a
/// letter is written, as soon as that stands. Does nothing on a board without worksheets.
void PrintWords(Board& board, const QString& words);

}  // namespace bramlee
