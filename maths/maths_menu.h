// What the number board, the drills and the tables share. The menu "&Maths" marks one of them at a
// time.
#pragma once

#include "board/board.h"

namespace bramlee {

class ResultBox;

/// Hides "&Colors", "&Speed" and "&Draw": while a drill or a table is on, nothing is written.
void HideSheetMenus(Board& board);
/// Shows them again.
void ShowSheetMenus(Board& board);

/// Takes the marks of numbers, tables and the five drills away.
void UncheckMathsMenu(Board& board);

/// Hides the tiles of all digits and signs, and the number box.
void HideDigitTiles(Board& board);
/// Shows them all, the number box's left edge on that of the plus sign's tile.
void ShowDigitTiles(Board& board);

/// The menu item "&Numbers": shows the number tiles. A drill's row that is shown stays beside them.
void mnunum_Click(Board& board);

// The controls that drills and tables share: cmb(16) and txtval(20). MakeDrillRow makes them.
Combo* FirstOperand(const Board& board);
ResultBox* Result(const Board& board);

/// Puts the cursor into the first operand, so that a drill begins at the keyboard.
void StartAtFirstOperand(Board& board);

}  // namespace bramlee
