// The colours of a film's GIF.
#pragma once

#include <QHash>
#include <QImage>
#include <QList>

#include "film/letter_film.h"

namespace bramlee {

/// A GIF has 256 colours. Those of a film are known ahead: ink and ground, the signs' two colours,
/// and the mixtures at their edges. So no frame is dithered, and what stands looks the same in all
/// of them.
class GifPalette {
 public:
  explicit GifPalette(const LetterFilm& film);

  /// The frame in those colours. Without a ground, what is less than half opaque is transparent: a
  /// GIF knows nothing in between.
  QImage Indexed(const QImage& frame);

  /// At most 256.
  const QList<QRgb>& Colours() const { return colours_; }

 private:
  /// Adds the mixtures of two colours, both among them.
  void AddMixtures(const QColor& one, const QColor& other, int steps);
  void AddMissing(const QImage& frame);
  uchar IndexOf(QRgb colour);

  QList<QRgb> colours_;
  QHash<QRgb, uchar> found_;
};

}  // namespace bramlee
