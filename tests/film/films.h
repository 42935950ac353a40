// What tests of films share: films of letters, and how far two pictures lie apart.
#pragma once

#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QStandardPaths>
#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <vector>

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

/// How far apart, in levels of 255, are the pixels that the first picture has inked and all that
/// differ by more than rounding, the least first; one of 255 for pictures of other sizes.
inline std::vector<int> InkApart(const QImage& picture, const QImage& other) {
  constexpr int kRounding = 1;
  std::vector<int> all;
  const QRgb ground = picture.pixel(0, 0);
  for (int y = 0; y < picture.height() && picture.size() == other.size(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const int apart = Apart(picture.pixel(x, y), other.pixel(x, y));
      if (picture.pixel(x, y) != ground || apart > kRounding) all.push_back(apart);
    }
  }
  if (all.empty()) all.push_back(picture.size() == other.size() ? 0 : 255);
  std::ranges::sort(all);
  return all;
}

/// The mean of them.
inline double MeanApart(const QImage& picture, const QImage& other) {
  const std::vector<int> all = InkApart(picture, other);
  return std::accumulate(all.begin(), all.end(), 0.0) / static_cast<double>(all.size());
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
