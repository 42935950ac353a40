#include "ink/stroke_signs.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <cmath>
#include <string>

#include "letters/letter_sets.h"
#include "strokes/letter.h"
#include "strokes/run_track.h"

namespace bramlee {
namespace {

// In radii of a disc.
constexpr double kDigitHeight = 1.15;
constexpr double kDigitHeightOfTwo = 0.9;
constexpr double kDigitPen = 0.2;
constexpr double kDigitGap = 0.3;         ///< between the digits of a number
constexpr double kMostDigitsWidth = 1.5;  ///< of three digits or more
constexpr double kRim = 0.1;

// In half widths of an arrow's head.
constexpr double kShaftWidth = 0.6;
constexpr double kArrowRim = 0.35;

QPointF PlaceOf(const Point& point) {
  return {point.x, point.y};
}

QPolygonF PolygonOf(std::span<const Point> points) {
  QPolygonF polygon;
  for (const Point& point : points) polygon << PlaceOf(point);
  return polygon;
}

QPen RoundPen(const QColor& colour, double width) {
  return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

/// A run as a few lines: a page on paper has hundreds of digits.
QPolygonF FewLinesOf(const RunTrack& track) {
  constexpr double kPartDegrees = 15;  // off by a hundredth of an arc's radius
  const double parts = std::max(1.0, std::ceil(std::abs(track.turn) / kPartDegrees));
  QPolygonF line{PlaceOf(track.ends.begin)};
  for (double part = 1; part < parts; ++part) line << PlaceOf(track.OnArc(part / parts));
  return line << PlaceOf(track.ends.end);
}

/// The digit one pixel high, its top left at (0, 0).
QPainterPath MakeDigit(int digit) {
  const int tile = digit == 0 ? kDigitTiles : digit;
  const Letter& letter = LetterOf({.set = "mat", .tile = tile, .form = {}});
  QPainterPath path;
  for (const Run& run : letter.Runs()) {
    if (const auto track = TrackOf(run, letter.Step())) path.addPolygon(FewLinesOf(*track));
  }
  const QRectF bounds = path.boundingRect();
  const double scale = 1 / bounds.height();
  return QTransform::fromScale(scale, scale).translate(-bounds.x(), -bounds.y()).map(path);
}

const QPainterPath& DigitOf(int digit) {
  static const auto kDigits = [] {
    std::array<QPainterPath, kDigitTiles> digits;
    for (int i = 0; i < kDigitTiles; ++i) digits[static_cast<std::size_t>(i)] = MakeDigit(i);
    return digits;
  }();
  return kDigits[static_cast<std::size_t>(digit)];
}

/// The number's digits side by side, around (0, 0), for a disc with a radius of one. A number of
/// three digits or more, in a long word, is as high as it has room.
QPainterPath DigitsOf(int number) {
  QPainterPath digits;
  for (const char digit : std::to_string(number)) {
    const double left = digits.isEmpty() ? 0 : digits.boundingRect().right() + kDigitGap;
    digits.addPath(DigitOf(digit - '0').translated(left, 0));
  }
  digits.translate(-digits.boundingRect().center());
  double height = number > 9 ? kDigitHeightOfTwo : kDigitHeight;
  if (number > 99) height = std::min(height, kMostDigitsWidth / digits.boundingRect().width());
  return QTransform::fromScale(height, height).map(digits);
}

}  // namespace

void PaintArrow(QPainter& painter, const StrokeArrow& arrow, const SignColours& colours) {
  if (!arrow.IsDrawn()) return;
  const double headHalfWidth = DistanceBetween(arrow.head[1], arrow.head[2]) / 2;
  const double shaftWidth = kShaftWidth * headHalfWidth;
  const double rim = kArrowRim * headHalfWidth;
  const QPolygonF shaft = PolygonOf(arrow.shaft);
  const QPolygonF head = PolygonOf(arrow.head);
  painter.setPen(RoundPen(colours.rim, shaftWidth + 2 * rim));
  painter.drawPolyline(shaft);
  painter.setPen(RoundPen(colours.rim, 2 * rim));
  painter.drawPolygon(head);
  painter.setPen(RoundPen(colours.sign, shaftWidth));
  painter.drawPolyline(shaft);
  painter.setPen(Qt::NoPen);
  painter.setBrush(colours.sign);
  painter.drawPolygon(head);
  painter.setBrush(Qt::NoBrush);
}

void PaintNumber(QPainter& painter, int number, const StrokeNumber& place,
                 const SignColours& colours) {
  if (place.radius == 0) return;
  PaintArrow(painter, place.arrow, colours);
  const double radius = place.radius;
  const QPointF centre = PlaceOf(place.centre);
  const double rim = kRim * radius;
  painter.setPen(QPen(colours.rim, rim));
  painter.setBrush(colours.sign);
  painter.drawEllipse(centre, radius - rim / 2, radius - rim / 2);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(RoundPen(colours.rim, kDigitPen * radius));
  painter.drawPath(
      (QTransform::fromScale(radius, radius) * QTransform::fromTranslate(centre.x(), centre.y()))
          .map(DigitsOf(number)));
}

}  // namespace bramlee
