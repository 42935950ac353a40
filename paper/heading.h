// The line on top of a page: name, class, date.
#pragma once

#include <QPointF>

#include "paper/worksheet.h"

class QPainter;

namespace bramlee {

/// How much of a page's height the heading takes, with the white below it, in millimetres; 0 for
/// one that is not shown. A long name takes more lines.
double HeadingHeightMm(const Heading& heading, double widthMm);

/// Paints it, `corner` being the upper left end of its room.
void PaintHeading(QPainter& painter, const Heading& heading, const QPointF& corner, double widthMm);

}  // namespace bramlee
