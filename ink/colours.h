// Colours as the boards and forms name them.
#pragma once

#include <QColor>
#include <cstdint>

namespace bramlee {

/// A colour as a word in blue-green-red order: 0x000000FF is red.
using ColourWord = std::uint32_t;

// The grounds of the boards' sheets.
inline constexpr ColourWord kCapitalsGround = 0x00FFFFC0;
inline constexpr ColourWord kGround = 0x00E0E0E0;  ///< of all but the capitals

/// The pen's colour on a fresh sheet: red.
inline constexpr ColourWord kPenColour = 0x000000FF;

inline QColor ColourOf(ColourWord word) {
  return {static_cast<int>(word & 0xFF), static_cast<int>(word >> 8 & 0xFF),
          static_cast<int>(word >> 16 & 0xFF)};
}

/// Without the colour's transparency.
inline ColourWord WordOf(const QColor& colour) {
  return static_cast<ColourWord>(colour.red()) | static_cast<ColourWord>(colour.green()) << 8 |
         static_cast<ColourWord>(colour.blue()) << 16;
}

}  // namespace bramlee
