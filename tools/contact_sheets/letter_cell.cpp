#include "tools/contact_sheets/letter_cell.h"

#include <algorithm>

#include "ink/stamps.h"
#include "ink/stroke_signs.h"

namespace bramlee {
namespace {

constexpr int kCaption = 22;  ///< height of the line above a letter
constexpr double kMargin = 50;
constexpr double kLargest = 1.6;  ///< picture pixels to a sheet pixel; dots stay dots

constexpr QRgb kColours[] = {0xC62828, 0x1565C0, 0x2E7D32, 0xEF6C00,
                             0x6A1B9A, 0x00838F, 0x795548, 0xD81B60};

QColor ColourOfStroke(std::size_t stroke) {
  return QColor(kColours[stroke % std::size(kColours)]);
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

void DrawPath(QPainter& painter, const StrokePath& path, const QTransform& fit,
              const QColor& colour) {
  if (path.points.empty()) return;
  QPolygonF line;
  for (const Point& point : path.points) line.append(fit.map(QPointF(point.x, point.y)));
  QColor body = colour;
  body.setAlpha(150);
  painter.setPen(QPen(body, kDrawWidth * fit.m11(), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
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
  painter.setBrush(Qt::NoBrush);
}

}  // namespace

void DrawStroke(QPainter& painter, const StrokePath& path, std::size_t stroke) {
  DrawPath(painter, path, {}, ColourOfStroke(stroke));
}

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
  painter.save();
  painter.setTransform(fit, true);
  const auto numbers = PlaceNumbers(strokes, {.penHalfWidth = kDrawWidth / 2});
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const QColor rim = numbers[i].clean ? Qt::white : Qt::yellow;
    PaintNumber(painter, static_cast<int>(i + 1), numbers[i],
                {.sign = ColourOfStroke(i), .rim = rim});
  }
  painter.restore();
}

}  // namespace bramlee
