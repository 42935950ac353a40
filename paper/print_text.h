// Text on paper, in millimetres.
#pragma once

#include <QColor>
#include <QPointF>
#include <QString>

class QPainter;

namespace bramlee {

/// Whether the fonts that there are show every character of the text.
bool CanBeShown(const QString& text);

/// How wide the text is in that size: the height of its letters from line to line.
double TextWidthMm(const QString& text, double sizeMm);

/// Paints one line of text from the left end of its base line; the painter's unit is a millimetre.
void PaintText(QPainter& painter, const QPointF& baseLine, const QString& text, double sizeMm,
               const QColor& colour);

}  // namespace bramlee
