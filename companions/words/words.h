// Words on a board: a teacher types one, or takes the child's name from the card, and the pen
// writes it as it writes a letter.
#pragma once

namespace bramlee {

class Board;

/// The choice that the head line is drawn over each letter, false at first.
inline constexpr char kPerLetterChoice[] = "words/headPerLetter";

/// The companion: a button "strip_words" on the strip that opens a window to type in. Writing a
/// word wipes the sheet as a group's first tile does; a text without a single letter to write
/// leaves it alone.
void AddWords(Board& board);

}  // namespace bramlee
