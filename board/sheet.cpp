#include "board/sheet.h"

#include <QLineEdit>
#include <QPainter>

#include "shell/numbers.h"

namespace bramlee {

Sheet::Sheet(QWidget* parent)
    : QWidget(parent), dots_(1400, 900, QImage::Format_ARGB32_Premultiplied) {
  dots_.fill(Qt::transparent);
}

Sheet::~Sheet() = default;

void Sheet::PSet(float x, float y) {
  QPainter painter(&dots_);
  painter.setBrush(ColourOf(foreColor_));
  painter.setPen(Qt::NoPen);
  painter.drawEllipse(QPointF(static_cast<double>(x), static_cast<double>(y)), 5, 5);
}

double Sheet::Step() const {
  return stepBox_ == nullptr ? 0.01 : Val(stepBox_->text());
}

void Sheet::SetBackColor(ColourWord colour) {
  backColor_ = ColourOf(colour);
  update();
}

void Sheet::Wipe() {
  dots_.fill(Qt::transparent);
  update();
}

Sheet::Writing::Writing(Sheet& sheet) : sheet_(sheet) {}
Sheet::Writing::~Writing() {
  sheet_.update();
}

void Sheet::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.fillRect(rect(), backColor_);
  painter.drawImage(0, 0, dots_);
}

}  // namespace bramlee
