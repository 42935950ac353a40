#include "film/film_file.h"

#include <QBuffer>
#include <QFile>
#include <QImageWriter>
#include <QPainter>
#include <QTemporaryDir>
#include <cmath>
#include <utility>

#include "film/ffmpeg.h"
#include "film/frames.h"
#include "film/gif_palette.h"

namespace bramlee {
namespace {

const QString kNoMemory = QStringLiteral("there is not enough memory for pictures of that size");
const QString kCancelled = QStringLiteral("cancelled");

int RateOf(FilmKind kind) {
  return kind == FilmKind::Gif ? kGifRate : kVideoRate;
}

/// From the empty picture to the first that shows all.
int FrameCount(const LetterFilm& film, FilmKind kind) {
  return static_cast<int>(std::ceil(film.Times().seconds * RateOf(kind))) + 1;
}

QStringList Words(const char* text) {
  return QString::fromLatin1(text).split(u' ', Qt::SkipEmptyParts);
}

/// What ffmpeg reads.
QStringList InputArguments(const LetterFilm& film, const FilmOrder& order) {
  const QSize size = film.Pixels();
  QStringList arguments = Words("-f rawvideo -pix_fmt");
  arguments << (order.kind == FilmKind::Gif ? QStringLiteral("pal8") : QStringLiteral("bgra"))
            << QStringLiteral("-s") << QStringLiteral("%1x%2").arg(size.width()).arg(size.height())
            << QStringLiteral("-framerate") << QString::number(RateOf(order.kind))
            << QStringLiteral("-i") << QStringLiteral("pipe:0");
  if (CanSpeak(order.kind) && !order.sound.isEmpty()) {
    arguments << QStringLiteral("-i") << order.sound << Words("-map 0:v -map 1:a");
  }
  return arguments;
}

/// The last frame stands for the rest; sizes are even, as the coders want them; colours are those
/// of screens, said so that players do not guess.
QString VideoFilter(const LetterFilm& film) {
  return QStringLiteral(
             "tpad=stop_mode=clone:stop_duration=%1,pad=ceil(iw/2)*2:ceil(ih/2)*2:color=%2,"
             "scale=out_color_matrix=bt709:out_range=tv")
      .arg(film.Look().rest)
      .arg(film.Look().ground ? film.Look().ground->name() : QStringLiteral("white@0"));
}

/// What ffmpeg makes of it.
QStringList OutputArguments(const LetterFilm& film, FilmKind kind) {
  if (kind == FilmKind::Gif) {
    return Words("-f gif -loop 0 -final_delay")
           << QString::number(std::lround(film.Look().rest * 100));
  }
  const QStringList colours = Words("-colorspace bt709 -color_primaries bt709 -color_trc bt709");
  const QStringList filter{QStringLiteral("-vf"), VideoFilter(film)};
  if (kind == FilmKind::Webm) {
    return filter + colours +
           Words(
               "-c:v libvpx-vp9 -b:v 0 -crf 32 -deadline good -cpu-used 2 -threads 1 -g 999 "
               "-auto-alt-ref 0 -c:a libopus -b:a 32k -ac 1 -f webm -pix_fmt") +
           QStringList{film.Look().ground ? QStringLiteral("yuv420p") : QStringLiteral("yuva420p")};
  }
  return filter + colours +
         Words(
             "-c:v libx264 -preset slow -tune animation -crf 22 -threads 1 -pix_fmt yuv420p "
             "-c:a aac -b:a 48k -ac 1 -movflags +faststart -f mp4");
}

/// The bytes of a frame as ffmpeg reads them.
class FrameBytes {
 public:
  FrameBytes(const LetterFilm& film, FilmKind kind)
      : palette_(film), isGif_(kind == FilmKind::Gif), onWhite_(kind == FilmKind::Mp4) {
    QList<QRgb> colours = palette_.Colours();
    colours.resize(256, colours.constLast());
    colourBytes_ = QByteArray(reinterpret_cast<const char*>(colours.constData()),
                              256 * static_cast<qsizetype>(sizeof(QRgb)));
  }

  QByteArray Of(const QImage& frame) {
    if (isGif_) return LinesOf(palette_.Indexed(frame), 1) + colourBytes_;
    if (onWhite_ && frame.hasAlphaChannel()) return LinesOf(OnWhite(frame), 4);
    return LinesOf(frame, 4);
  }

 private:
  static QByteArray LinesOf(const QImage& picture, int bytesPerPixel) {
    const auto length = static_cast<qsizetype>(picture.width()) * bytesPerPixel;
    QByteArray bytes;
    bytes.reserve(length * picture.height());
    for (int y = 0; y < picture.height(); ++y) {
      bytes.append(reinterpret_cast<const char*>(picture.constScanLine(y)), length);
    }
    return bytes;
  }
  static QImage OnWhite(const QImage& frame) {
    QImage picture(frame.size(), QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter(&picture).drawImage(0, 0, frame);
    return picture;
  }

  GifPalette palette_;
  bool isGif_;
  bool onWhite_;
  QByteArray colourBytes_;
};

/// Passes all frames on. An error, or nothing.
QString WriteFrames(const LetterFilm& film, const FilmOrder& order, Ffmpeg& ffmpeg,
                    const std::stop_token& stop) {
  Frames frames(film);
  FrameBytes bytes(film, order.kind);
  const int count = FrameCount(film, order.kind);
  for (int i = 0; i < count; ++i) {
    const QImage frame = frames.At(static_cast<double>(i) / RateOf(order.kind));
    if (frame.isNull()) return kNoMemory;
    if (!ffmpeg.Write(bytes.Of(frame))) break;  // it says why at its end
    order.frameDone();
  }
  return stop.stop_requested() ? kCancelled : ffmpeg.Finish();
}

MadeFilm MakeByFfmpeg(const LetterFilm& film, const FilmOrder& order, const std::stop_token& stop) {
  const QTemporaryDir folder;
  if (!folder.isValid()) return {.files = {}, .error = folder.errorString()};
  const QString path = folder.filePath(QStringLiteral("film.") + SuffixOf(order.kind));
  Ffmpeg ffmpeg(InputArguments(film, order) + OutputArguments(film, order.kind) + QStringList{path},
                stop);
  const QString error = WriteFrames(film, order, ffmpeg, stop);
  if (!error.isEmpty()) return {.files = {}, .error = error};
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {.files = {}, .error = file.errorString()};
  return {.files = {file.readAll()}, .error = {}};
}

MadeFilm MakeSteps(const LetterFilm& film, const FilmOrder& order, const std::stop_token& stop) {
  MadeFilm made;
  Frames frames(film);
  for (std::size_t step = 1; step <= film.Shown().PenStrokes().size(); ++step) {
    if (stop.stop_requested()) return {.files = {}, .error = kCancelled};
    const QImage picture = frames.AfterStrokes(step);
    if (picture.isNull()) return {.files = {}, .error = kNoMemory};
    QBuffer bytes;
    QImageWriter png(&bytes, "png");
    if (!png.write(picture)) return {.files = {}, .error = png.errorString()};
    made.files << bytes.data();
    order.frameDone();
  }
  return made;
}

}  // namespace

QString SuffixOf(FilmKind kind) {
  switch (kind) {
    case FilmKind::Svg:
      return QStringLiteral("svg");
    case FilmKind::Gif:
      return QStringLiteral("gif");
    case FilmKind::Webm:
      return QStringLiteral("webm");
    case FilmKind::Mp4:
      return QStringLiteral("mp4");
    case FilmKind::Steps:
      return QStringLiteral("png");
  }
  return {};
}

bool NeedsFfmpeg(FilmKind kind) {
  return kind == FilmKind::Gif || CanSpeak(kind);
}

bool CanSpeak(FilmKind kind) {
  return kind == FilmKind::Webm || kind == FilmKind::Mp4;
}

int FramesOf(const LetterFilm& film, FilmKind kind) {
  if (NeedsFfmpeg(kind)) return FrameCount(film, kind);
  if (kind == FilmKind::Svg) return 1;
  return std::max(1, static_cast<int>(film.Shown().PenStrokes().size()));
}

QString FilmTrouble(const LetterFilm& film) {
  const int pixels = film.Look().pixels;
  if (pixels < kLeastPixels || pixels > kMostPixels) {
    return QStringLiteral("pictures are %1 to %2 pixels wide").arg(kLeastPixels).arg(kMostPixels);
  }
  if (!film.HasStrokes()) return QStringLiteral("%1 has no strokes").arg(film.Name());
  if (film.Times().seconds <= kLongestFilm) return {};
  return QStringLiteral("the pen is so slow that %1 takes more than %2 minutes")
      .arg(film.Name())
      .arg(kLongestFilm / 60);
}

MadeFilm MakeFilm(const LetterFilm& film, const FilmOrder& order, const std::stop_token& stop) {
  if (stop.stop_requested()) return {.files = {}, .error = kCancelled};
  if (NeedsFfmpeg(order.kind)) return MakeByFfmpeg(film, order, stop);
  if (order.kind == FilmKind::Steps) return MakeSteps(film, order, stop);
  order.frameDone();
  return {.files = {film.Svg()}, .error = {}};
}

}  // namespace bramlee
