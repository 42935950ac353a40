#include "companions/worksheet/page_preview.h"

#include <QKeyEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <utility>

namespace bramlee {
namespace {

const QColor kGround(0x9E, 0xA7, 0xAC);
const QColor kShadow(0x6B, 0x75, 0x7A);
const QColor kFocus(0xEF, 0x6C, 0x00);
constexpr int kMargin = 12;  ///< around the page, in logical pixels
constexpr int kShadowPixels = 3;
constexpr int kNotch = 120;  ///< of the wheel, in eighths of a degree

}  // namespace

PagePreview::PagePreview(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  Rename();
}

void PagePreview::Show(int pages, const QSizeF& pageSize, PaintPage paint) {
  pages_ = pages;
  pageSize_ = pageSize;
  paint_ = std::move(paint);
  page_ = std::clamp(page_, 0, std::max(0, pages_ - 1));
  picture_ = QImage();
  Rename();
  update();
  Q_EMIT Turned();
}

void PagePreview::ShowWhyNot(const QString& why) {
  whyNot_ = why;
  Show(0, {}, {});
}

void PagePreview::TurnTo(int page) {
  page = std::clamp(page, 0, std::max(0, pages_ - 1));
  if (page == page_) return;
  page_ = page;
  picture_ = QImage();
  Rename();
  update();
  Q_EMIT Turned();
}

/// So that who cannot see the page hears which one it is.
void PagePreview::Rename() {
  setAccessibleName(pages_ == 0
                        ? QStringLiteral("Preview: no page")
                        : QStringLiteral("Preview: page %1 of %2").arg(page_ + 1).arg(pages_));
}

QRectF PagePreview::PlaceOfPage() const {
  if (pages_ == 0 || pageSize_.isEmpty()) return {};
  const QRectF room = QRectF(rect()).adjusted(kMargin, kMargin, -kMargin, -kMargin);
  const QSizeF size = pageSize_.scaled(room.size(), Qt::KeepAspectRatio);
  QRectF place(QPointF(), QSizeF(qRound(size.width()), qRound(size.height())));
  place.moveCenter(room.center());
  return {place.topLeft().toPoint(), place.size()};
}

const QImage& PagePreview::Picture(QSize pixels) {
  if (picture_.size() == pixels) return picture_;
  picture_ = QImage(pixels, QImage::Format_RGB32);
  picture_.fill(Qt::white);
  QPainter painter(&picture_);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  paint_(painter, QRectF(QPointF(), QSizeF(pixels)), page_);
  return picture_;
}

void PagePreview::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), kGround);
  const QRectF place = PlaceOfPage();
  if (!place.isEmpty()) {
    painter.fillRect(place.translated(kShadowPixels, kShadowPixels), kShadow);
    painter.drawImage(place, Picture((place.size() * devicePixelRatioF()).toSize()));
  } else {
    painter.setPen(Qt::black);
    painter.drawText(rect().adjusted(kMargin, kMargin, -kMargin, -kMargin),
                     Qt::AlignCenter | Qt::TextWordWrap, whyNot_);
  }
  if (!hasFocus()) return;
  painter.setPen(QPen(kFocus, 2));
  painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void PagePreview::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_PageUp:
      return TurnTo(page_ - 1);
    case Qt::Key_PageDown:
      return TurnTo(page_ + 1);
    case Qt::Key_Home:
      return TurnTo(0);
    case Qt::Key_End:
      return TurnTo(pages_ - 1);
    default:
      QWidget::keyPressEvent(event);
  }
}

void PagePreview::wheelEvent(QWheelEvent* event) {
  wheel_ += event->angleDelta().y();
  const int notches = wheel_ / kNotch;
  wheel_ -= notches * kNotch;
  TurnTo(page_ - notches);
}

}  // namespace bramlee
