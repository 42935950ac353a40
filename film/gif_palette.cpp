#include "film/gif_palette.h"

#include <limits>

#include "film/frames.h"
#include "ink/stroke_signs.h"

namespace bramlee {
namespace {

/// Steps from one colour to another: at most 8 of 255 levels apart.
constexpr int kSteps = 32;
/// The same at the edges of signs, which are thin.
constexpr int kSignSteps = 28;

constexpr qsizetype kMostColours = 256;
/// Levels of a colour's red, green or blue that a frame may differ from the sheet's own picture.
constexpr int kOff = 8;

int SquareDistance(QRgb one, QRgb other) {
  const int red = qRed(one) - qRed(other);
  const int green = qGreen(one) - qGreen(other);
  const int blue = qBlue(one) - qBlue(other);
  return red * red + green * green + blue * blue;
}

}  // namespace

GifPalette::GifPalette(const LetterFilm& film) {
  const QColor ink = film.Look().ink;
  const SignColours signs;
  if (film.Look().ground) {
    AddMixtures(*film.Look().ground, ink, kSteps);
  } else {
    colours_ << qRgba(0, 0, 0, 0) << ink.rgb();
  }
  if (film.Numbers().empty()) return;
  AddMixtures(signs.sign, signs.rim, kSignSteps);
  AddMixtures(ink, signs.rim, kSignSteps);
  AddMixtures(ink, signs.sign, kSignSteps);
  if (!film.Look().ground) return;
  AddMixtures(*film.Look().ground, signs.rim, kSignSteps);
  AddMixtures(*film.Look().ground, signs.sign, kSignSteps);
  AddMissing(Frames(film).At(film.Times().seconds));
}

/// Where three colours meet in a pixel.
void GifPalette::AddMissing(const QImage& frame) {
  for (int y = 0; y < frame.height(); ++y) {
    const auto* line = reinterpret_cast<const QRgb*>(frame.constScanLine(y));
    for (int x = 0; x < frame.width() && colours_.size() < kMostColours; ++x) {
      const QRgb near = colours_[IndexOf(line[x])];
      if (SquareDistance(near, line[x]) <= kOff * kOff) continue;
      colours_ << (line[x] | 0xFF000000U);
      found_.clear();
    }
  }
}

void GifPalette::AddMixtures(const QColor& one, const QColor& other, int steps) {
  for (int i = 0; i <= steps; ++i) {
    const auto part = [&](int from, int to) { return from + (to - from) * i / steps; };
    const QRgb colour = qRgb(part(one.red(), other.red()), part(one.green(), other.green()),
                             part(one.blue(), other.blue()));
    if (!colours_.contains(colour)) colours_ << colour;
  }
}

uchar GifPalette::IndexOf(QRgb colour) {
  if (qAlpha(colour) < 128) return 0;
  const QRgb opaque = colour | 0xFF000000U;
  const auto known = found_.constFind(opaque);
  if (known != found_.constEnd()) return *known;
  int nearest = std::numeric_limits<int>::max();
  qsizetype index = 0;
  for (qsizetype i = 0; i < colours_.size(); ++i) {
    if (qAlpha(colours_[i]) == 0) continue;
    const int distance = SquareDistance(colours_[i], opaque);
    if (distance < nearest) nearest = distance, index = i;
  }
  return *found_.insert(opaque, static_cast<uchar>(index));
}

QImage GifPalette::Indexed(const QImage& frame) {
  QImage indexed(frame.size(), QImage::Format_Indexed8);
  indexed.setColorTable(colours_);
  for (int y = 0; y < frame.height(); ++y) {
    const auto* from = reinterpret_cast<const QRgb*>(frame.constScanLine(y));
    uchar* to = indexed.scanLine(y);
    QRgb colour = from[0];
    uchar index = IndexOf(colour);
    for (int x = 0; x < frame.width(); ++x) {
      if (from[x] != colour) colour = from[x], index = IndexOf(colour);
      to[x] = index;
    }
  }
  return indexed;
}

}  // namespace bramlee
