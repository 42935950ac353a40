// Printed signs beside letters.
#pragma once

#include <QPainter>
#include <QString>
#include <limits>

namespace bramlee {

/// A text of that font in the middle of a room, as large as the room allows; `mostScale` holds a
/// small sign back, 1 being 200 pixels of font. Draws nothing for a text without ink.
void DrawSign(QPainter& painter, const QString& sign, const QString& family, const QRectF& room,
              double mostScale = std::numeric_limits<double>::infinity());

}  // namespace bramlee
