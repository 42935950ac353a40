// The SVG that moves, looked at in a real browser: what Chromium shows at a quarter, half and the
// end of the letter's time is what the sheet shows then. Browsers smooth round edges coarsely: at a
// picture's own size single pixels are up to 90 levels off where the edges are right to a hundredth
// of a pixel. So there the mean of the edges is compared, and single pixels in a picture that the
// browser draws many times as large.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "tests/film/films.h"

namespace bramlee {
namespace {

/// What Chromium shows of the film, its clock stopped at that second, in a picture that is so many
/// times as large.
QImage InBrowser(const LetterFilm& film, double second, int times = 1) {
  const QTemporaryDir folder;
  QByteArray svg = film.Svg();
  svg.replace("</style>", "path,.n{animation-play-state:paused!important;animation-delay:-" +
                              QByteArray::number(second) + "s!important}</style>");
  QFile file(folder.filePath(QStringLiteral("film.svg")));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(svg);
  file.close();
  const QString shot = folder.filePath(QStringLiteral("shot.png"));
  QProcess process;
  process.start(
      QStringLiteral("chromium"),
      {QStringLiteral("--headless=new"), QStringLiteral("--no-sandbox"),
       QStringLiteral("--disable-gpu"), QStringLiteral("--hide-scrollbars"),
       QStringLiteral("--force-device-scale-factor=%1").arg(times),
       QStringLiteral("--window-size=400,400"),
       QStringLiteral("--user-data-dir=") + folder.filePath(QStringLiteral("user")),
       QStringLiteral("--screenshot=") + shot, QStringLiteral("file://") + file.fileName()});
  process.waitForFinished(-1);
  return QImage(shot);
}

TEST(MovingSvgInBrowser, SweepOfMomentsShowsWhatTheSheetShows) {
  if (!IsInstalled("chromium")) GTEST_SKIP() << "needs chromium";
  for (const auto& [set, tile] : {
           std::pair("engs", 7), {"hinc", 17},
             {"telc", 19}
  }) {
    const LetterFilm film = FilmOf(set, tile, RedOnGrey());
    Frames frames(film);
    for (const double part : {0.25, 0.5, 1.0}) {
      // At its very end the browser begins anew.
      const double second = film.Times().seconds * part + (part == 1 ? 1 : 0);
      EXPECT_LE(MeanApart(frames.At(second), InBrowser(film, second)), 9)
          << set << ' ' << tile << ' ' << part;
    }
  }
}

/// Each pixel the mean of those that stand for it.
QImage Averaged(const QImage& large, int times) {
  QImage small(large.size() / times, QImage::Format_RGB32);
  const int pixels = times * times;
  for (int y = 0; y < small.height(); ++y) {
    for (int x = 0; x < small.width(); ++x) {
      int red = 0, green = 0, blue = 0;
      for (int i = 0; i < pixels; ++i) {
        const QRgb part = large.pixel(x * times + i % times, y * times + i / times);
        red += qRed(part), green += qGreen(part), blue += qBlue(part);
      }
      small.setPixel(x, y, qRgb(red / pixels, green / pixels, blue / pixels));
    }
  }
  return small;
}

TEST(MovingSvgInBrowser, EndsWithTheSheetsPixels) {
  if (!IsInstalled("chromium")) GTEST_SKIP() << "needs chromium";
  constexpr int kTimes = 8;
  const LetterFilm film = FilmOf("engs", 7, RedOnGrey());
  const QImage large = InBrowser(film, film.Times().seconds + 1, kTimes);
  ASSERT_EQ(large.size(), QSize(400, 400) * kTimes);
  const std::vector<int> apart = InkApart(LastOf(film), Averaged(large, kTimes));
  EXPECT_LE(apart[apart.size() * 99 / 100], 9);
  EXPECT_LE(apart.back(), 20);
}

}  // namespace
}  // namespace bramlee
