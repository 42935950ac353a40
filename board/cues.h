// Sound cues: one file on the media drive for each letter of each board.
#pragma once

#include <cstdint>

namespace bramlee {

/// The set number of the board that asks for a cue. A board stores it just before the call.
extern std::int16_t CueBoardNo;

/// Builds the name of the letter's sound file and hands it to the player; a missing file gives
/// a message and no sound. Returns 1 when building the name failed, else 0.
std::int16_t PlayCue(std::int16_t letterNo, std::int16_t cueBoardNo);

}  // namespace bramlee
