#include "maths/result_box.h"

#include <QFontMetrics>
#include <QTextDocument>
#include <algorithm>

namespace bramlee {
namespace {

// Heights of the letters, in pixels.
constexpr int kLargest = 30;
constexpr int kSmallest = 14;

}  // namespace

ResultBox::ResultBox(QWidget* parent) : QPlainTextEdit(parent) {
  setReadOnly(true);
  setTabChangesFocus(true);
  setLineWrapMode(QPlainTextEdit::NoWrap);
}

void ResultBox::SetText(const QString& text) {
  text_ = text;
  setFont(FittingFont(std::max(1, static_cast<int>(text.count(u'\n')))));
  setPlainText(text);
}

QFont ResultBox::FittingFont(int lines) const {
  const double room = height() - 2 * (frameWidth() + document()->documentMargin());
  QFont sized = font();
  for (int pixels = kLargest; pixels >= kSmallest; --pixels) {
    sized.setPixelSize(pixels);
    if (lines * QFontMetrics(sized).lineSpacing() <= room) break;
  }
  return sized;
}

}  // namespace bramlee
