// The pictures and their common look: a white card, a broad pen in the subject's own colour.
#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QRectF>
#include <QString>
#include <span>
#include <string_view>

namespace bramlee {

/// How one subject's pictures look.
struct Subject {
  std::string_view letterSet;
  QSize tile;     ///< pixels of a tile's picture: four to a logical pixel of the tile
  QColor ink;     ///< the letters
  QColor ground;  ///< behind them
  int columns;    ///< letters in a row of the chart
};

/// The subjects in the order of the home form.
std::span<const Subject> Subjects();

/// The tile's letter, as large as `place` allows, its strokes at most `width` wide.
void DrawLetter(QPainter& painter, const Subject& subject, int tile, const QRectF& place,
                double width);

/// Printed text in a font that has the script, as large as `place` allows, `alignment` in it.
void DrawPrinted(QPainter& painter, const QString& text, const QRectF& place,
                 Qt::Alignment alignment, const QColor& colour);

/// An empty picture of that size and colour.
QImage Blank(QSize size, const QColor& ground);

// The pictures, one routine each.
QImage TilePicture(const Subject& subject, int tile);
QImage LetteringPicture();         ///< the line of Devanagari lettering
QImage SetButtonPicture(int set);  ///< the three sets of the Hindi consonants
QImage SignPicture(int tile);      ///< a sign between two operands
QImage TableButtonPicture();       ///< a click makes a multiplication table
QImage ChartPicture(const Subject& subject);
QImage SubjectPicture(const Subject& subject);
QImage IdCardPicture();
QImage SchoolPicture();
QImage IconPicture();

}  // namespace bramlee
