// The charts: a whole set in rows, each letter with its print.
#include <cmath>

#include "assets/pictures.h"
#include "letters/letter_names.h"
#include "letters/letter_sets.h"

namespace bramlee {
namespace {

constexpr QSize kChart(1600, 1000);
constexpr double kMargin = 20;

/// A chart shows the letters that a book would: of the Hindi consonants the whole ones.
int ChartTiles(const Subject& subject) {
  return subject.letterSet == "hinc" ? kHindiSetTiles : FindLetterSet(subject.letterSet)->tiles;
}

}  // namespace

QImage ChartPicture(const Subject& subject) {
  QImage image = Blank(kChart, Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  const int tiles = ChartTiles(subject);
  const int rows = (tiles + subject.columns - 1) / subject.columns;
  const double width = (kChart.width() - 2 * kMargin) / subject.columns;
  const double height = (kChart.height() - 2 * kMargin) / rows;
  for (int tile = 1; tile <= tiles; ++tile) {
    const int row = (tile - 1) / subject.columns;
    const int column = (tile - 1) % subject.columns;
    const QRectF cell(kMargin + column * width, kMargin + row * height, width, height);
    const QRectF card = cell.adjusted(5, 5, -5, -5);
    painter.setPen(Qt::NoPen);
    painter.setBrush(subject.ground);
    painter.drawRoundedRect(card, 12, 12);
    DrawLetter(painter, subject, tile,
               card.adjusted(card.width() * 0.12, card.height() * 0.3, -card.width() * 0.12,
                             -card.height() * 0.08),
               std::min(card.width(), card.height()) * 0.065);
    DrawPrinted(painter, QString::fromStdString(PrintedLetter(subject.letterSet, tile)),
                QRectF(card.left(), card.top(), card.width() - 8, card.height() * 0.3),
                Qt::AlignRight | Qt::AlignVCenter, QColor(0x37474F));
  }
  return image;
}

}  // namespace bramlee
