// Films as the bytes of files.
#include "film/film_file.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QTemporaryDir>
#include <cmath>

#include "tests/film/films.h"

namespace bramlee {
namespace {

/// A letter of four seconds, its rest among them.
LetterFilm FourSeconds(bool numbers = false) {
  FilmLook look = RedOnGrey();
  look.numbers = numbers;
  look.rate = FilmOf("hinc", 17, look).Times().seconds / (4 - look.rest);
  return FilmOf("hinc", 17, look);
}

struct Gif {
  QList<QImage> frames;
  QList<int> delays;  ///< of each frame, in milliseconds
};

Gif Read(const QByteArray& bytes) {
  QBuffer buffer;
  buffer.setData(bytes);
  QImageReader reader(&buffer, "gif");
  Gif gif;
  for (QImage frame = reader.read(); !frame.isNull(); frame = reader.read()) {
    gif.frames << frame.convertToFormat(QImage::Format_ARGB32);
    gif.delays << reader.nextImageDelay();
  }
  return gif;
}

/// The last picture of a video, and what ffmpeg says of its streams.
struct Video {
  QImage last;
  QImage brightness;  ///< of the last picture, grey, as the video holds it: 16 to 235
  QString streams;
};

Video ReadVideo(const QByteArray& bytes) {
  const QTemporaryDir folder;
  QFile file(folder.filePath(QStringLiteral("film")));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(bytes);
  file.close();
  QProcess process;
  const QString last = folder.filePath(QStringLiteral("last.png"));
  const QString brightness = folder.filePath(QStringLiteral("brightness.png"));
  process.start(QStringLiteral("ffmpeg"),
                QStringLiteral("-i %1 -update 1 %2 -vf extractplanes=y -update 1 %3")
                    .arg(file.fileName(), last, brightness)
                    .split(u' '));
  process.waitForFinished(-1);
  return {.last = QImage(last),
          .brightness = QImage(brightness),
          .streams = QString::fromUtf8(process.readAllStandardError())};
}

/// How far a pixel's brightness is off at most, in levels of 255. Colours have half the picture's
/// size in a video, brightness has all of it.
int MostBrightnessApart(const QImage& picture, const Video& video) {
  if (picture.size() != video.brightness.size()) return 255;
  double most = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const QColor own = picture.pixelColor(x, y);
      const double wanted = 0.2126 * own.red() + 0.7152 * own.green() + 0.0722 * own.blue();
      const double seen = (qGray(video.brightness.pixel(x, y)) - 16) * 255.0 / 219;
      most = std::max(most, std::abs(seen - wanted));
    }
  }
  return static_cast<int>(std::ceil(most));
}

class FilmByFfmpeg : public testing::Test {
 protected:
  void SetUp() override {
    if (!IsInstalled("ffmpeg")) GTEST_SKIP() << "needs ffmpeg";
  }
  static QByteArray Make(const LetterFilm& film, const FilmOrder& order) {
    const MadeFilm made = MakeFilm(film, order);
    EXPECT_EQ(made.error.toStdString(), "");
    EXPECT_EQ(made.files.size(), 1);
    return made.files.value(0);
  }
};

TEST_F(FilmByFfmpeg, GifEndsWithTheSheetsPicture) {
  const LetterFilm film = FourSeconds();
  const QByteArray bytes = Make(film, {.kind = FilmKind::Gif});
  EXPECT_LE(bytes.size(), 25'000);
  const Gif gif = Read(bytes);
  ASSERT_FALSE(gif.frames.isEmpty());
  EXPECT_LE(MostApart(LastOf(film), gif.frames.last()), 9);
  EXPECT_TRUE(bytes.contains("NETSCAPE2.0"));  // it begins again
}

TEST_F(FilmByFfmpeg, GifShowsEachFrameAtItsTime) {
  const LetterFilm film = FourSeconds();
  const Gif gif = Read(Make(film, {.kind = FilmKind::Gif}));
  ASSERT_EQ(gif.frames.size(), FramesOf(film, FilmKind::Gif));
  EXPECT_EQ(gif.delays.first(), 40);
  EXPECT_EQ(gif.delays.last(), 2000);
  Frames frames(film);
  for (qsizetype i = 0; i < gif.frames.size(); ++i) {
    const QImage sheet = frames.At(static_cast<double>(i) / kGifRate);
    ASSERT_LE(MostApart(sheet, gif.frames[i]), 9) << i;
  }
}

TEST_F(FilmByFfmpeg, GifHasNumbersInTheirColours) {
  const LetterFilm film = FourSeconds(true);
  const Gif gif = Read(Make(film, {.kind = FilmKind::Gif}));
  ASSERT_FALSE(gif.frames.isEmpty());
  EXPECT_LE(MostApart(LastOf(film), gif.frames.last()), 9);
}

TEST_F(FilmByFfmpeg, GifWithoutAGroundIsTransparent) {
  const LetterFilm film =
      FilmOf("engc", 3, {.pixels = 101, .ink = QColor(Qt::blue), .ground = std::nullopt});
  const Gif gif = Read(Make(film, {.kind = FilmKind::Gif}));
  ASSERT_FALSE(gif.frames.isEmpty());
  const QImage last = LastOf(film);
  for (int y = 0; y < 101; ++y) {
    for (int x = 0; x < 101; ++x) {
      const QRgb expected = qAlpha(last.pixel(x, y)) < 128 ? 0U : qRgb(0, 0, 255);
      const QRgb seen = gif.frames.last().pixel(x, y);
      ASSERT_EQ(qAlpha(seen) == 0 ? 0U : seen, expected) << x << ' ' << y;
    }
  }
}

TEST_F(FilmByFfmpeg, VideosEndWithTheSheetsPicture) {
  const LetterFilm film = FourSeconds();
  for (const FilmKind kind : {FilmKind::Webm, FilmKind::Mp4}) {
    const QByteArray bytes = Make(film, {.kind = kind});
    const Video video = ReadVideo(bytes);
    EXPECT_LE(MostBrightnessApart(LastOf(film), video), 24) << SuffixOf(kind).toStdString();
    EXPECT_LE(MeanApart(LastOf(film), video.last), 24) << SuffixOf(kind).toStdString();
    EXPECT_TRUE(video.streams.contains(QStringLiteral("Duration: 00:00:04.0")))
        << video.streams.toStdString();
    EXPECT_FALSE(video.streams.contains(QStringLiteral("Audio:")));
    EXPECT_LE(bytes.size(), 20'000);
  }
}

TEST_F(FilmByFfmpeg, VideosOfAnOddSizeAreEven) {
  FilmLook look = RedOnGrey();
  look.pixels = 101;
  for (const FilmKind kind : {FilmKind::Webm, FilmKind::Mp4}) {
    EXPECT_EQ(ReadVideo(Make(FilmOf("engc", 3, look), {.kind = kind})).last.size(),
              QSize(102, 102));
  }
}

TEST_F(FilmByFfmpeg, VideosSpeak) {
  const QTemporaryDir folder;
  const QString sound = folder.filePath(QStringLiteral("a.wav"));
  ASSERT_EQ(QProcess::execute(
                QStringLiteral("ffmpeg"),
                QStringLiteral("-loglevel error -f lavfi -i sine=d=0.5 %1").arg(sound).split(u' ')),
            0);
  for (const FilmKind kind : {FilmKind::Webm, FilmKind::Mp4}) {
    const Video video =
        ReadVideo(Make(FilmOf("engc", 3, RedOnGrey()), {.kind = kind, .sound = sound}));
    EXPECT_TRUE(video.streams.contains(QStringLiteral("Audio:"))) << video.streams.toStdString();
  }
}

TEST_F(FilmByFfmpeg, SaysWhyASoundCannotBeUsed) {
  const MadeFilm made =
      MakeFilm(FilmOf("engc", 3, RedOnGrey()),
               {.kind = FilmKind::Webm, .sound = QStringLiteral("/nowhere/a.wav")});
  EXPECT_TRUE(made.files.isEmpty());
  EXPECT_TRUE(made.error.startsWith(QStringLiteral("ffmpeg failed: /nowhere/a.wav")))
      << made.error.toStdString();
}

TEST_F(FilmByFfmpeg, StopsAtAnyFrame) {
  const LetterFilm film = FilmOf("hinc", 17, RedOnGrey());
  for (const FilmKind kind : {FilmKind::Gif, FilmKind::Webm, FilmKind::Mp4}) {
    for (const int stopAt : {0, 1, 5, FramesOf(film, kind)}) {
      std::stop_source stop;
      int frames = 0;
      if (stopAt == 0) stop.request_stop();
      const FilmOrder order{.kind = kind, .frameDone = [&] {
                              if (++frames == stopAt) stop.request_stop();
                            }};
      const MadeFilm made = MakeFilm(film, order, stop.get_token());
      EXPECT_TRUE(made.files.isEmpty()) << stopAt;
      EXPECT_EQ(made.error.toStdString(), "cancelled") << stopAt;
      EXPECT_EQ(frames, stopAt);
    }
  }
}

TEST_F(FilmByFfmpeg, MakesFilmsOfWords) {
  const LetterFilm film = FilmOfWord("राम", {.pixels = 151, .ink = Qt::red, .ground = Qt::white});
  ASSERT_EQ(film.Pixels().width(), 151);
  const Gif gif = Read(Make(film, {.kind = FilmKind::Gif}));
  ASSERT_FALSE(gif.frames.isEmpty());
  EXPECT_LE(MostApart(LastOf(film), gif.frames.last()), 9);
  const QSize even((film.Pixels().width() + 1) / 2 * 2, (film.Pixels().height() + 1) / 2 * 2);
  for (const FilmKind kind : {FilmKind::Webm, FilmKind::Mp4}) {
    EXPECT_EQ(ReadVideo(Make(film, {.kind = kind})).last.size(), even);
  }
}

TEST(FilmFile, SaysWhatAWordIs) {
  const LetterFilm film = FilmOfWord("राम", RedOnGrey());
  EXPECT_EQ(film.Name(), QStringLiteral("राम"));
  EXPECT_EQ(film.Sign(), QStringLiteral("राम"));
  EXPECT_TRUE(film.Svg().contains("<title>राम</title>"));
  const LetterFilm letter = FilmOf("hinc", 3, RedOnGrey());
  EXPECT_EQ(letter.Name(), QStringLiteral("ga (ग)"));
  EXPECT_EQ(letter.Sign(), QStringLiteral("ग"));
}

TEST(FilmFile, StepsHaveOneStrokeMoreEach) {
  FilmLook look = RedOnGrey();
  const LetterFilm film = FilmOf("hinc", 3, look);
  const MadeFilm made = MakeFilm(film, {.kind = FilmKind::Steps});
  ASSERT_EQ(made.files.size(), 3);
  Frames frames(film);
  for (std::size_t step = 1; step <= 3; ++step) {
    const QImage picture = QImage::fromData(made.files[static_cast<qsizetype>(step) - 1], "png");
    EXPECT_EQ(MostApart(frames.AfterStrokes(step), picture), 0) << step;
  }
  EXPECT_EQ(MostApart(LastOf(film), QImage::fromData(made.files[2], "png")), 0);
}

TEST(FilmFile, SvgIsWhatTheFilmSays) {
  const LetterFilm film = FilmOf("hinc", 3, RedOnGrey());
  EXPECT_EQ(MakeFilm(film, {.kind = FilmKind::Svg}).files, QList{film.Svg()});
}

TEST(FilmFile, RefusesSizesThatNobodyCanUse) {
  for (const int pixels : {-1, 0, 15, 4097, 100'000}) {
    FilmLook look = RedOnGrey();
    look.pixels = pixels;
    EXPECT_EQ(FilmTrouble(FilmOf("engc", 1, look)).toStdString(),
              "pictures are 16 to 4096 pixels wide");
  }
  EXPECT_EQ(FilmTrouble(FilmOf("engc", 1, RedOnGrey())).toStdString(), "");
}

TEST(FilmFile, RefusesATileWithoutStrokes) {
  EXPECT_EQ(FilmTrouble(FilmOf("hinv", 14, RedOnGrey())).toStdString(), "picture has no strokes");
}

TEST(FilmFile, RefusesAPenThatHardlyMoves) {
  FilmLook look = RedOnGrey();
  look.rate = 1e-4;
  EXPECT_EQ(FilmTrouble(FilmOf("engc", 1, look)).toStdString(),
            "the pen is so slow that capital A takes more than 10 minutes");
}

}  // namespace
}  // namespace bramlee
