#include "tools/contact_sheets/letter_cell.h"

#include <QPainterPath>
#include <algorithm>

#include "strokes/stroke_numbers.h"

namespace bramlee {
namespace {

constexpr int kCaption = 22;  ///< height of the line above a letter
constexpr double kMargin = 50;
constexpr double kLargest = 1.6;  ///< picture pixels to a sheet pixel; dots stay dots
constexpr double kPenWidth = 10;  ///< of the boards' pen, in sheet pixels

constexpr QRgb kColours[] = {0xC62828, 0x1565C0, 0x2E7D32, 0xEF6C00,
                             0x6A1B9A, 0x00838F, 0x795548, 0xD81B60};

QColor ColourOfStroke(std::size_t stroke) {
  return QColor(kColours[stroke % std::size(kColours)]);
}

QPointF On(const Point& point) {
  return {point.x, point.y};
}

/// From the sheet into the room of a cell.
QTransform Fit(const Box& box, const QRectF& room) {
  const double scale = std::min({room.width() / std::max(box.width, 1.0),
                                 room.height() / std::max(box.height, 1.0), kLargest});
  QTransform fit;
  fit.translate(room.center().x(), room.center().y());
  fit.scale(scale, scale);
  fit.translate(-box.x - box.width / 2, -box.y - box.height / 2);
  return fit;
}

QPolygonF Polygon(std::span<const Point> points, const QTransform& fit) {
  QPolygonF polygon;
  for (const Point& point : points) polygon.append(fit.map(On(point)));
  return polygon;
}

void DrawArrow(QPainter& painter, const StrokeArrow& arrow, const QTransform& fit) {
  if (!arrow.IsDrawn()) return;
  painter.setPen(QPen(Qt::black, 1.5 * fit.m11()));
  painter.drawPolyline(Polygon(arrow.shaft, fit));
  QPainterPath head;
  head.addPolygon(Polygon(arrow.head, fit));
  painter.fillPath(head, Qt::black);
}

void DrawNumber(QPainter& painter, int number, const StrokeNumber& place, const QTransform& fit,
                const QColor& colour) {
  if (place.radius == 0) return;
  DrawArrow(painter, place.arrow, fit);
  const double radius = place.radius * fit.m11();
  const QPointF at = fit.map(On(place.centre));
  const QRectF disc(at.x() - radius, at.y() - radius, 2 * radius, 2 * radius);
  painter.setPen(QPen(colour, 1.5));
  painter.setBrush(place.clean ? Qt::white : Qt::yellow);
  painter.drawEllipse(disc);
  painter.drawText(disc, Qt::AlignCenter, QString::number(number));
  painter.setBrush(Qt::NoBrush);
}

void DrawPath(QPainter& painter, const StrokePath& path, const QTransform& fit,
              const QColor& colour) {
  if (path.points.empty()) return;
  const QPolygonF line = Polygon(path.points, fit);
  QColor body = colour;
  body.setAlpha(150);
  painter.setPen(QPen(body, kPenWidth * fit.m11(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  if (line.size() == 1) return painter.drawPoint(line[0]);
  painter.drawPolyline(line);
}

/// A dot where each run but a stroke's first begins.
void DrawJoins(QPainter& painter, const Letter& letter, const QTransform& fit) {
  painter.setPen(QPen(Qt::black, 1));
  painter.setBrush(Qt::white);
  for (const PenStroke& stroke : letter.PenStrokes()) {
    for (const Run& run : letter.Runs().subspan(stroke.firstRun + 1, stroke.runs - 1)) {
      RunCursor(run, kUsualStep).Advance(1, [&](double x, double y) {
        painter.drawEllipse(fit.map(QPointF(x, y)), 2.5, 2.5);
      });
    }
  }
}

}  // namespace

void DrawCaption(QPainter& painter, const QString& text, const QRectF& cell) {
  painter.setPen(Qt::black);
  painter.drawText(cell.adjusted(6, 2, -6, 0), text);
  painter.setPen(Qt::lightGray);
  painter.drawRect(cell);
}

QRectF RoomOf(const QRectF& cell) {
  return cell.adjusted(kMargin, kMargin + kCaption, -kMargin, -kMargin);
}

void DrawLetter(QPainter& painter, const Letter& letter, const Box& shown, const QRectF& cell) {
  const LetterId& id = letter.Id();
  DrawCaption(painter,
              QStringLiteral("%1 %2%3%4: %5 strokes, %6 runs")
                  .arg(QString::fromStdString(std::string(id.set)))
                  .arg(id.tile)
                  .arg(id.form.alternative ? QStringLiteral(" alt") : QString())
                  .arg(id.form.book ? QStringLiteral(" book") : QString())
                  .arg(letter.PenStrokes().size())
                  .arg(letter.Runs().size()),
              cell);
  const QTransform fit = Fit(shown, RoomOf(cell));
  const auto& strokes = letter.Shape().strokes;
  for (std::size_t i = 0; i < strokes.size(); ++i) {
    DrawPath(painter, strokes[i], fit, ColourOfStroke(i));
  }
  DrawJoins(painter, letter, fit);
  const auto numbers = PlaceNumbers(strokes, {.penHalfWidth = kPenWidth / 2});
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    DrawNumber(painter, static_cast<int>(i + 1), numbers[i], fit, ColourOfStroke(i));
  }
}

}  // namespace bramlee
