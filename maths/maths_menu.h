// What the number board, the drills and the tables share: one of them is on at a time, or so the
// menu "&Maths" says by its marks.
#pragma once

#include "board/board.h"

namespace bramlee {

class ResultBox;

/// Hides "&Colors", "&Speed" and "&Draw": while a drill or a table is on, nothing is written.
void HideSheetMenus(Board& board);
void ShowSheetMenus(Board& board);

/// Takes the marks of numbers, tables and the five drills away.
void UncheckMathsMenu(Board& board);

/// The tiles of all digits and signs, and the number box.
void HideDigitTiles(Board& board);
/// Shows them all, the number box over the tile of the plus sign.
void ShowDigitTiles(Board& board);

/// The menu item "&Numbers": back to the number board. A row that is up stays beside the tiles.
void mnunum_Click(Board& board);

/// The controls that drills and tables share: first operand and result.
Combo* FirstOperand(const Board& board);
ResultBox* Result(const Board& board);

/// Puts the cursor into the first operand, so that a drill begins at the keyboard.
void StartAtFirstOperand(Board& board);

}  // namespace bramlee
