// The numbers and arrows of pen strokes, painted.
#pragma once

#include <QColor>

#include "strokes/stroke_numbers.h"

class QPainter;

namespace bramlee {

struct SignColours {
  QColor sign{0x26, 0x32, 0x38};  ///< of arrow and disc
  QColor rim{Qt::white};          ///< around both, so that they stand out on ink, and of the digits
};

// Painted in sheet pixels, with whatever hints the painter has; its pen and brush are others then.

/// Paints an arrow, or nothing for one that is not drawn.
void PaintArrow(QPainter& painter, const StrokeArrow& arrow, const SignColours& colours);

/// Paints the arrow and, above it, the number in its disc; nothing for a stroke without a number.
/// Numbers from 0 to 99. The digits are those that the boards' own pen writes.
void PaintNumber(QPainter& painter, int number, const StrokeNumber& place,
                 const SignColours& colours);

}  // namespace bramlee
