// Multiplication tables: twenty rows of text for a chosen number.
#pragma once

#include "board/board.h"

namespace bramlee {

/// Makes pict, hidden. After the drills' row, whose first number and result box it uses.
void MakeTablePicture(Board& board);

/// "&ShowTables" with "&Tables" in that menu. A pick shows the table's controls along the top in
/// the tiles' place, or, when it was marked, hides them and shows the tiles.
void MakeTableMenu(Board& board, QMenu* menu);

/// The click on pict: writes the table of the number in cmb(16) into txtval(20), which grows to
/// 7600 twips to show it. A text that is no number counts as 0. Where a product is too large for a
/// double the box keeps its text and is 2000 twips high.
void pict_Click(Board& board);

}  // namespace bramlee
