// Draws every letter with its pen strokes numbered, on sheets of many letters, to look at: each
// stroke in a colour of its own, its number and arrow where the boards show them, a small white dot
// where one run goes on with the other. A number without a clean place is on a yellow disc.
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cstdio>
#include <vector>

#include "strokes/letter.h"
#include "strokes/stroke_numbers.h"

namespace bramlee {
namespace {

constexpr int kColumns = 6;
constexpr int kRows = 5;
constexpr QSize kCell(400, 380);
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

void DrawLetter(QPainter& painter, const Letter& letter, const QRectF& cell) {
  const LetterId& id = letter.Id();
  painter.setPen(Qt::black);
  painter.drawText(cell.adjusted(6, 2, -6, 0),
                   QStringLiteral("%1 %2%3: %4 strokes, %5 runs")
                       .arg(QString::fromStdString(std::string(id.set)))
                       .arg(id.tile)
                       .arg(id.form.alternative ? QStringLiteral(" alt") : QString())
                       .arg(letter.PenStrokes().size())
                       .arg(letter.Runs().size()));
  painter.setPen(Qt::lightGray);
  painter.drawRect(cell);
  const QTransform fit =
      Fit(letter.Bounds(), cell.adjusted(kMargin, kMargin + kCaption, -kMargin, -kMargin));
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

std::vector<LetterId> LettersOf(const LetterSet& set) {
  std::vector<LetterId> letters;
  for (int tile = 1; tile <= set.tiles; ++tile) {
    letters.push_back({.set = set.name, .tile = tile, .form = {}});
    if (!HasSecondForm(set, tile)) continue;
    letters.push_back({.set = set.name, .tile = tile, .form = {.alternative = true}});
  }
  return letters;
}

QImage DrawSheet(std::span<const LetterId> letters) {
  QImage sheet(kCell.width() * kColumns, kCell.height() * kRows, QImage::Format_RGB32);
  sheet.fill(Qt::white);
  QPainter painter(&sheet);
  painter.setRenderHint(QPainter::Antialiasing);
  for (std::size_t i = 0; i < letters.size(); ++i) {
    const int place = static_cast<int>(i);
    const QPoint corner(place % kColumns * kCell.width(), place / kColumns * kCell.height());
    DrawLetter(painter, LetterOf(letters[i]), QRectF(corner, QSizeF(kCell)));
  }
  return sheet;
}

bool DrawSet(const LetterSet& set, const QString& folder) {
  constexpr std::size_t kOnASheet = std::size_t{kColumns} * kRows;
  const std::vector<LetterId> letters = LettersOf(set);
  for (std::size_t first = 0, number = 1; first < letters.size(); first += kOnASheet, ++number) {
    const std::size_t count = std::min(kOnASheet, letters.size() - first);
    const QString file = QStringLiteral("%1/%2-%3.png")
                             .arg(folder, QString::fromStdString(std::string(set.name)))
                             .arg(number);
    if (!DrawSheet(std::span(letters).subspan(first, count)).save(file)) {
      std::fprintf(stderr, "%s cannot be written\n", qPrintable(file));
      return false;
    }
  }
  return true;
}

}  // namespace
}  // namespace bramlee

int main(int argc, char** argv) {
  const QGuiApplication app(argc, argv);
  const QStringList arguments = QGuiApplication::arguments();
  if (arguments.size() != 2) {
    std::fprintf(stderr, "usage: bramlee_contact_sheets FOLDER\n");
    return 2;
  }
  for (const bramlee::LetterSet& set : bramlee::LetterSets()) {
    if (!bramlee::DrawSet(set, arguments[1])) return 1;
  }
  return 0;
}
