// A letter as a moving picture: what is shown of it, how, and when.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QSize>
#include <QString>
#include <optional>
#include <vector>

#include "strokes/letter.h"
#include "strokes/stroke_numbers.h"
#include "writing/timeline.h"

namespace bramlee {

/// The sides of pictures that can be made, in pixels. Twice the larger one takes a gigabyte.
inline constexpr int kLeastPixels = 16;
inline constexpr int kMostPixels = 4096;

/// The longest that a letter may be written, in seconds: a pen so slow that it takes longer is a
/// mistake.
inline constexpr double kLongestFilm = 600;

/// How letters are shown in files.
struct FilmLook {
  int pixels = 400;  ///< width, kLeastPixels to kMostPixels; letters are as high
  QColor ink;
  std::optional<QColor> ground;  ///< none: what is behind the picture shows through
  bool numbers = false;          ///< and arrows, of the strokes to come as on a board
  Hand hand = Hand::Right;       ///< that the numbers keep away from
  double rate = 1;               ///< how many times as fast as usual the pen goes, greater than 0
  double rest = 2;               ///< seconds that the whole letter stands
};

/// A letter in the middle of a square of its sheet, or a word in a part that is as high as it
/// needs. Letters of usual size are shown at one scale, so that a sign which is but a dot stays
/// one; larger ones are made smaller. A value that needs nothing else: it may go to another thread.
class LetterFilm {
 public:
  /// Made in the thread that writes letters elsewhere. With numbers their digits, which are letters
  /// too, are recorded here.
  LetterFilm(Letter letter, const FilmLook& look);

  const Letter& Shown() const { return letter_; }
  const FilmLook& Look() const { return look_; }
  const Timeline& Times() const { return times_; }
  /// The part of the sheet that is shown, in sheet pixels; not higher than wide.
  const Box& View() const { return view_; }
  /// Size of its pictures.
  QSize Pixels() const;
  /// Pixels to a sheet pixel; a trifle less, so that the view never comes to one pixel more.
  double Scale() const { return look_.pixels * (1 - 1e-12) / view_.width; }
  /// One a stroke when numbers are shown, else none.
  const std::vector<StrokeNumber>& Numbers() const { return numbers_; }
  /// Whether the pen writes anything at all.
  bool HasStrokes() const { return times_.seconds > 0; }
  /// What the letter is called, for people; of a word, what it says.
  QString Name() const;
  /// It in print; empty for a letter that has no sign of its own.
  QString Sign() const;

  /// As an SVG picture that moves.
  QByteArray Svg() const;

 private:
  Letter letter_;
  FilmLook look_;
  Timeline times_;
  std::vector<StrokeNumber> numbers_;
  Box view_;
};

}  // namespace bramlee
