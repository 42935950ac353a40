#include "paper/figure.h"

#include <QPainter>
#include <algorithm>
#include <utility>

#include "paper/print_ink.h"
#include "paper/vector_letter.h"
#include "strokes/stroke_dots.h"

namespace bramlee {
namespace {

// As parts of the body's height.
constexpr double kPen = 0.06;
constexpr double kDotDiameter = 0.045;
constexpr double kDisc = 0.085;  ///< radius of a number's disc

/// A smaller number cannot be read, a larger one is louder than its letter; in millimetres.
constexpr double kLeastDiscMm = 1.15;
constexpr double kLargestDiscMm = 2.1;
/// A smaller dot is lost on a printer's grey line; in millimetres.
constexpr double kLeastDotMm = 0.55;

/// As a part of the pitch: two dots to trace have as much white between them.
constexpr double kDotOfPitch = 0.5;
/// The rim of a hollow letter, as a part of its pen.
constexpr double kRim = 0.16;

Box Around(const Box& box, double left, double top, double right, double bottom) {
  const double x = std::min(box.x, left);
  const double y = std::min(box.y, top);
  return {.x = x,
          .y = y,
          .width = std::max(box.x + box.width, right) - x,
          .height = std::max(box.y + box.height, bottom) - y};
}

Box AroundPoint(const Box& box, const Point& point, double reach) {
  return Around(box, point.x - reach, point.y - reach, point.x + reach, point.y + reach);
}

}  // namespace

Figure::Figure(Practice practice, double bodyMm, Hand hand)
    : practice_(std::move(practice)),
      bodyMm_(bodyMm),
      scale_(bodyMm / practice_.lines.BodyHeight()) {
  const double disc = std::clamp(kDisc * bodyMm, kLeastDiscMm, kLargestDiscMm) / scale_;
  const double pen = PenWidth() / 2;
  const LetterShape& shape = practice_.letter.Shape();
  numbers_ = PlaceNumbers(shape.strokes, {.discRadius = disc, .penHalfWidth = pen, .hand = hand});
  const DotRule dotRule{.pitch = DotDiameter() / kDotOfPitch, .diameter = DotDiameter()};
  for (const auto& stroke : PlaceDots(shape.strokes, dotRule)) {
    for (const Point& dot : stroke) dots_.append({dot.x, dot.y});
  }
  const Box& way = shape.bounds;
  ink_ = Around(way, way.x - pen, way.y - pen, way.x + way.width + pen, way.y + way.height + pen);
  model_ = ink_;
  for (const StrokeNumber& number : numbers_) {
    if (number.radius == 0) continue;
    model_ = AroundPoint(model_, number.centre, number.radius);
    for (const Point& corner : number.arrow.head) {
      if (number.arrow.IsDrawn()) model_ = AroundPoint(model_, corner, 0);
    }
  }
}

double Figure::PenWidth() const {
  return kPen * bodyMm_ / scale_;
}

double Figure::DotDiameter() const {
  return std::max(kLeastDotMm, kDotDiameter * bodyMm_) / scale_;
}

double Figure::HalfWidthMm() const {
  const double middle = ink_.x + ink_.width / 2;
  return scale_ * std::max(middle - model_.x, model_.x + model_.width - middle);
}

double Figure::AboveMm(bool model) const {
  return OverBaseMm(model ? model_.y : ink_.y);
}

double Figure::BelowMm(bool model) const {
  const Box& box = model ? model_ : ink_;
  return -OverBaseMm(box.y + box.height);
}

void Figure::PaintModel(QPainter& painter) const {
  const LetterLook look{.penWidth = PenWidth()};
  PaintLetter(painter, practice_.letter, look);
  PaintBegins(painter, practice_.letter, look);
  PaintSigns(painter, numbers_, look);
}

void Figure::PaintBuiltUp(QPainter& painter, std::size_t strokes) const {
  if (strokes == 0) return;
  const LetterLook last{.penWidth = PenWidth(), .from = strokes - 1, .upTo = strokes};
  PaintLetter(painter, practice_.letter,
              {.ink = kPaleInk, .penWidth = PenWidth(), .upTo = strokes - 1});
  PaintLetter(painter, practice_.letter, last);
  PaintBegins(painter, practice_.letter, last);
}

void Figure::PaintDots(QPainter& painter) const {
  painter.setPen(QPen(kDotInk, DotDiameter(), Qt::SolidLine, Qt::RoundCap));
  painter.drawPoints(dots_.constData(), static_cast<int>(dots_.size()));
}

void Figure::Paint(QPainter& painter, RowKind kind, double middle, double base,
                   std::size_t strokes) const {
  painter.save();
  painter.translate(middle, base);
  painter.scale(scale_, scale_);
  painter.translate(-ink_.x - ink_.width / 2, -practice_.lines.base);
  switch (kind) {
    case RowKind::Model:
      PaintModel(painter);
      break;
    case RowKind::BuiltUp:
      PaintBuiltUp(painter, strokes);
      break;
    case RowKind::Dotted:
      PaintDots(painter);
      break;
    case RowKind::Grey:
      PaintLetter(painter, practice_.letter, {.ink = kPaleInk, .penWidth = PenWidth()});
      break;
    case RowKind::Hollow:
      PaintHollow(painter, practice_.letter, {.penWidth = PenWidth()}, kRim * PenWidth());
      break;
    case RowKind::Blank:
      break;
  }
  painter.restore();
}

}  // namespace bramlee
