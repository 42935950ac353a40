#include "paper/vector_letter.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "ink/stroke_signs.h"
#include "strokes/run_track.h"

namespace bramlee {
namespace {

/// The white dot where a stroke begins, as a part of the pen's width.
constexpr double kBeginDot = 0.5;

constexpr double kWholeTurn = 360;

/// Goes to where a run begins: on from where the one before ended, or to a new piece.
void Begin(const QPointF& place, QPainterPath& path) {
  const QPointF way = place - path.currentPosition();
  const bool goesOn = !path.isEmpty() && std::hypot(way.x(), way.y()) <= kJoinReach;
  if (goesOn) {
    path.lineTo(place);
  } else {
    path.moveTo(place);
  }
}

/// As an arc itself and not as its many dots.
void AddArc(const Run& run, double step, QPainterPath& path) {
  const std::int64_t dots = DotCount(run, step);
  if (dots == 0) return;
  const auto [sweepDir, from, to, centreX, centreY, radius] = run.values;
  const QRectF ring(centreX - radius, centreY - radius, 2 * radius, 2 * radius);
  QPainterPath begin;
  begin.arcMoveTo(ring, from);
  Begin(begin.currentPosition(), path);
  // A path takes one turn at a time, and some arcs go further round.
  double left = step * static_cast<double>(dots - 1);
  for (double at = from; left > 0; at += sweepDir * kWholeTurn, left -= kWholeTurn) {
    path.arcTo(ring, at, sweepDir * std::min(left, kWholeTurn));
  }
}

void AddStraight(const Run& run, double step, QPainterPath& path) {
  const std::optional<RunEnds> ends = EndsOf(run, step);
  if (!ends) return;
  Begin({ends->begin.x, ends->begin.y}, path);
  path.lineTo(ends->end.x, ends->end.y);
}

std::size_t EndOf(const Letter& letter, std::size_t upTo) {
  return std::min(upTo, letter.PenStrokes().size());
}

QPainterPath PathOf(const Letter& letter, const LetterLook& look) {
  QPainterPath path;
  for (std::size_t i = look.from; i < EndOf(letter, look.upTo); ++i) {
    path.addPath(StrokePathOf(letter, i));
  }
  return path;
}

QPen RoundPen(const QColor& colour, double width) {
  return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

/// With fewer points in its arrow's shaft: a page has hundreds of arrows, and the rest of it is a
/// few curves.
StrokeNumber Thinned(StrokeNumber number) {
  constexpr double kSpacing = 3;  // off by a sixteenth of a pixel in a bow of radius 20
  std::vector<Point> shaft;
  for (const Point& point : number.arrow.shaft) {
    const bool isLast = &point == &number.arrow.shaft.back();
    if (shaft.empty() || isLast || DistanceBetween(shaft.back(), point) >= kSpacing) {
      shaft.push_back(point);
    }
  }
  number.arrow.shaft = std::move(shaft);
  return number;
}

}  // namespace

QPainterPath StrokePathOf(const Letter& letter, std::size_t stroke) {
  QPainterPath path;
  const PenStroke& own = letter.PenStrokes()[stroke];
  for (const Run& run : letter.Runs().subspan(own.firstRun, own.runs)) {
    const auto add = run.primitive == Primitive::ArcStroke ? AddArc : AddStraight;
    add(run, letter.Step(), path);
  }
  return path;
}

QPainterPath LetterPathOf(const Letter& letter, std::size_t strokes) {
  return PathOf(letter, {.upTo = strokes});
}

void PaintLetter(QPainter& painter, const Letter& letter, const LetterLook& look) {
  painter.strokePath(PathOf(letter, look), RoundPen(look.ink, look.penWidth));
}

void PaintHollow(QPainter& painter, const Letter& letter, const LetterLook& look, double rimWidth) {
  const QPainterPath path = PathOf(letter, look);
  painter.strokePath(path, RoundPen(look.ink, look.penWidth));
  painter.strokePath(path, RoundPen(Qt::white, look.penWidth - 2 * rimWidth));
}

void PaintBegins(QPainter& painter, const Letter& letter, const LetterLook& look) {
  painter.save();
  painter.setPen(RoundPen(Qt::white, kBeginDot * look.penWidth));
  const auto& strokes = letter.Shape().strokes;
  for (std::size_t i = look.from; i < EndOf(letter, look.upTo); ++i) {
    if (strokes[i].points.empty()) continue;
    const Point& begin = strokes[i].points.front();
    painter.drawPoint(QPointF(begin.x, begin.y));
  }
  painter.restore();
}

void PaintSigns(QPainter& painter, std::span<const StrokeNumber> numbers, const LetterLook& look) {
  painter.save();
  for (std::size_t i = look.from; i < std::min(look.upTo, numbers.size()); ++i) {
    PaintNumber(painter, static_cast<int>(i + 1), Thinned(numbers[i]), {.sign = look.ink});
  }
  painter.restore();
}

}  // namespace bramlee
