// Sound cues: one file on the media drive for each letter of each board.
#pragma once

#include <QString>
#include <cstdint>

namespace bramlee {

/// The set number of the board that asks for a cue, 1 to 7. One for the whole program: a board
/// stores it just before the call, and it stays until the next one does.
extern std::int16_t CueBoardNo;

/// Builds the name of the letter's sound file and passes it to the player; a missing file shows
/// the message "path Not Found: " and plays nothing. An unknown set number has an empty path, which
/// counts as missing. Returns 1 when building the name failed, with no message, else 0.
std::int16_t PlayCue(std::int16_t letterNo, std::int16_t cueBoardNo);

/// The complete path of the letter's sound file into `path`: drive and format as the boards' menus
/// stand now. What the set reads from another board loads that board unseen. `path` stays empty
/// for an unknown set number. Returns 1 when the letter has no name or no form to read from, else
/// 0; `path` is then empty.
std::int16_t CuePath(std::int16_t letterNo, std::int16_t cueBoardNo, QString& path);

/// The drive of the set's sounds as the boards' menus stand now: "C:". Loads as CuePath does. Empty
/// for an unknown set number, and when there is no form to read from.
QString CueDrive(std::int16_t cueBoardNo);

/// 1 to 26 gives "a" to "z" and returns 0; any other number returns 1 and leaves `text` alone.
std::int16_t CueLetterChar(std::int16_t letterNo, QString& text);

}  // namespace bramlee
