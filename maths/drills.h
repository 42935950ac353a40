// The drills: one row of two numbers, a sign between them and the result, which a click on the
// equals picture reckons. The sign in force is stored nowhere: it is the first that can be seen.
#pragma once

#include "board/board.h"

namespace bramlee {

/// Makes the row's controls, hidden.
void MakeDrillRow(Board& board);

/// The five drills' items at the end of that menu.
void MakeDrillMenu(Board& board, QMenu* menu);

/// picequal_Click: writes the row's result into txtval(20). An operand that is no number turns red,
/// is told of and counts as 0; a number divided by nothing is told of. Where there is no result,
/// or no sign can be seen, the box keeps its text.
void CalcResult(Board& board);

}  // namespace bramlee
