#include "ui/picture_box.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <limits>

#include "ui/scale.h"

namespace bramlee {
namespace {

// In pixels as designed.
constexpr int kRounding = 7;   ///< of the corners
constexpr QSize kFrame(6, 6);  ///< around the picture, both sides together
const QColor kGround(0xFFFFFF);
const QColor kPressedGround(0xFFE082);
const QColor kEdge(0x90A4AE);
const QColor kLitEdge(0xEF6C00);

/// The colour that a picture stands on, so that its card can go on in it: that of its corners, if
/// all are alike.
QColor GroundOf(const QPixmap& picture) {
  if (picture.isNull()) return kGround;
  const QImage image = picture.toImage();
  const int right = image.width() - 1;
  const int bottom = image.height() - 1;
  const QColor ground = image.pixelColor(0, 0);
  const bool alike = ground == image.pixelColor(right, 0) &&
                     ground == image.pixelColor(0, bottom) &&
                     ground == image.pixelColor(right, bottom);
  return alike ? ground : kGround;
}

/// How far `to` lies from `from` for an arrow key; infinity when not in its direction. Along the
/// arrow's own axis a step counts once, off it four times, so that rows and columns are kept to.
double Distance(QPoint from, QPoint to, int key) {
  QPoint way = to - from;
  if (key == Qt::Key_Up || key == Qt::Key_Down) way = way.transposed();
  if (key == Qt::Key_Left || key == Qt::Key_Up) way.setX(-way.x());
  if (way.x() <= 0) return std::numeric_limits<double>::infinity();
  return way.x() + 4.0 * std::abs(way.y());
}

/// The picture beside `box` that the arrow key means, or nullptr.
PictureBox* Neighbour(const PictureBox& box, int key) {
  PictureBox* nearest = nullptr;
  double least = std::numeric_limits<double>::infinity();
  const auto others = box.parentWidget()->findChildren<PictureBox*>(Qt::FindDirectChildrenOnly);
  for (PictureBox* other : others) {
    if (other->isHidden() || !other->isEnabled()) continue;
    const double distance = Distance(box.geometry().center(), other->geometry().center(), key);
    if (distance < least) {
      least = distance;
      nearest = other;
    }
  }
  return nearest;
}

/// How many times as large as designed the box's frame is; as on a board as designed at least, so
/// that no line becomes too thin to be seen.
double FrameScale(const PictureBox& box) {
  return std::max(1.0, ScaleOf(box.parentWidget()).factor);
}

QString LargeNameOf(const QString& resource) {
  return resource.section(u'.', 0, -2) + QStringLiteral("_large.png");
}

bool IsArrow(int key) {
  return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

}  // namespace

PictureBox::PictureBox(QWidget* parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
}

void PictureBox::SetPicture(const QString& resource) {
  SetPicture(QPixmap());
  resource_ = resource;
}

void PictureBox::SetPicture(const QPixmap& picture) {
  resource_.clear();
  picture_ = picture;
  fittedRoom_ = {};
  update();
}

QPixmap PictureBox::Picture() const {
  // Not by QPixmap itself, which would keep the picture in its cache.
  return resource_.isEmpty() ? picture_ : QPixmap::fromImage(QImage(resource_));
}

/// The picture that has pixels enough for the room, as far as there is one.
QPixmap PictureBox::PictureFor(QSize room) const {
  QPixmap picture = Picture();
  const QSize shown = picture.size().scaled(room, Qt::KeepAspectRatio);
  if (resource_.isEmpty() || shown.width() <= picture.width()) return picture;
  const QImage large(LargeNameOf(resource_));
  return large.isNull() ? picture : QPixmap::fromImage(large);
}

/// One scaling a size, not one a frame.
void PictureBox::Fit(QSize room) {
  if (room == fittedRoom_) return;
  fittedRoom_ = room;
  const QPixmap picture = PictureFor(room);
  ground_ = GroundOf(picture);
  fitted_ = picture.isNull() ? picture
                             : picture.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  fitted_.setDevicePixelRatio(devicePixelRatioF());
}

void PictureBox::paintEvent(QPaintEvent* /*event*/) {
  const double scale = FrameScale(*this);
  Fit((size() - kFrame * scale) * devicePixelRatioF());
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const bool lit = isEnabled() && (underMouse() || hasFocus());
  const double edge = (lit ? 3 : 1) * scale;
  const QRectF card = QRectF(rect()).adjusted(edge / 2, edge / 2, -edge / 2, -edge / 2);
  painter.setPen(QPen(lit ? kLitEdge : kEdge, edge));
  painter.setBrush(isDown() ? kPressedGround : ground_);
  painter.drawRoundedRect(card, kRounding * scale, kRounding * scale);
  if (fitted_.isNull()) return;

  const QSizeF shown = fitted_.deviceIndependentSize();
  const double press = isDown() ? scale : 0;  // a pressed tile gives way a little
  painter.drawPixmap(
      QPointF((width() - shown.width()) / 2 + press, (height() - shown.height()) / 2 + press),
      fitted_);
}

void PictureBox::enterEvent(QEnterEvent* event) {
  QAbstractButton::enterEvent(event);
  update();
}

void PictureBox::leaveEvent(QEvent* event) {
  QAbstractButton::leaveEvent(event);
  update();
}

void PictureBox::keyPressEvent(QKeyEvent* event) {
  if (IsArrow(event->key())) {
    if (PictureBox* next = Neighbour(*this, event->key())) next->setFocus(Qt::TabFocusReason);
    return;
  }
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    // A key that is held would go on writing its letter long after it is let go.
    if (!event->isAutoRepeat()) click();
    return;
  }
  QAbstractButton::keyPressEvent(event);
}

}  // namespace bramlee
