// What tests of films share: films of letters, and how far two pictures lie apart.
#pragma once

#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QStandardPaths>
#include <cstdlib>

#include "film/frames.h"
#include "film/letter_film.h"
#include "strokes/word.h"

namespace bramlee {

inline LetterFilm FilmOf(const char* set, int tile, const FilmLook& look) {
  return {LetterOf({.set = set, .tile = tile, .form = {}}), look};
}

inline LetterFilm FilmOfWord(const char* word, const FilmLook& look) {
  return {LayWord(word).letter, look};
}

inline FilmLook RedOnGrey() {
  return {.ink = QColor(Qt::red), .ground = QColor(0xE0, 0xE0, 0xE0)};
}

inline bool IsInstalled(const char* program) {
  return !QStandardPaths::findExecutable(QString::fromLatin1(program)).isEmpty();
}

/// The whole letter as its film shows it at last.
inline QImage LastOf(const LetterFilm& film) {
  return Frames(film).At(film.Times().seconds);
}

inline int Apart(QRgb one, QRgb other) {
  return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                   std::abs(qBlue(one) - qBlue(other))});
}

/// How far the pictures lie apart in the mean, in levels of 255: of the pixels that the first has
/// inked and of all that differ by more than rounding. 255 for pictures of other sizes.
inline double MeanApart(const QImage& picture, const QImage& other) {
  constexpr int kRounding = 1;
  if (picture.size() != other.size()) return 255;
  const QRgb ground = picture.pixel(0, 0);
  double sum = 0;
  int counted = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const int apart = Apart(picture.pixel(x, y), other.pixel(x, y));
      if (picture.pixel(x, y) == ground && apart <= kRounding) continue;
      sum += apart;
      ++counted;
    }
  }
  return sum / std::max(counted, 1);
}

/// The largest difference of a pixel.
inline int MostApart(const QImage& picture, const QImage& other) {
  if (picture.size() != other.size()) return 255;
  int most = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      most = std::max(most, Apart(picture.pixel(x, y), other.pixel(x, y)));
    }
  }
  return most;
}

}  // namespace bramlee
