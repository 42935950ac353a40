#include "maths/result_box.h"

#include <QFontMetricsF>
#include <QTextDocument>
#include <cmath>

namespace bramlee {
namespace {

// Heights of the letters, in pixels.
constexpr int kLargest = 30;
constexpr int kSmallest = 14;

/// Around the text, in pixels; brings a result level with the operands beside it.
constexpr double kMargin = 8;

}  // namespace

ResultBox::ResultBox(QWidget* parent) : QPlainTextEdit(parent) {
  setReadOnly(true);
  setTabChangesFocus(true);
  setLineWrapMode(QPlainTextEdit::NoWrap);
  document()->setDocumentMargin(kMargin);
}

void ResultBox::SetText(const QString& text) {
  text_ = text;
  // The empty line behind a table's last row counts too: without room for it a scroll bar shows.
  setFont(FittingFont(static_cast<int>(text.count(u'\n')) + 1));
  setPlainText(text);
}

QFont ResultBox::FittingFont(int lines) const {
  const double room = height() - 2 * (frameWidth() + kMargin);
  QFont sized = font();
  for (int pixels = kLargest; pixels >= kSmallest; --pixels) {
    sized.setPixelSize(pixels);
    if (lines * std::ceil(QFontMetricsF(sized).lineSpacing()) <= room) break;
  }
  return sized;
}

}  // namespace bramlee
