// The drills: one row of two numbers, a sign between them and the result, which a click on the
// equals picture reckons. The sign in force is stored nowhere: it is the first that can be seen.
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
/// turns red, is told of and counts as 0; a number divided by nothing is told of. Where there is no
/// result, or no sign can be seen, the box keeps its text. On an error it ends quietly.
void CalcResult(Board& board);

}  // namespace bramlee
