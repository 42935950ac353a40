// Sheets read back from the PDF by another program: lengths on paper, and dots.
#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "paper/figure.h"
#include "paper/pdf_file.h"
#include "paper/worksheet.h"
#include "tests/paper/pdf_reading.h"

namespace bramlee {
namespace {

constexpr double kOffMm = 0.2;

/// A letter of each set, with what rises over its body or hangs below.
const LetterId kLetters[] = {
    {.set = "engc", .tile = 17, .form = {.book = true}},
    {.set = "engs", .tile = 7,  .form = {.book = true}},
    {.set = "hinv", .tile = 9,  .form = {.book = true}},
    {.set = "hinc", .tile = 1,  .form = {.book = true}},
    {.set = "telv", .tile = 2,  .form = {.book = true}},
    {.set = "telc", .tile = 9,  .form = {.book = true}},
    {.set = "mat",  .tile = 8,  .form = {.book = true}},
};

/// The page of a sheet that has that letter alone, in one row of one cell without lines.
QImage PageWith(const Practice& practice, RowKind kind, double bodyMm) {
  Worksheet sheet{.practices = {practice}};
  sheet.practices[0].caption.clear();
  sheet.style = {.rows = {kind}, .bodyMm = bodyMm, .ruling = Ruling::None};
  sheet.page.paperMm = {2 * kMarginMm + 2 * Figure(practice, bodyMm, Hand::Right).HalfWidthMm() + 5,
                        150};
  sheet.heading.shown = false;
  const LaidOut made = LayOut(sheet);
  const QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("sheet.pdf"));
  if (!made.error.IsNone() || !WritePdf(*made.pages, {}, file).IsNone()) return {};
  return PageOfPdf(file);
}

/// What is at least half covered by that ink, in dots of the page.
QRect Inked(const QImage& page, int ink) {
  const int half = (255 + ink) / 2;
  QRect box;
  for (int y = 0; y < page.height(); ++y) {
    for (int x = 0; x < page.width(); ++x) {
      if (qGray(page.pixel(x, y)) <= half) box |= QRect(x, y, 1, 1);
    }
  }
  return box;
}

/// The middles of spots of ink, in millimetres.
std::vector<QPointF> Spots(QImage page) {
  std::vector<QPointF> spots;
  const auto take = [&page](QPoint at) {
    double x = 0, y = 0, weight = 0;
    std::vector<QPoint> open{at};
    while (!open.empty()) {
      const QPoint place = open.back();
      open.pop_back();
      if (!page.rect().contains(place) || qGray(page.pixel(place)) > 250) continue;
      const double dark = 255 - qGray(page.pixel(place));
      page.setPixel(place, qRgb(255, 255, 255));
      x += dark * (place.x() + 0.5), y += dark * (place.y() + 0.5), weight += dark;
      for (const QPoint step : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)}) {
        open.push_back(place + step);
      }
    }
    return QPointF(x, y) / weight / kDotsPerMm;
  };
  page = page.convertToFormat(QImage::Format_RGB32);
  for (int y = 0; y < page.height(); ++y) {
    for (int x = 0; x < page.width(); ++x) {
      if (qGray(page.pixel(x, y)) < 150) spots.push_back(take({x, y}));
    }
  }
  return spots;
}

double Apart(const QPointF& a, const QPointF& b) {
  return std::hypot(a.x() - b.x(), a.y() - b.y());
}

template <class Places>
QPointF MiddleOf(const Places& places) {
  QPointF sum;
  for (const QPointF& place : places) sum += place;
  return sum / static_cast<double>(places.size());
}

class Geometry : public testing::TestWithParam<double> {};
INSTANTIATE_TEST_SUITE_P(Sizes, Geometry, testing::ValuesIn(kBodySizesMm));

TEST_P(Geometry, OfLettersOnPaperIsThatOfTheirStrokes) {
  SKIP_WITHOUT_PDF_TOOLS();
  const double body = GetParam();
  for (const LetterId& id : kLetters) {
    const Practice practice = PracticeOf(id);
    const double scale = body / practice.lines.BodyHeight();
    const QRect ink = Inked(PageWith(practice, RowKind::Grey, body), 0xBE);
    const Box& way = practice.letter.Bounds();
    const double pen = 0.06 * body;
    EXPECT_NEAR(ink.width() / kDotsPerMm, way.width * scale + pen, kOffMm) << id.set;
    EXPECT_NEAR(ink.height() / kDotsPerMm, way.height * scale + pen, kOffMm) << id.set;
  }
}

TEST_P(Geometry, OfDotsOnPaperIsThatOfTheirPlaces) {
  SKIP_WITHOUT_PDF_TOOLS();
  const double body = GetParam();
  for (const LetterId& id : kLetters) {
    const Figure figure(PracticeOf(id), body, Hand::Right);
    std::vector<QPointF> spots = Spots(PageWith(figure.Shown(), RowKind::Dotted, body));
    ASSERT_EQ(static_cast<qsizetype>(spots.size()), figure.Dots().size())
        << id.set << ": none overlap";
    const QPointF middle = MiddleOf(spots);
    const QPointF own = MiddleOf(figure.Dots());
    for (const QPointF& dot : figure.Dots()) {
      const QPointF expected = middle + (dot - own) * figure.Scale();
      const auto nearest = std::ranges::min_element(
          spots, {}, [&](const QPointF& spot) { return Apart(spot, expected); });
      EXPECT_LT(Apart(*nearest, expected), kOffMm) << id.set;
    }
  }
}

}  // namespace
}  // namespace bramlee
