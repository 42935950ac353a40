// Colours as words: how pages, boards and forms name them.
#pragma once

#include <cstdint>

namespace bramlee {

/// A colour as a word in blue-green-red order: 0x000000FF is red.
using ColourWord = std::uint32_t;

// The grounds of the boards' sheets.
inline constexpr ColourWord kCapitalsGround = 0x00FFFFC0;
inline constexpr ColourWord kGround = 0x00E0E0E0;  ///< of all but the capitals

// The colours on a fresh sheet.
inline constexpr ColourWord kPenColour = 0x000000FF;     ///< of letters: red
inline constexpr ColourWord kRulingColour = 0x00FF0000;  ///< of rules and grid: blue

/// The colours that pen and rules can have, in the order of the colour menus.
inline constexpr ColourWord kMenuColours[] = {0x000000, 0xFF0000, 0x00FF00,
                                              0x0000FF, 0x00FFFF, 0xFFFFFF};

}  // namespace bramlee
