#include "tools/contact_sheets/word_sheets.h"

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cstdio>
#include <span>

#include "strokes/word.h"
#include "tools/contact_sheets/letter_cell.h"
#include "tools/contact_sheets/print_fonts.h"
#include "tools/contact_sheets/print_sign.h"
#include "tools/contact_sheets/word_clusters.h"

namespace bramlee {
namespace {

constexpr QSize kPair(280, 220);  ///< a cluster, from strokes and in print
constexpr std::size_t kWordRows = 7;

/// Written and printed halves of a cell.
QRectF HalfOf(const QRectF& cell, bool print) {
  const double half = cell.width() / 2;
  return QRectF(cell.x() + (print ? half : 0), cell.y(), half, cell.height())
      .adjusted(12, 30, -12, -12);
}

void DrawWord(QPainter& painter, const Letter& word, const QRectF& room) {
  const Box& box = word.Bounds();
  const double scale =
      std::min(room.width() / std::max(box.width, 1.0), room.height() / std::max(box.height, 1.0));
  painter.save();
  painter.translate(room.center());
  painter.scale(scale, scale);
  painter.translate(-box.x - box.width / 2, -box.y - box.height / 2);
  for (std::size_t i = 0; i < word.Shape().strokes.size(); ++i) {
    DrawStroke(painter, word.Shape().strokes[i], i);
  }
  painter.restore();
}

}  // namespace

bool DrawWordSheets(std::string_view script, const QString& folder) {
  const std::vector<WordCluster> clusters = ClustersOf(script);
  const QString family = PrintFontsOf(script).front();
  const auto second = std::find_if(clusters.begin() + 1, clusters.end(),
                                   [](const WordCluster& each) { return each.bare; });
  const auto columns = static_cast<std::size_t>(second - clusters.begin());
  const std::size_t onASheet = columns * kWordRows;
  for (std::size_t first = 0, number = 1; first < clusters.size(); first += onASheet, ++number) {
    QImage sheet(kPair.width() * static_cast<int>(columns),
                 kPair.height() * static_cast<int>(kWordRows), QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::Antialiasing);
    for (std::size_t i = first; i < std::min(first + onASheet, clusters.size()); ++i) {
      const auto place = static_cast<int>(i - first);
      const int column = place % static_cast<int>(columns);
      const int row = place / static_cast<int>(columns);
      const QRectF cell(QPointF(column * kPair.width(), row * kPair.height()), QSizeF(kPair));
      const QString text = QString::fromStdString(clusters[i].text);
      DrawCaption(painter, text, cell);
      DrawWord(painter, LayWord(clusters[i].text).letter, HalfOf(cell, false));
      DrawSign(painter, text, family, HalfOf(cell, true));
    }
    painter.end();
    const QString file = QStringLiteral("%1/words-%2-%3.png")
                             .arg(folder, QString::fromStdString(std::string(script)))
                             .arg(number);
    if (sheet.save(file)) continue;
    std::fprintf(stderr, "%s cannot be written\n", qPrintable(file));
    return false;
  }
  return true;
}

}  // namespace bramlee
