#include "companions/trace/stars.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <QWidget>
#include <cmath>
#include <numbers>

#include "companions/trace/trace_layers.h"
#include "ink/stamps.h"
#include "ui/picture_box.h"

namespace bramlee {
namespace {

constexpr int kDrawnFrames = 25;
constexpr int kSeenFrames = 50;  ///< a second
constexpr double kRadius = 70;   ///< of the star over the sheet, in sheet pixels

/// A tile's star takes this part of its height, in its top left corner: its sign in print stands at
/// the right.
constexpr double kShareOfTile = 0.4;

const QColor kGold(0xF9, 0xA8, 0x25);
const QColor kGoldRim(0x8D, 0x5A, 0x00);

/// Five points, drawn as a hand does: in one go from the top left arm's foot, without lifting.
QPolygonF PentagramAround(QPointF centre, double radius) {
  QPolygonF star;
  for (int i = 0; i <= 5; ++i) {
    const double angle = std::numbers::pi * (1.3 - 0.8 * i);
    star << centre + radius * QPointF(std::cos(angle), -std::sin(angle));
  }
  return star;
}

/// A line's first part, by its share of the length.
QPolygonF FirstPart(const QPolygonF& line, double share) {
  QPolygonF part{line.front()};
  const double sides = share * static_cast<double>(line.size() - 1);
  const auto whole = static_cast<qsizetype>(sides);
  for (qsizetype i = 1; i <= whole; ++i) part << line[i];
  if (whole + 1 < line.size()) {
    part << line[whole] + (line[whole + 1] - line[whole]) * (sides - static_cast<double>(whole));
  }
  return part;
}

/// Five arms without the lines between them.
QPolygonF OutlineAround(QPointF centre, double radius) {
  constexpr double kInner = 0.45;
  QPolygonF star;
  for (int i = 0; i < 10; ++i) {
    const double angle = std::numbers::pi * (0.5 + 0.2 * i);
    const double reach = i % 2 == 0 ? radius : kInner * radius;
    star << centre + reach * QPointF(std::cos(angle), -std::sin(angle));
  }
  return star;
}

/// Stands in the corner of its tile, whatever size that gets, and takes no click from it.
class TileStar : public QWidget {
 public:
  explicit TileStar(QWidget* tile) : QWidget(tile) {
    setObjectName(QStringLiteral("star"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    tile->installEventFilter(this);
    FollowTile();
    show();
  }
  void SetFull(bool full) {
    full_ = full;
    update();
  }

 protected:
  bool eventFilter(QObject* /*tile*/, QEvent* event) override {
    if (event->type() == QEvent::Resize) FollowTile();
    return false;
  }
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(full_ ? kGoldRim : kGold, 1.5));
    painter.setBrush(full_ ? QBrush(kGold) : QBrush(Qt::white));
    const QRectF room = QRectF(rect()).adjusted(2, 2, -2, -2);
    painter.drawPolygon(OutlineAround(room.center(), room.height() / 2));
  }

 private:
  void FollowTile() {
    const int side = static_cast<int>(kShareOfTile * parentWidget()->height());
    setGeometry(1, 1, side, side);
  }

  bool full_ = false;
};

}  // namespace

SheetStar::SheetStar(Sheet& sheet, QObject* parent) : QObject(parent), sheet_(sheet) {
  sheet_.AddLayerAbove(*this);
  frames_.setInterval(kFrameMs);
  connect(&frames_, &QTimer::timeout, this, [this] { NextFrame(); });
}

void SheetStar::Draw(QPointF centre) {
  centre_ = centre;
  frame_ = 0;
  frames_.start();
}

void SheetStar::NextFrame() {
  if (++frame_ > kSeenFrames) {
    frame_ = -1;
    frames_.stop();
  }
  sheet_.update();
}

void SheetStar::Paint(QPainter& painter) const {
  if (frame_ < 0) return;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(kGold, kDrawWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const double share = std::min(1.0, static_cast<double>(frame_) / kDrawnFrames);
  painter.drawPolyline(FirstPart(PentagramAround(centre_, kRadius), share));
}

void TileStars::Give(PictureBox& tile, bool full) {
  auto* star = static_cast<TileStar*>(tile.findChild<QWidget*>(QStringLiteral("star")));
  if (star == nullptr) star = new TileStar(&tile);
  bool& isFull = full_[&tile];
  isFull = isFull || full;
  star->SetFull(isFull);
  tile.setAccessibleDescription(isFull ? QStringLiteral("Written")
                                       : QStringLiteral("Written with help"));
}

}  // namespace bramlee
