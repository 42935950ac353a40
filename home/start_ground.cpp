#include "home/start_ground.h"

#include <QPaintEvent>
#include <QPainter>
#include <cmath>

namespace bramlee {
namespace {

/// A card's middle in parts of the ground, its turn in degrees.
struct CardPlace {
  const char* picture;
  double x;
  double y;
  double turn;
};

constexpr double kLeft = 0.065;
constexpr double kRight = 1 - kLeft;
constexpr CardPlace kCards[] = {
    {":/pictures/engc/1.jpg", kLeft,  0.33, -8},
    {":/pictures/hinv/1.jpg", kLeft,  0.50, 6 },
    {":/pictures/mat/2.jpg",  kLeft,  0.67, -4},
    {":/pictures/engs/2.jpg", kRight, 0.33, 7 },
    {":/pictures/telv/1.jpg", kRight, 0.50, -6},
    {":/pictures/mat/4.jpg",  kRight, 0.67, 5 },
};
constexpr double kCardWidth = 0.085;  ///< in parts of the ground's width
constexpr double kCardShape = 0.92;   ///< a card's height in parts of its width

}  // namespace

StartGround::StartGround(ColourWord colour, QWidget* parent) : Ground(parent) {
  SetBackColor(colour);
}

QPixmap StartGround::Card(const QString& picture, double width, double turn) const {
  const QPixmap letter(picture);
  if (letter.isNull()) return {};
  const double height = width * kCardShape;
  const double side = std::hypot(width, height) + 8;
  const double ratio = devicePixelRatioF();
  QPixmap card((QSizeF(side, side) * ratio).toSize());
  card.setDevicePixelRatio(ratio);
  card.fill(Qt::transparent);
  QPainter painter(&card);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  painter.translate(side / 2, side / 2);
  painter.rotate(turn);
  const QRectF edge(-width / 2, -height / 2, width, height);
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0, 60, 0, 45));
  painter.drawRoundedRect(edge.translated(3, 4), 8, 8);
  painter.setBrush(Qt::white);
  painter.drawRoundedRect(edge, 8, 8);
  // A picture of another shape is cut to the card's: its letter stands in the middle.
  const QRectF face = edge.adjusted(5, 5, -5, -5);
  QRectF shown({}, face.size().scaled(letter.size(), Qt::KeepAspectRatio));
  shown.moveCenter(QRectF(letter.rect()).center());
  painter.drawPixmap(face, letter, shown);
  return card;
}

void StartGround::resizeEvent(QResizeEvent* event) {
  Ground::resizeEvent(event);
  cards_.clear();
  for (const CardPlace& place : kCards) {
    QPixmap card = Card(QString::fromLatin1(place.picture), kCardWidth * width(), place.turn);
    if (card.isNull()) continue;
    const QSizeF size = card.deviceIndependentSize();
    const QPointF middle(place.x * width(), place.y * height());
    cards_.append({(middle - QPointF(size.width(), size.height()) / 2).toPoint(), card});
  }
}

void StartGround::paintEvent(QPaintEvent* event) {
  Ground::paintEvent(event);
  QPainter painter(this);
  for (const Shown& shown : cards_) {
    const QRect rect(shown.place, shown.card.deviceIndependentSize().toSize());
    if (rect.intersects(event->rect())) painter.drawPixmap(shown.place, shown.card);
  }
}

void MovingLine::paintEvent(QPaintEvent* /*event*/) {
  const double ratio = devicePixelRatioF();
  if (letters_.isNull() || drawn_ != text() || letters_.devicePixelRatio() != ratio) {
    letters_ = QPixmap((QSizeF(size()) * ratio).toSize());
    letters_.setDevicePixelRatio(ratio);
    letters_.fill(Qt::transparent);
    QPainter painter(&letters_);
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(rect(), static_cast<int>(alignment()), text());
    drawn_ = text();
  }
  QPainter(this).drawPixmap(0, 0, letters_);
}

void MovingLine::changeEvent(QEvent* event) {
  letters_ = {};
  Label::changeEvent(event);
}

void MovingLine::resizeEvent(QResizeEvent* event) {
  letters_ = {};
  Label::resizeEvent(event);
}

}  // namespace bramlee
