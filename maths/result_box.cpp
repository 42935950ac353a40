#include "maths/result_box.h"

#include <QFontMetricsF>
#include <QTextDocument>
#include <algorithm>
#include <cmath>

namespace bramlee {
namespace {

// Heights of the letters, in pixels.
constexpr int kLargest = 30;
constexpr int kSmallest = 14;

/// Around the text, in pixels; brings a result level with the operands beside it.
constexpr double kMargin = 8;

const QString kRowEnd = QStringLiteral("\r\n");

}  // namespace

ResultBox::ResultBox(QWidget* parent) : QPlainTextEdit(parent) {
  setReadOnly(true);
  setTabChangesFocus(true);
  setLineWrapMode(QPlainTextEdit::NoWrap);
  document()->setDocumentMargin(kMargin);
}

void ResultBox::SetText(const QString& text) {
  text_ = text;
  setFont(FittingFont(std::max(1, static_cast<int>(text.count(u'\n')))));
  // An empty line behind the last row would ask for a scroll bar with nothing to scroll to.
  const bool ended = text.endsWith(kRowEnd);
  setPlainText(ended ? text.chopped(kRowEnd.size()) : text);
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
