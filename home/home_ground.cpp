#include "home/home_ground.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>

namespace bramlee {
namespace {

constexpr double kDrawingWidth = 110;
constexpr double kDrawingHeight = 80;
constexpr int kLeastRoom = 60;  ///< pixels, either way
constexpr QPointF kTip{58, 68};
constexpr double kLean = -52;  ///< of the pencil, in degrees

/// Three loops, as a child begins to write, up to the pencil's tip.
void DrawLoops(QPainter& painter) {
  QPainterPath loops(QPointF(2, 70));
  for (int i = 0; i < 3; ++i) {
    const double x = 2 + 18 * i;
    loops.cubicTo(x + 14, 66, x + 20, 40, x + 10, 40);
    loops.cubicTo(x + 1, 40, x + 4, 70, x + 18, 69);
  }
  loops.lineTo(kTip);
  painter.setPen(QPen(QColor(0x7FB2DC), 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(loops);
}

/// Lies along the x axis, its tip at 0.
void DrawPencil(QPainter& painter) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0xF3D9B1));  // wood
  painter.drawPolygon(QPolygonF({
      {0,  0 },
      {15, -6},
      {15, 6 }
  }));
  painter.setBrush(QColor(0x455A64));  // lead
  painter.drawPolygon(QPolygonF({
      {0, 0 },
      {5, -2},
      {5, 2 }
  }));
  constexpr QRgb kSides[] = {0xFFD54F, 0xFFC107, 0xFFA000};
  for (int i = 0; i < 3; ++i) {
    painter.setBrush(QColor(kSides[i]));
    painter.drawRect(QRectF(15, -6 + 4 * i, 45, 4));
  }
  painter.setBrush(QColor(0xB0BEC5));
  painter.drawRect(QRectF(60, -6, 5, 12));
  painter.setBrush(QColor(0xF48FB1));
  painter.drawRoundedRect(QRectF(64.5, -6, 9, 12), 3, 3);
}

}  // namespace

void HomeGround::SetPencilRoom(const QRect& room) {
  pencilRoom_ = room;
  update();
}

void HomeGround::paintEvent(QPaintEvent* event) {
  Ground::paintEvent(event);
  if (pencilRoom_.width() < kLeastRoom || pencilRoom_.height() < kLeastRoom) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double scale =
      std::min(pencilRoom_.width() / kDrawingWidth, pencilRoom_.height() / kDrawingHeight);
  painter.translate(QRectF(pencilRoom_).center());
  painter.scale(scale, scale);
  painter.translate(-kDrawingWidth / 2, -kDrawingHeight / 2);
  DrawLoops(painter);
  painter.translate(kTip);
  painter.rotate(kLean);
  DrawPencil(painter);
}

}  // namespace bramlee
