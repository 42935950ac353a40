#include "board/sheet.h"

#include <QLineEdit>
#include <QPaintEvent>
#include <QPainter>
#include <cmath>
#include <utility>

#include "files/numbers.h"
#include "ui/scale.h"

namespace bramlee {

Sheet::Sheet(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void Sheet::EndRun() {
  ink_.EndRun();
  if (!shownByCaller_) update();
}

bool Sheet::RewindTo(SurfaceMark mark) {
  const bool there = ink_.RewindTo(mark);
  if (there) update();
  return there;
}

void Sheet::SetStepBox(QLineEdit* txtspd) {
  stepBox_ = txtspd;
  connect(stepBox_, &QLineEdit::textChanged, this, &Sheet::TakeStep);
  TakeStep(stepBox_->text());
}

void Sheet::TakeStep(const QString& text) {
  const double step = Val(text);
  if (!IsNumeric(text) || !std::isfinite(step) || step < kSmallestStep) {
    stepBox_->setText(stepText_);
    return;
  }
  stepText_ = text;
  ink_.SetStep(step);
}

void Sheet::SetBackColor(ColourWord colour) {
  backColor_ = ColourOf(colour);
  update();
}

void Sheet::SetForeColor(ColourWord colour) {
  foreColor_ = colour;
  SetPen(colour);
}

void Sheet::Wipe() {
  ink_.Wipe();
  if (!shown_.isNull()) shown_.fill(backColor_);
  update();
}

void Sheet::UpdateBeneath() {
  shownGround_.reset();
  update();
}

void Sheet::ShowNewDots() {
  const QRect dirty = Refresh();
  if (!dirty.isEmpty()) repaint(dirty);
}

QTransform Sheet::FromSheet() const {
  const Scale scale = ScaleOf(this);
  return QTransform::fromTranslate(scale.origin.x(), scale.origin.y())
      .scale(scale.factor, scale.factor);
}

/// Makes ready all that the sheet is shown with; returns false when there is no memory for it.
bool Sheet::MakeReady() {
  // Dots are stamped as large as they are seen: a picture that is scaled would not be sharp.
  const QRectF area = FromSheet().inverted().mapRect(QRectF(rect()));
  const double ratio = devicePixelRatioF() * ScaleOf(this).factor;
  const QSize size = Ink::SizeOf(area, ratio);
  if (shown_.size() == size) return ink_.Cover(area, ratio);
  QImage picture(size, QImage::Format_RGB32);
  if (picture.isNull() || !ink_.Cover(area, ratio)) return false;
  shown_ = std::move(picture);
  shownGround_.reset();
  return true;
}

/// `part` in device pixels.
void Sheet::PaintBeneath(const QRect& part) {
  if (beneath_.empty() || part.isEmpty()) return;
  QPainter painter(&shown_);
  const double ratio = shown_.devicePixelRatio();
  painter.setClipRect(
      QRectF(part.x() / ratio, part.y() / ratio, part.width() / ratio, part.height() / ratio));
  painter.setTransform(FromSheet());
  for (const SheetLayer* layer : beneath_) layer->Paint(painter);
}

/// Brings what is shown up to date; returns around what has changed, in logical pixels. Where the
/// memory has run out the last picture stays, until a later call finds some.
QRect Sheet::Refresh() {
  if (!MakeReady()) return {};
  const double ratio = devicePixelRatioF();
  QRect dirty = ink_.TakeDirty();
  if (shownGround_ != backColor_) dirty = shown_.rect();
  shownGround_ = backColor_;
  shown_.setDevicePixelRatio(ratio);
  FillPart(shown_, dirty, backColor_);
  PaintBeneath(dirty);
  ink_.Compose(shown_, dirty);
  return QRectF(dirty.x() / ratio, dirty.y() / ratio, dirty.width() / ratio, dirty.height() / ratio)
      .toAlignedRect();
}

void Sheet::paintEvent(QPaintEvent* event) {
  // What brings this paint may be something else, a window that goes: dots that are new by now
  // and lie elsewhere would never be seen.
  const QRegion unseen = QRegion(Refresh()) - event->region();
  if (!unseen.isEmpty()) update(unseen);
  QPainter painter(this);
  painter.setClipRegion(event->region());
  const QRectF picture(QPointF(), shown_.deviceIndependentSize());
  if (!picture.contains(rect())) painter.fillRect(rect(), backColor_);
  painter.drawImage(0, 0, shown_);
  painter.setTransform(FromSheet());
  for (const SheetLayer* layer : above_) layer->Paint(painter);
}

}  // namespace bramlee
