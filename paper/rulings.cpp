#include "paper/rulings.h"

#include <QPainter>
#include <algorithm>

#include "paper/print_ink.h"

namespace bramlee {
namespace {

enum class Line : std::uint8_t { Thin, Thick };

class Ruler {
 public:
  Ruler(QPainter& painter, const Figure& figure, const RuledRow& row)
      : painter_(painter), figure_(figure), row_(row) {}

  void Across(double y, Line line) const {
    const double base = row_.base - figure_.OverBaseMm(y);
    SetPen(line);
    painter_.drawLine(QPointF(row_.left, base), QPointF(row_.left + row_.width, base));
  }

  void Boxes() const {
    SetPen(Line::Thin);
    const double cell = row_.width / row_.cells;
    for (int i = 0; i < row_.cells; ++i) {
      painter_.drawRect(QRectF(row_.left + i * cell, row_.base - row_.reach.above, cell,
                               row_.reach.above + row_.reach.below));
    }
  }

 private:
  void SetPen(Line line) const {
    const bool thick = line == Line::Thick;
    painter_.setPen(QPen(thick ? kThickRuleInk : kRuleInk, thick ? ThickMm() : kRuleMm,
                         Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
  }

  /// Small letters are not to be lost beside their line.
  double ThickMm() const {
    constexpr double kFull = 20;
    constexpr double kLeast = 1.5 * kRuleMm;
    const double part = figure_.Shown().lines.BodyHeight() * figure_.Scale() / kFull;
    return std::clamp(part * kThickRuleMm, kLeast, kThickRuleMm);
  }

  QPainter& painter_;
  const Figure& figure_;
  const RuledRow& row_;
};

}  // namespace

RowReach ReachOf(Ruling ruling, const Figure& figure) {
  const WritingLines& lines = figure.Shown().lines;
  switch (ruling) {
    case Ruling::English:
    case Ruling::Telugu:
      return {.above = figure.OverBaseMm(lines.top), .below = -figure.OverBaseMm(lines.foot)};
    case Ruling::Hindi:
      return {.above = figure.OverBaseMm(lines.bodyTop), .below = 0};
    case Ruling::Boxes:
    case Ruling::None:
      break;
  }
  return {};
}

void PaintRuling(QPainter& painter, Ruling ruling, const Figure& figure, const RuledRow& row) {
  const WritingLines& lines = figure.Shown().lines;
  const Ruler ruler(painter, figure, row);
  painter.save();
  painter.setBrush(Qt::NoBrush);
  switch (ruling) {
    case Ruling::English:
    case Ruling::Telugu:
      ruler.Across(lines.top, Line::Thin);
      ruler.Across(lines.middle, Line::Thin);
      ruler.Across(lines.foot, Line::Thin);
      ruler.Across(lines.base, ruling == Ruling::English ? Line::Thick : Line::Thin);
      break;
    case Ruling::Hindi:
      ruler.Across(lines.bodyTop, Line::Thick);
      ruler.Across(lines.base, Line::Thin);
      break;
    case Ruling::Boxes:
      ruler.Boxes();
      break;
    case Ruling::None:
      break;
  }
  painter.restore();
}

}  // namespace bramlee
