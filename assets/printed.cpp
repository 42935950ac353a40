// Print on pictures.
#include <QFontMetricsF>
#include <QPainterPath>
#include <algorithm>

#include "assets/pictures.h"
#include "letters/letter_names.h"

namespace bramlee {
namespace {

/// A font's line in the height of its place.
constexpr double kLineOfPlace = 0.69;

QString FamilyFor(const QString& text) {
  // The font that has the script, named first, so that no other is asked for its shaping.
  switch (text.isEmpty() ? QChar::Script_Latin : text[0].script()) {
    case QChar::Script_Devanagari:
      return QStringLiteral("Lohit Devanagari");
    case QChar::Script_Telugu:
      return QStringLiteral("Lohit Telugu");
    default:
      return QStringLiteral("DejaVu Sans");
  }
}

/// The box of the text's ink about its origin on the line.
QRectF InkOf(const QString& text, const QFont& font) {
  QPainterPath ink;
  ink.addText(0, 0, font, text);
  return ink.boundingRect();
}

/// How far the span from `low` to `high` must move to lie between `least` and `most`.
double ShiftInto(double low, double high, double least, double most) {
  return std::max(least - low, std::min(most - high, 0.0));
}

double LeftFor(Qt::Alignment alignment, double width, const QRectF& place) {
  if (alignment & Qt::AlignLeft) return place.left();
  if (alignment & Qt::AlignRight) return place.right() - width;
  return place.center().x() - width / 2;
}

}  // namespace

QFont PrintedFont(const QString& text, QSizeF room) {
  QFont font(FamilyFor(text));
  font.setHintingPreference(QFont::PreferNoHinting);  // pictures are shown at many sizes
  font.setPixelSize(static_cast<int>(room.height() * kLineOfPlace));
  const QRectF ink = InkOf(text, font);
  const double fit = std::min(room.width() / ink.width(), room.height() / ink.height());
  if (fit < 1) font.setPixelSize(static_cast<int>(font.pixelSize() * fit));
  return font;
}

void DrawPrinted(QPainter& painter, const QString& text, const QRectF& place,
                 Qt::Alignment alignment, const QColor& colour) {
  // By its ink and not by its advance: Telugu signs reach far beyond theirs.
  const QFont font = PrintedFont(text, place.size());
  const QRectF ink = InkOf(text, font);
  const QFontMetricsF metrics(font);
  const double line = place.center().y() + (metrics.ascent() - metrics.descent()) / 2;
  const double down = ShiftInto(line + ink.top(), line + ink.bottom(), place.top(), place.bottom());
  const QPointF origin(LeftFor(alignment, ink.width(), place) - ink.left(), line + down);
  painter.save();
  painter.setFont(font);
  painter.setPen(colour);
  painter.drawText(origin, text);
  painter.restore();
}

QRectF CornerPlace(const QRectF& card) {
  const double margin = card.height() * 0.03;
  return {card.left() + margin, card.top() + margin, card.width() - 2 * margin,
          card.height() * 0.3 - margin};
}

void DrawCornerSign(QPainter& painter, const Subject& subject, int tile, const QRectF& card) {
  const QString sign = QString::fromStdString(PrintedLetter(subject.letterSet, tile, subject.book));
  if (sign.isEmpty()) return;
  DrawPrinted(painter, sign, CornerPlace(card), Qt::AlignRight, kPrintColour);
}

}  // namespace bramlee
