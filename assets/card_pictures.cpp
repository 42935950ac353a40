// The two pictures of the biodata card until the family gives its own.
#include <QPainterPath>

#include "assets/pictures.h"

namespace bramlee {

QImage IdCardPicture() {
  QImage image = Blank({480, 480}, QColor(0xE3F2FD));
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(0xFFD54F));  // the sun behind the child
  p.drawEllipse(QPointF(240, 235), 205, 205);
  p.setBrush(QColor(0x42A5F5));  // shoulders
  p.drawRoundedRect(QRectF(90, 370, 300, 200), 110, 110);
  p.setBrush(QColor(0x3E2723));  // hair
  p.drawEllipse(QPointF(240, 205), 132, 138);
  p.setBrush(QColor(0xC98A5B));  // face, ears
  p.drawEllipse(QPointF(240, 240), 110, 122);
  p.drawEllipse(QPointF(128, 250), 22, 28);
  p.drawEllipse(QPointF(352, 250), 22, 28);
  p.setBrush(QColor(0x3E2723));  // fringe
  QPainterPath fringe;
  fringe.moveTo(132, 205);
  fringe.quadTo(240, 90, 348, 205);
  fringe.quadTo(300, 160, 240, 172);
  fringe.quadTo(180, 160, 132, 205);
  p.drawPath(fringe);
  p.setBrush(QColor(0x212121));  // eyes
  p.drawEllipse(QPointF(198, 245), 13, 16);
  p.drawEllipse(QPointF(282, 245), 13, 16);
  p.setBrush(Qt::white);
  p.drawEllipse(QPointF(203, 239), 4, 5);
  p.drawEllipse(QPointF(287, 239), 4, 5);
  p.setBrush(Qt::NoBrush);  // smile
  p.setPen(QPen(QColor(0x7B1F1F), 9, Qt::SolidLine, Qt::RoundCap));
  p.drawArc(QRectF(190, 250, 100, 70), 200 * 16, 140 * 16);
  return image;
}

QImage SchoolPicture() {
  QImage image = Blank({480, 480}, QColor(0xE8F5E9));
  QPainter p(&image);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(0x81C784));  // meadow
  p.drawEllipse(QRectF(-60, 350, 600, 220));
  p.setBrush(QColor(0xFFCC80));  // house
  p.drawRect(QRectF(90, 220, 300, 190));
  p.setBrush(QColor(0xD84315));  // roof
  p.drawPolygon(QPolygonF({
      {60,  225},
      {240, 110},
      {420, 225}
  }));
  p.setBrush(QColor(0x6D4C41));  // door, flagpole
  p.drawRoundedRect(QRectF(205, 310, 70, 100), 12, 12);
  p.drawRect(QRectF(237, 48, 6, 70));
  p.setBrush(QColor(0x1E88E5));  // flag
  p.drawPolygon(QPolygonF({
      {243, 50},
      {312, 70},
      {243, 92}
  }));
  p.setBrush(QColor(0xE1F5FE));  // windows
  for (const double x : {115.0, 305.0}) p.drawRoundedRect(QRectF(x, 265, 60, 60), 8, 8);
  p.setBrush(Qt::white);  // clock
  p.drawEllipse(QPointF(240, 185), 26, 26);
  p.setPen(QPen(QColor(0x37474F), 4, Qt::SolidLine, Qt::RoundCap));
  p.drawLine(QPointF(240, 185), QPointF(240, 168));
  p.drawLine(QPointF(240, 185), QPointF(252, 190));
  return image;
}

}  // namespace bramlee
