// The pictures of a letter's film against the sheet's own.
#include "film/frames.h"

#include <gtest/gtest.h>

#include "engine/primitives.h"
#include "tests/film/films.h"

namespace bramlee {
namespace {

/// What a sheet shows of the letter.
QImage OnTheSheet(const LetterFilm& film) {
  Ink ink(film.Shown().Step());
  ink.SetPen(WordOf(film.Look().ink));
  for (const auto& run : film.Shown().Runs()) WriteRun(ink, run);
  const Box& view = film.View();
  QImage picture = ink.Picture({view.x, view.y, view.width, view.height}, film.Scale(),
                               film.Look().ground.value_or(QColor(Qt::black)));
  picture.setDevicePixelRatio(1);
  return picture;
}

/// The colour at a place of the sheet.
QRgb At(const QImage& picture, const LetterFilm& film, double x, double y) {
  return picture.pixel(static_cast<int>((x - film.View().x) * film.Scale()),
                       static_cast<int>((y - film.View().y) * film.Scale()));
}

TEST(Frames, EndWithTheSheetsOwnPicture) {
  for (const auto& [set, tile] : {
           std::pair("engc", 1),
           {"engs", 7  },
           {"hinc", 111},
           {"telv", 6  },
           {"telc", 19 },
           {"mat",  17 }
  }) {
    const LetterFilm film = FilmOf(set, tile, RedOnGrey());
    const QImage last = LastOf(film);
    EXPECT_EQ(last.size(), QSize(400, 400));
    EXPECT_EQ(last, OnTheSheet(film)) << set << tile;
  }
}

TEST(Frames, OfAWordAreAsHighAsItNeeds) {
  for (const int pixels : {33, 400, 401}) {
    FilmLook look = RedOnGrey();
    look.pixels = pixels;
    const LetterFilm film = FilmOfWord("Venkateshwara", look);
    const QImage last = LastOf(film);
    EXPECT_EQ(last.size(), film.Pixels());
    EXPECT_EQ(last.width(), pixels);
    EXPECT_LT(last.height(), pixels / 3);
    EXPECT_EQ(last, OnTheSheet(film));
    EXPECT_NEAR(film.View().height * film.Scale(), last.height(), 1e-6) << "whole pixels";
  }
  EXPECT_EQ(FilmOfWord("I", RedOnGrey()).Pixels(), QSize(400, 400));
}

TEST(Frames, AreOfTheSizeThatIsWanted) {
  for (const int pixels : {16, 33, 400, 401, 799}) {
    FilmLook look = RedOnGrey();
    look.pixels = pixels;
    EXPECT_EQ(LastOf(FilmOf("engs", 7, look)).size(), QSize(pixels, pixels));
  }
}

TEST(Frames, BeginEachStrokeWithinAFrameOfTheSheet) {
  const LetterFilm film = FilmOf("hinc", 3, RedOnGrey());  // its strokes begin apart
  const double frame = 1.0 / 25;
  for (std::size_t stroke = 0; stroke < 3; ++stroke) {
    const Point begin = film.Shown().Shape().strokes[stroke].points.front();
    const double second = film.Times().strokes[stroke].begin;
    Frames frames(film);
    EXPECT_EQ(At(frames.At(second - frame), film, begin.x, begin.y), qRgb(0xE0, 0xE0, 0xE0));
    EXPECT_EQ(At(frames.At(second + frame), film, begin.x, begin.y), qRgb(255, 0, 0));
  }
}

TEST(Frames, WithoutAGroundShowWhatIsBehind) {
  FilmLook look{.ink = QColor(Qt::blue), .ground = std::nullopt};
  const QImage last = LastOf(FilmOf("engc", 12, look));
  EXPECT_EQ(qAlpha(last.pixel(0, 0)), 0);
  look.ground = QColor(Qt::white);
  const QImage onWhite = LastOf(FilmOf("engc", 12, look));
  QImage laid(last.size(), QImage::Format_RGB32);
  laid.fill(Qt::white);
  QPainter(&laid).drawImage(0, 0, last);
  EXPECT_LE(MostApart(onWhite, laid), 2);
}

TEST(Frames, ShowTheNumbersOfTheStrokesToCome) {
  FilmLook look = RedOnGrey();
  look.numbers = true;
  const LetterFilm film = FilmOf("hinc", 3, look);
  ASSERT_EQ(film.Numbers().size(), 3U);
  const auto shown = [&](const QImage& picture, std::size_t stroke) {
    const StrokeNumber& number = film.Numbers()[stroke];
    return At(picture, film, number.centre.x, number.centre.y - number.radius * 0.8) !=
           qRgb(0xE0, 0xE0, 0xE0);
  };
  Frames frames(film);
  const QImage first = frames.At(0);
  EXPECT_TRUE(shown(first, 0) && shown(first, 1) && shown(first, 2));
  const QImage second = frames.At(film.Times().strokes[1].begin + 0.01);
  EXPECT_FALSE(shown(second, 0) || shown(second, 1));
  EXPECT_TRUE(shown(second, 2));
  const QImage last = frames.At(film.Times().seconds);
  EXPECT_TRUE(shown(last, 0) && shown(last, 1) && shown(last, 2));
  const QImage step = Frames(film).AfterStrokes(2);
  EXPECT_TRUE(shown(step, 1));
  EXPECT_FALSE(shown(step, 0) || shown(step, 2));
}

TEST(Frames, ShowEveryDotWithAMarginAround) {
  for (const auto& [set, tile] : {
           std::pair("engs", 7), {"hinc", 35},
             {"telv", 6 },
             {"telc", 19},
             {"mat",  8 }
  }) {
    const LetterFilm film = FilmOf(set, tile, RedOnGrey());
    const Box& box = film.Shown().Bounds();
    const Box& view = film.View();
    EXPECT_NEAR(box.x + box.width / 2, view.x + view.width / 2, 0.05) << set << tile;
    EXPECT_NEAR(box.y + box.height / 2, view.y + view.height / 2, 0.05) << set << tile;
    EXPECT_GE(view.width + 0.1, std::max(box.width, box.height) + 50) << set << tile;
  }
}

TEST(Frames, OfSmallSignsKeepTheScaleOfLetters) {
  const LetterFilm dot = FilmOf("hinv", 25, RedOnGrey());
  const LetterFilm letter = FilmOf("engc", 12, RedOnGrey());
  EXPECT_DOUBLE_EQ(dot.Scale(), letter.Scale());
}

}  // namespace
}  // namespace bramlee
