// The charts: a whole set in rows, each letter with its print.
#include <algorithm>

#include "assets/pictures.h"
#include "letters/letter_names.h"
#include "letters/letter_sets.h"

namespace bramlee {
namespace {

constexpr QSize kChart(1600, 1000);
constexpr double kMargin = 20;

/// The line of lettering in two rows: in one it would be too small to be read.
void DrawLettering(QPainter& painter, const QRectF& card, const QColor& colour) {
  const QString line = QString::fromUtf8(kHindiLettering);
  QRectF row = card.adjusted(card.width() * 0.08, card.height() * 0.12, -card.width() * 0.08, 0);
  row.setHeight(card.height() * 0.38);
  for (const int first : {0, 3}) {
    DrawPrinted(painter, line.section(u' ', first, first + 2), row, Qt::AlignHCenter, colour);
    row.translate(0, row.height());
  }
}

void DrawCard(QPainter& painter, const Subject& subject, int tile) {
  const QRectF card = ChartCard(subject, tile);
  painter.setPen(Qt::NoPen);
  painter.setBrush(subject.ground);
  painter.drawRoundedRect(card, 12, 12);
  if (ShowsLettering(subject.letterSet, tile)) return DrawLettering(painter, card, subject.ink);
  DrawLetter(painter, subject, tile,
             card.adjusted(card.width() * 0.12, card.height() * 0.3, -card.width() * 0.12,
                           -card.height() * 0.08),
             std::min(card.width(), card.height()) * 0.065);
  DrawCornerSign(painter, subject, tile, card);
}

}  // namespace

int ChartTiles(const Subject& subject) {
  return subject.letterSet == "hinc" ? kHindiSetTiles : FindLetterSet(subject.letterSet)->tiles;
}

QRectF ChartCard(const Subject& subject, int tile) {
  const int rows = (ChartTiles(subject) + subject.columns - 1) / subject.columns;
  const double width = (kChart.width() - 2 * kMargin) / subject.columns;
  const double height = (kChart.height() - 2 * kMargin) / rows;
  const int row = (tile - 1) / subject.columns;
  const int column = (tile - 1) % subject.columns;
  const QRectF cell(kMargin + column * width, kMargin + row * height, width, height);
  return cell.adjusted(5, 5, -5, -5);
}

QImage ChartPicture(const Subject& subject) {
  QImage image = Blank(kChart, Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  for (int tile = 1; tile <= ChartTiles(subject); ++tile) DrawCard(painter, subject, tile);
  return image;
}

}  // namespace bramlee
