// The number box: a number picked or typed in it is spoken whole and written digit by digit.
#pragma once

#include "board/board.h"

namespace bramlee {

/// Makes cmb(0), with 0 to 100 in its list and no text. A pick and Return run NumberBox_Click.
void MakeNumberBox(Board& board);

/// Lays it over the top of the plus sign's tile, most of which stays free for a click; as wide as
/// three and a half digit tiles. After the tiles.
void LayOutNumberBox(Board& board);

/// A number was picked or Return pressed in the box: speaks it, if Play is on, and writes it if it
/// has at most 4 characters. Text that is no number turns red. A character that is no digit leaves
/// its place free. Ends quietly on an error, such as a number that does not fit the 16 bits of a
/// sound's number.
void NumberBox_Click(Board& board);

}  // namespace bramlee
