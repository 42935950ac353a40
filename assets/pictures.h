// The pictures and their common look: a white card, a broad pen in the subject's own colour.
#pragma once

#include <QColor>
#include <QFont>
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
  QSize tile;         ///< pixels of a tile's picture: four to a pixel of the tile as designed
  QColor ink;         ///< the letters
  QColor ground;      ///< behind them
  int columns;        ///< letters in a row of the chart
  bool book = false;  ///< whether the letters are those of the book
};

/// The subjects in the order of the home form.
std::span<const Subject> Subjects();

/// The tile's letter, as large as `place` allows, its strokes at most `width` wide.
void DrawLetter(QPainter& painter, const Subject& subject, int tile, const QRectF& place,
                double width);

/// The colour of print beside a letter.
inline constexpr QColor kPrintColour(0x37, 0x47, 0x4F);

/// The font that has the text's script, so large that all ink of the text fits `room` but for
/// parts of a pixel; its lines are at most 0.69 of the room's height.
QFont PrintedFont(const QString& text, QSizeF room);

/// Printed text with all its ink within `place`: at its left, right or middle as `alignment`
/// says, and in the middle of its height as far as the ink lets it.
void DrawPrinted(QPainter& painter, const QString& text, const QRectF& place,
                 Qt::Alignment alignment, const QColor& colour);

/// Where the tile's letter stands in print on a card: along its upper edge.
QRectF CornerPlace(const QRectF& card);
/// The tile's letter in print in the upper right corner of that card.
void DrawCornerSign(QPainter& painter, const Subject& subject, int tile, const QRectF& card);

/// An empty picture of that size and colour.
QImage Blank(QSize size, const QColor& ground);

/// How many letters the subject's chart shows, as a book would: of the Hindi consonants the whole
/// ones.
int ChartTiles(const Subject& subject);
/// The card of that tile on the chart, in the chart's pixels.
QRectF ChartCard(const Subject& subject, int tile);

// The pictures, one routine each.

// Those that stand on a board, with `larger` times as many pixels each way.
QImage TilePicture(const Subject& subject, int tile, double larger = 1);
QImage LetteringPicture(double larger = 1);           ///< the line of Devanagari lettering
QImage SetButtonPicture(int set, double larger = 1);  ///< the three sets of the Hindi consonants
QImage SignPicture(int tile, double larger = 1);      ///< a sign between two operands
QImage TableButtonPicture(double larger = 1);         ///< a click makes a multiplication table

QImage ChartPicture(const Subject& subject);
QImage SubjectPicture(const Subject& subject);
QImage IdCardPicture();
QImage SchoolPicture();
QImage IconPicture();

}  // namespace bramlee
