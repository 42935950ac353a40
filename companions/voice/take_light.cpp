#include "companions/voice/take_light.h"

#include <QPainter>

namespace bramlee {
namespace {

constexpr int kPixels = 96;
constexpr double kRim = 5;

const QColor kDark(0x60, 0x30, 0x30);
const QColor kAmber(0xFF, 0xB3, 0x00);
const QColor kRed(0xE5, 0x10, 0x10);

}  // namespace

TakeLight::TakeLight(QWidget* parent) : QWidget(parent) {
  setFixedSize(kPixels, kPixels);
  ShowDark();
}

void TakeLight::Show(State state, int number) {
  state_ = state;
  number_ = number;
  switch (state) {
    case State::Dark:
      setAccessibleName(QStringLiteral("Light: off"));
      break;
    case State::Count:
      setAccessibleName(QStringLiteral("Light: %1").arg(number));
      break;
    case State::Lit:
      setAccessibleName(QStringLiteral("Light: recording"));
      break;
  }
  update();
}

void TakeLight::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF disc = QRectF(rect()).adjusted(kRim, kRim, -kRim, -kRim);
  painter.setPen(QPen(Qt::black, 2));
  painter.setBrush(state_ == State::Lit ? kRed : state_ == State::Count ? kAmber : kDark);
  painter.drawEllipse(disc);
  if (state_ == State::Dark) return;
  QFont font = painter.font();
  font.setBold(true);
  font.setPixelSize(state_ == State::Count ? kPixels / 2 : kPixels / 5);
  painter.setFont(font);
  painter.setPen(state_ == State::Count ? Qt::black : Qt::white);
  painter.drawText(disc, Qt::AlignCenter,
                   state_ == State::Count ? QString::number(number_) : QStringLiteral("REC"));
}

}  // namespace bramlee
