#include "companions/trace/trace_layers.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <utility>

#include "ink/stamps.h"
#include "ink/stroke_signs.h"

namespace bramlee {
namespace {

// In sheet pixels.
constexpr double kInkWidth = 4;
constexpr double kStartRadius = 8;
constexpr double kPulseGrowth = 7;
constexpr double kDotRadius = 1.7;
constexpr double kDotsApart = 11;

const QColor kInk(0x26, 0x32, 0x38, 0xC0);
const QColor kStart(0x2E, 0x7D, 0x32);
const QColor kStartRim(Qt::white);
const QColor kMark(0x45, 0x5A, 0x64);

QPen RoundPen(const QColor& colour, double width) {
  return QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
}

void DrawLine(QPainter& painter, const QPolygonF& line) {
  // A polyline of one place draws nothing, and a dot has no other.
  if (line.size() == 1) return painter.drawPoint(line.front());
  painter.drawPolyline(line);
}

/// Places along a line, equally far apart, the first one at its beginning.
QPolygonF DotsAlong(const QPolygonF& line) {
  QPolygonF dots;
  double due = 0;
  for (qsizetype i = 1; i < line.size(); ++i) {
    const QPointF way = line[i] - line[i - 1];
    const double length = std::hypot(way.x(), way.y());
    double along = due;
    for (; along < length; along += kDotsApart) dots << line[i - 1] + way * (along / length);
    due = along - length;
  }
  return dots;
}

}  // namespace

void TraceGuide::Show(std::vector<QPolygonF> strokes, const QColor& pale) {
  strokes_ = std::move(strokes);
  pale_ = pale;
}

void TraceGuide::Paint(QPainter& painter) const {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(RoundPen(pale_, kDrawWidth));
  for (const QPolygonF& stroke : strokes_) DrawLine(painter, stroke);
}

void TraceMarks::SetShown(QPolygonF shown, const QColor& colour) {
  shown_ = std::move(shown);
  shownColour_ = colour;
}

void TraceMarks::BeginInk(QPointF place) {
  std::erase_if(inks_, [](const TouchInk& ink) { return ink.missed; });
  inks_.push_back({
      .line = {place },
        .around = { place, place}
  });
}

void TraceMarks::GoOnWithInk(QPointF place) {
  TouchInk& ink = inks_.back();
  ink.line << place;
  ink.around = ink.around.united(QRectF(place, QSizeF(0.1, 0.1)));
}

void TraceMarks::EndInk(bool missed) {
  inks_.back().missed = missed;
}

void TraceMarks::WipeInk() {
  inks_.clear();
}

QRectF TraceMarks::LastInk() const {
  if (inks_.empty()) return {};
  const QPolygonF& line = inks_.back().line;
  const QPointF last = line.back();
  const QPointF before = line.size() > 1 ? line[line.size() - 2] : last;
  const QRectF around = QRectF(before, last).normalized();
  return around.adjusted(-kInkWidth, -kInkWidth, kInkWidth, kInkWidth);
}

void TraceMarks::Paint(QPainter& painter) const {
  painter.setRenderHint(QPainter::Antialiasing);
  PaintWay(painter);
  PaintInk(painter);
  if (shown_.isEmpty()) return;
  painter.setPen(RoundPen(shownColour_, kDrawWidth));
  DrawLine(painter, shown_);
}

void TraceMarks::PaintWay(QPainter& painter) const {
  if (!way_ || way_->rest.isEmpty()) return;
  painter.setPen(Qt::NoPen);
  painter.setBrush(kMark);
  for (const QPointF& dot : DotsAlong(way_->rest)) {
    painter.drawEllipse(dot, kDotRadius, kDotRadius);
  }
  painter.setPen(QPen(kStartRim, 2));
  painter.setBrush(kStart);
  const double radius = kStartRadius + pulse_ * kPulseGrowth;
  painter.drawEllipse(way_->rest.front(), radius, radius);
  PaintArrow(painter, way_->sign.arrow, {});
  PaintNumber(painter, way_->number, way_->sign, {});
}

void TraceMarks::PaintInk(QPainter& painter) const {
  painter.setPen(RoundPen(kInk, kInkWidth));
  const QRectF seen = painter.hasClipping() ? painter.clipBoundingRect() : QRectF();
  for (const TouchInk& ink : inks_) {
    const QRectF around = ink.around.adjusted(-kInkWidth, -kInkWidth, kInkWidth, kInkWidth);
    if (seen.isEmpty() || around.intersects(seen)) DrawLine(painter, ink.line);
  }
}

}  // namespace bramlee
