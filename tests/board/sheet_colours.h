// Colours of tests that have a sheet without a board, as words.
#pragma once

#include "ink/colours.h"

namespace bramlee {

inline constexpr ColourWord kSheetGround = 0x00FFFFC0;
inline constexpr ColourWord kRedWord = 0x0000FF;
inline constexpr ColourWord kBlueWord = 0xFF0000;

}  // namespace bramlee
