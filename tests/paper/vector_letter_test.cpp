// Letters as vectors: the same lines as on the sheet.
#include "paper/vector_letter.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include "strokes/ink_grid.h"
#include "tests/strokes/every_letter.h"

namespace bramlee {
namespace {

Point PointOf(const QPointF& place) {
  return {place.x(), place.y()};
}

const Letter& CapitalOf(int tile) {
  return LetterOf({.set = "engc", .tile = tile, .form = {}});
}

/// A picture of the sheet's capitals, white, and what was painted on it.
template <class Paint>
QImage Painted(Paint paint) {
  QImage picture(1300, 500, QImage::Format_Grayscale8);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  paint(painter);
  return picture;
}

int GreyAt(const QImage& picture, double x, double y) {
  return qGray(picture.pixel(qRound(x - 0.5), qRound(y - 0.5)));
}

/// Whether the path of each stroke begins and ends with the pen and lies on its dots.
void ExpectPathsOf(const LetterId& id) {
  constexpr double kOff = 1;  // the shape's own points lie one apart
  constexpr double kOffAtEnds = 0.5;
  const Letter& letter = LetterOf(id);
  const auto& strokes = letter.Shape().strokes;
  for (std::size_t i = 0; i < strokes.size(); ++i) {
    const std::vector<Point>& points = strokes[i].points;
    const QPainterPath path = StrokePathOf(letter, i);
    ASSERT_EQ(path.isEmpty(), points.empty()) << NameOf(id);
    if (path.isEmpty()) continue;
    const Point begin{path.elementAt(0).x, path.elementAt(0).y};
    EXPECT_LT(DistanceBetween(begin, points.front()), kOffAtEnds) << NameOf(id);
    EXPECT_LT(DistanceBetween(PointOf(path.currentPosition()), points.back()), kOffAtEnds)
        << NameOf(id);
    const InkGrid line(points, 3);
    for (const QPolygonF& piece : path.toSubpathPolygons()) {
      for (const QPointF& place : piece) {
        ASSERT_LT(line.DistanceFrom(PointOf(place)), kOff) << NameOf(id);
      }
    }
  }
}

TEST(StrokePathOf, LiesOnTheDotsFromThePensFirstToItsLast) {
  for (int tile = 1; tile <= 26; ++tile) ExpectPathsOf({.set = "engs", .tile = tile, .form = {}});
}

TEST(StrokePathOf, SweepOfEveryLetterLiesOnTheDotsFromThePensFirstToItsLast) {
  for (const LetterId& id : EveryLetter()) ExpectPathsOf(id);
}

TEST(StrokePathOf, HasAnArcAsAFewCurves) {
  const QPainterPath c = StrokePathOf(CapitalOf(3), 0);
  EXPECT_LE(c.elementCount(), 1 + 3 * 4);
  EXPECT_EQ(c.elementAt(1).type, QPainterPath::CurveToElement);
}

TEST(StrokePathOf, OfALetterWithoutStrokesIsNotAskedFor) {
  EXPECT_TRUE(LetterPathOf(LetterOf({.set = "hinv", .tile = 14, .form = {}})).isEmpty());
  EXPECT_TRUE(LetterPathOf(LetterOf({.set = "greek", .tile = 1, .form = {}})).isEmpty());
}

TEST(LetterPathOf, HasTheFirstStrokesAlone) {
  const Letter& a = CapitalOf(1);
  EXPECT_EQ(LetterPathOf(a, 1), StrokePathOf(a, 0));
  EXPECT_LT(LetterPathOf(a, 2).elementCount(), LetterPathOf(a).elementCount());
}

TEST(PaintLetter, PaintsTheStrokesThatAreAskedFor) {
  // E: the stem from (425, 150) to 350, then the bars at 150, 250 and 350.
  const QImage stem = Painted([](QPainter& p) { PaintLetter(p, CapitalOf(5), {.upTo = 1}); });
  const QImage bars = Painted([](QPainter& p) { PaintLetter(p, CapitalOf(5), {.from = 1}); });
  EXPECT_EQ(GreyAt(stem, 425, 200), 0);
  EXPECT_EQ(GreyAt(stem, 500, 250), 255);
  EXPECT_EQ(GreyAt(bars, 425, 200), 255);
  EXPECT_EQ(GreyAt(bars, 500, 250), 0);
}

TEST(PaintLetter, HasThePensWidthAndRoundEnds) {
  const QImage wide = Painted([](QPainter& p) { PaintLetter(p, CapitalOf(5), {.penWidth = 20}); });
  EXPECT_EQ(GreyAt(wide, 425, 141.5), 0);
  EXPECT_EQ(GreyAt(wide, 416.5, 200), 0);
  EXPECT_EQ(GreyAt(wide, 413.5, 200), 255);
  EXPECT_EQ(GreyAt(wide, 416.5, 141.5), 255);
}

TEST(PaintHollow, IsTheRimOfTheUnitedStrokes) {
  const QImage hollow =
      Painted([](QPainter& p) { PaintHollow(p, CapitalOf(5), {.penWidth = 20}, 3); });
  EXPECT_EQ(GreyAt(hollow, 417, 200), 0) << "the stem's left rim";
  EXPECT_EQ(GreyAt(hollow, 425, 200), 255) << "inside the stem";
  EXPECT_EQ(GreyAt(hollow, 433.5, 200), 0) << "its right rim";
  EXPECT_EQ(GreyAt(hollow, 433.5, 250), 255) << "open where the bar meets it";
}

TEST(PaintBegins, LeavesAWhiteDotWhereEachStrokeBegins) {
  const QImage picture = Painted([](QPainter& p) {
    PaintLetter(p, CapitalOf(5), {.penWidth = 20});
    PaintBegins(p, CapitalOf(5), {.penWidth = 20});
  });
  for (const StrokePath& stroke : CapitalOf(5).Shape().strokes) {
    EXPECT_EQ(GreyAt(picture, stroke.points.front().x, stroke.points.front().y), 255);
  }
  EXPECT_EQ(GreyAt(picture, 425, 200), 0);
}

TEST(PaintSigns, PaintsThoseThatAreAskedFor) {
  const auto numbers = PlaceNumbers(CapitalOf(5).Shape().strokes, {});
  const QImage second =
      Painted([&](QPainter& p) { PaintSigns(p, numbers, {.from = 1, .upTo = 2}); });
  const auto rim = [&](std::size_t i) {
    return GreyAt(second, numbers[i].centre.x - 0.75 * numbers[i].radius, numbers[i].centre.y);
  };
  EXPECT_EQ(rim(0), 255);
  EXPECT_EQ(rim(1), 0);
  EXPECT_EQ(rim(2), 255);
}

TEST(Painting, LeavesThePainterAsItWas) {
  Painted([](QPainter& p) {
    const QPen pen(Qt::red, 3);
    p.setPen(pen);
    p.setBrush(Qt::green);
    const auto numbers = PlaceNumbers(CapitalOf(5).Shape().strokes, {});
    PaintLetter(p, CapitalOf(5));
    PaintHollow(p, CapitalOf(5), {}, 1);
    PaintBegins(p, CapitalOf(5));
    PaintSigns(p, numbers);
    EXPECT_EQ(p.pen(), pen);
    EXPECT_EQ(p.brush(), QBrush(Qt::green));
  });
}

}  // namespace
}  // namespace bramlee
