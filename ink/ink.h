// The ink of a sheet as pictures.
#pragma once

#include <QColor>
#include <QImage>

#include "ink/colours.h"
#include "ink/dot_journal.h"

namespace bramlee {

/// Fills a part of a 32-bit image. Asks for no memory.
void FillPart(QImage& image, const QRect& part, const QColor& colour) noexcept;

/// The dots of a sheet for windows and pictures of Qt.
class Ink final : public DotJournal {
 public:
  using DotJournal::DotJournal;

  /// All dots over a ground: what lies within `area` (sheet pixels) at `ratio` device pixels to a
  /// sheet pixel. The image carries the ratio. Empty for an empty area or one too large for the
  /// memory.
  QImage Picture(const QRectF& area, double ratio, const QColor& ground) const;

  // As those of the journal.
  static QSize SizeOf(const QRectF& area, double ratio);
  bool Cover(const QRectF& area, double ratio) noexcept;
  QSize CoveredSize() const;
  QRect TakeDirty();
  /// `image` is a 32-bit image of CoveredSize().
  void Compose(QImage& image, const QRect& part) noexcept;
};

}  // namespace bramlee
