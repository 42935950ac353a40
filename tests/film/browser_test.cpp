// The SVG that moves, looked at in a real browser: what Chromium shows at a quarter, half and the
// end of the letter's time is what the sheet shows then.
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "tests/film/films.h"

namespace bramlee {
namespace {

/// What Chromium shows of the film, its clock stopped at that second.
QImage InBrowser(const LetterFilm& film, double second) {
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
       QStringLiteral("--force-device-scale-factor=1"), QStringLiteral("--window-size=400,400"),
       QStringLiteral("--user-data-dir=") + folder.filePath(QStringLiteral("user")),
       QStringLiteral("--screenshot=") + shot, QStringLiteral("file://") + file.fileName()});
  process.waitForFinished(-1);
  return QImage(shot);
}

TEST(MovingSvgInBrowser, ShowsWhatTheSheetShows) {
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

}  // namespace
}  // namespace bramlee
