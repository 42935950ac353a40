// The tiles of the home form: each shows its subject at a glance.
#include <vector>

#include "assets/pictures.h"

namespace bramlee {
namespace {

/// The letters that stand for a subject.
std::vector<int> Emblem(const Subject& subject) {
  if (subject.letterSet == "mat") return {1, 11, 2};
  if (subject.letterSet.starts_with("eng")) return {1, 2, 3};
  return {1, 3};
}

}  // namespace

QImage SubjectPicture(const Subject& subject) {
  // 2650 by 1550 twips at most on the home form, four picture pixels to a logical one.
  QImage image = Blank({704, 412}, subject.ink);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0xFFF8E1));
  painter.drawRoundedRect(QRectF(image.rect()).adjusted(22, 22, -22, -22), 40, 40);
  const std::vector<int> letters = Emblem(subject);
  const QRectF room = QRectF(image.rect()).adjusted(60, 70, -60, -70);
  const double width = room.width() / static_cast<double>(letters.size());
  for (std::size_t i = 0; i < letters.size(); ++i) {
    const QRectF place(room.left() + width * static_cast<double>(i), room.top(), width,
                       room.height());
    DrawLetter(painter, subject, letters[i], place.adjusted(16, 0, -16, 0), 26);
  }
  return image;
}

QImage IconPicture() {
  QImage image(256, 256, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0xFFC107));
  painter.drawRoundedRect(QRectF(image.rect()).adjusted(8, 8, -8, -8), 48, 48);
  painter.setBrush(QColor(0xFFFDF5));
  painter.drawRoundedRect(QRectF(image.rect()).adjusted(30, 30, -30, -30), 30, 30);
  DrawLetter(painter, Subjects()[0], 1, QRectF(image.rect()).adjusted(62, 58, -62, -58), 22);
  return image;
}

}  // namespace bramlee
