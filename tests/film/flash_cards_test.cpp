// Letters as cards.
#include "film/flash_cards.h"

#include <gtest/gtest.h>

#include "tests/film/films.h"

namespace bramlee {
namespace {

constexpr double kDotsPerMm = 4;

QImage PageOf(const FlashCards& cards, int page) {
  QImage picture((cards.SizeMm() * kDotsPerMm).toSize(), QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.scale(kDotsPerMm, kDotsPerMm);
  cards.Paint(painter, page);
  return picture;
}

/// How many pixels within a rectangle of the page, in millimetres, are rather red.
int RedIn(const QImage& page, const QRectF& mm) {
  const QRect part = QRectF(mm.topLeft() * kDotsPerMm, mm.size() * kDotsPerMm).toRect();
  int red = 0;
  for (int y = part.top(); y <= part.bottom(); ++y) {
    for (int x = part.left(); x <= part.right(); ++x) {
      const QRgb pixel = page.pixel(x, y);
      red += qRed(pixel) > 200 && qGreen(pixel) < 128 ? 1 : 0;
    }
  }
  return red;
}

std::vector<LetterFilm> Capitals(int count) {
  std::vector<LetterFilm> films;
  for (int tile = 1; tile <= count; ++tile) films.push_back(FilmOf("engc", tile, RedOnGrey()));
  return films;
}

/// Where a card lies on an A4 page, its column and row from 0.
QRectF CardAt(int column, int row) {
  const QSizeF card((210 - 2 * kMarginMm) / 2, (297 - 2 * kMarginMm) / 4);
  return {QPointF(kMarginMm + column * card.width(), kMarginMm + row * card.height()), card};
}

TEST(FlashCards, StandEightOnAPage) {
  EXPECT_EQ(FlashCards(Capitals(8)).Count(), 1);
  EXPECT_EQ(FlashCards(Capitals(9)).Count(), 2);
  const FlashCards cards(Capitals(11));
  const QImage first = PageOf(cards, 0);
  const QImage second = PageOf(cards, 1);
  for (int i = 0; i < kCardsOnAPage; ++i) {
    EXPECT_GT(RedIn(first, CardAt(i % 2, i / 2)), 500) << i;
    EXPECT_EQ(RedIn(second, CardAt(i % 2, i / 2)) > 500, i < 3) << i;
  }
}

TEST(FlashCards, HaveOneStrokeMoreInEachStep) {
  const FlashCards cards({FilmOf("hinc", 3, RedOnGrey())});
  const QImage page = PageOf(cards, 0);
  const QRectF card = CardAt(0, 0);
  // The newest stroke of each of three steps is red, those before are pale.
  for (int step = 0; step < 3; ++step) {
    const QRectF cell(card.left() + 4 + step * 17, card.bottom() - 4 - 17, 17, 17);
    EXPECT_GT(RedIn(page, cell), 20) << step;
  }
  EXPECT_EQ(RedIn(page, {card.left() + 4 + 3 * 17, card.bottom() - 21, 30, 17}), 0);
}

TEST(FlashCards, HaveManyStepsInSeveralRows) {
  // "mmmmmm" has more steps than one row could show: they take all of their room's height.
  const LetterFilm word = FilmOfWord("mmmmmm", RedOnGrey());
  const QImage page = PageOf(FlashCards({word}), 0);
  const QRectF card = CardAt(0, 0).marginsRemoved({4, 4, 4, 4});
  const auto redAt = [&](double fromBottom) {
    return RedIn(page, {card.left(), card.bottom() - fromBottom, card.width(), 5}) > 0;
  };
  EXPECT_TRUE(redAt(17) && redAt(5));
}

TEST(FlashCards, PaintNothingOverTheMargins) {
  const QImage page = PageOf(FlashCards(Capitals(8)), 0);
  const int margin = static_cast<int>(kMarginMm * kDotsPerMm) - 2;
  for (int x = 0; x < page.width(); ++x) {
    for (const int y : {0, margin / 2, page.height() - margin / 2, page.height() - 1}) {
      ASSERT_EQ(page.pixel(x, y), qRgb(255, 255, 255));
    }
  }
}

TEST(FlashCards, LeaveOutWhatHasNoStrokes) {
  const FlashCards cards({FilmOf("hinv", 14, RedOnGrey())});
  EXPECT_EQ(cards.Letters(), 0U);
  EXPECT_EQ(cards.Count(), 1);
  EXPECT_EQ(cards.Notes(), QStringList{QStringLiteral("picture has no strokes")});
}

}  // namespace
}  // namespace bramlee
