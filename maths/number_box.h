// The number box: a number picked or typed in it is spoken whole and written digit by digit.
#pragma once

#include "board/board.h"

namespace bramlee {

/// Makes cmb(0), with 0 to 100 in its list.
void MakeNumberBox(Board& board);

/// Lays it over the top of the tile of the plus sign, most of which stays free for a click.
void LayOutNumberBox(Board& board);

/// A number was picked or its Return pressed: speaks it, if Play is on, and writes it if it has
/// at most 4 characters. Text that is no number turns red. A character that is no digit keeps its
/// place free.
void NumberBox_Click(Board& board);

}  // namespace bramlee
