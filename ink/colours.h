// Colours as the boards and forms name them, for Qt.
#pragma once

#include <QColor>

#include "strokes/colour_words.h"

namespace bramlee {

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
