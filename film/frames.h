// The pictures that a letter's film is made of.
#pragma once

#include <QImage>
#include <cstddef>

#include "film/letter_film.h"
#include "ink/ink.h"
#include "writing/page.h"
#include "writing/player.h"

namespace bramlee {

/// Writes the letter of a film with the ink of the boards and takes pictures on the way. It goes
/// forward only.
class Frames {
 public:
  /// The film outlives its frames.
  explicit Frames(const LetterFilm& film);
  Frames(const Frames&) = delete;
  Frames& operator=(const Frames&) = delete;

  /// What stands so many seconds after the pen begins; at or after the film's end, the whole
  /// letter. The picture is opaque over a ground and has transparent places without one. A null
  /// picture when there is no memory for it.
  QImage At(double second);
  /// What stands when so many of the letter's strokes are written whole, with the sign of the last
  /// of them where the film has numbers.
  QImage AfterStrokes(std::size_t strokes);

 private:
  /// Numbers of strokes, from the first to before the last.
  struct Signs {
    std::size_t first;
    std::size_t last;
  };
  QImage Taken(const Signs& signs);
  Signs SignsToCome();
  void PaintSigns(QImage& picture, const Signs& signs) const;

  const LetterFilm& film_;
  Page page_;
  Ink ink_;
  Player player_;
  QRectF area_;
  QColor ground_;
  QImage dots_;  ///< the ink alone over the ground
  std::int64_t written_ = 0;
};

}  // namespace bramlee
