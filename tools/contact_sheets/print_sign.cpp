#include "tools/contact_sheets/print_sign.h"

#include <QFont>
#include <QPainterPath>
#include <algorithm>

namespace bramlee {

void DrawSign(QPainter& painter, const QString& sign, const QString& family, const QRectF& room,
              double mostScale) {
  QFont font(family);
  font.setPixelSize(200);
  QPainterPath path;
  path.addText(0, 0, font, sign);
  const QRectF ink = path.boundingRect();
  if (ink.isEmpty()) return;
  painter.save();
  painter.translate(room.center());
  const double scale =
      std::min({room.width() / ink.width(), room.height() / ink.height(), mostScale});
  painter.scale(scale, scale);
  painter.translate(-ink.center());
  painter.fillPath(path, Qt::black);
  painter.restore();
}

}  // namespace bramlee
