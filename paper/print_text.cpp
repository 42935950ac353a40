#include "paper/print_text.h"

#include <QFont>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainter>
#include <QTextLayout>
#include <algorithm>

namespace bramlee {
namespace {

/// Fonts come in whole pixels: these make a size of text exact to a thousandth of itself.
constexpr int kFontPixels = 1000;

QFont PrintFont() {
  QFont font;
  font.setPixelSize(kFontPixels);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

}  // namespace

bool CanBeShown(const QString& text) {
  QTextLayout layout(text, PrintFont());
  layout.beginLayout();
  layout.createLine();
  layout.endLayout();
  return std::ranges::all_of(layout.glyphRuns(),
                             [](const QGlyphRun& run) { return !run.glyphIndexes().contains(0); });
}

double TextWidthMm(const QString& text, double sizeMm) {
  return QFontMetricsF(PrintFont()).horizontalAdvance(text) * sizeMm / kFontPixels;
}

void PaintText(QPainter& painter, const QPointF& baseLine, const QString& text, double sizeMm,
               const QColor& colour) {
  painter.save();
  painter.translate(baseLine);
  painter.scale(sizeMm / kFontPixels, sizeMm / kFontPixels);
  painter.setFont(PrintFont());
  painter.setPen(colour);
  painter.drawText(QPointF(0, 0), text);
  painter.restore();
}

}  // namespace bramlee
