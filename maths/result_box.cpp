#include "maths/result_box.h"

#include <QFontMetricsF>
#include <QTextDocument>
#include <cmath>

#include "ui/scale.h"
#include "ui/twips.h"

namespace bramlee {
namespace {

// Heights of the letters, in pixels as designed.
constexpr int kLargest = 30;
constexpr int kSmallest = 14;

/// Around the text, in pixels as designed; brings a result level with the operands beside it.
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
  SetDesignFont(this, FittingFont(static_cast<int>(text.count(u'\n')) + 1));
  setPlainText(text);
}

void ResultBox::changeEvent(QEvent* event) {
  QPlainTextEdit::changeEvent(event);
  if (event->type() == QEvent::FontChange) {
    document()->setDocumentMargin(kMargin * LettersScaleOf(this));
  }
}

/// Worked out as designed, so that it does not depend on the scale at which the text came.
QFont ResultBox::FittingFont(int lines) const {
  const double room = PixelsOf(PlaceOf(this)).height() - 2 * (frameWidth() + kMargin);
  QFont sized = font();
  for (int pixels = kLargest; pixels >= kSmallest; --pixels) {
    sized.setPixelSize(pixels);
    if (lines * std::ceil(QFontMetricsF(sized).lineSpacing()) <= room) break;
  }
  return sized;
}

}  // namespace bramlee
