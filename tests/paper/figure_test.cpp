// Letters as worksheets show them.
#include "paper/figure.h"

#include <gtest/gtest.h>

#include <QPainter>

#include "letters/letter_sets.h"
#include "strokes/word.h"
#include "tests/paper/painted.h"

namespace bramlee {
namespace {

/// Where a place of a figure's sheet is painted: its middle at 40 mm, its base line at 60.
QPointF OnPaper(const Figure& figure, const Point& place) {
  const Box& box = figure.Shown().letter.Bounds();
  return {40 + (place.x - box.x - box.width / 2) * figure.Scale(), 60 - figure.OverBaseMm(place.y)};
}

TEST(Figures, OfModelsHaveBeginsAndNumbers) {
  const Figure figure(Tile("engc", 5), 20, Hand::Right);
  QImage picture(1000, 1000, QImage::Format_Grayscale8);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.scale(kDotsPerMm, kDotsPerMm);
  figure.Paint(painter, RowKind::Model, 40, 60);
  painter.end();
  const auto isDark = [&](const Point& place) {
    const QPointF at = OnPaper(figure, place);
    return IsDark(picture, at.x(), at.y());
  };
  for (const StrokePath& stroke : figure.Shown().letter.Shape().strokes) {
    EXPECT_FALSE(isDark(stroke.points.front()));
    EXPECT_TRUE(isDark(stroke.points[stroke.points.size() * 3 / 4]));
  }
  for (const StrokeNumber& number : figure.Numbers()) {
    EXPECT_TRUE(isDark({number.centre.x - 0.75 * number.radius, number.centre.y}));
  }
}

TEST(Figures, HaveNumbersThatCanBeReadWithinTheirWidth) {
  for (const double body : kBodySizesMm) {
    for (const int tile : {1, 11, 13}) {
      const Figure figure(Tile("hinv", tile), body, Hand::Right);
      const Box& box = figure.Shown().letter.Bounds();
      for (const StrokeNumber& number : figure.Numbers()) {
        const double radius = number.radius * figure.Scale();
        EXPECT_GE(radius, 1.14);
        EXPECT_LE(radius, 2.11);
        const double off = std::abs(number.centre.x - box.x - box.width / 2) * figure.Scale();
        EXPECT_GE(figure.HalfWidthMm() + 0.01, off + radius);
      }
    }
  }
}

TEST(Practices, OfWordsStandOnTheLineOfWords) {
  for (const char* word : {"Ram", "राम", "రామ"}) {
    EXPECT_NEAR(WordPractice(QString::fromUtf8(word)).lines.base, kWordBase, 1e-9) << word;
  }
}

/// Every letter of the book and every alternative one, at each size.
TEST(Figures, SweepOfAllLettersHasCleanNumbers) {
  for (const double body : kBodySizesMm) {
    int numbers = 0, clean = 0;
    for (const LetterSet& set : LetterSets()) {
      for (int tile = 1; tile <= set.tiles; ++tile) {
        const Figure figure(Tile(set.name, tile), body, Hand::Right);
        for (const StrokeNumber& number : figure.Numbers()) {
          if (number.radius > 0) ++numbers, clean += number.clean ? 1 : 0;
        }
      }
    }
    EXPECT_GT(numbers, 500);
    EXPECT_GE(clean * 100, numbers * 99) << body << " mm: " << clean << " of " << numbers;
  }
}

}  // namespace
}  // namespace bramlee
