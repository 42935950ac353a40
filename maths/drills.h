// The drills: one row of two numbers, a sign between them and the result, which a click on the
// equals picture computes. No variable keeps the sign in force: it is the first visible picture.
#pragma once

#include "board/board.h"

namespace bramlee {

/// Makes the row's controls, hidden: cmb(16), pic1(11) to pic1(15), cmb(18), picequal and
/// txtval(20). After the tiles, in front of which it lies when both are shown.
void MakeDrillRow(Board& board);

/// The five drills' items at the end of that menu. A pick shows the drill's row in the tiles'
/// place, or, when it was marked, hides it and shows the tiles; on an error it ends quietly.
void MakeDrillMenu(Board& board, QMenu* menu);

/// The click on picequal: writes the row's result into txtval(20). An operand that is no number
/// turns red, shows "Enter Number" and counts as 0; a number divided by 0 shows "Infinity". Without
/// a result, or without a visible sign, the box keeps its text. Ends quietly on an error.
void CalcResult(Board& board);

}  // namespace bramlee
