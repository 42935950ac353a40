// Pages to look at, to print, or to write to a file: all of paper/ comes to this.
#pragma once

#include <QSizeF>
#include <QString>
#include <QStringList>
#include <memory>

#include "paper/paper_error.h"

class QPainter;

namespace bramlee {

/// Paper, upright, in millimetres.
inline constexpr QSizeF kA4Mm(210, 297);
inline constexpr QSizeF kLetterMm(215.9, 279.4);

/// On each side of a page, in millimetres: what every printer leaves white, and room for a hand.
inline constexpr double kMarginMm = 12;

struct PageFormat {
  QSizeF paperMm = kA4Mm;  ///< upright
  bool landscape = false;

  /// The page as it is read.
  QSizeF SizeMm() const { return landscape ? paperMm.transposed() : paperMm; }
};

/// What a file says of itself.
struct DocumentInfo {
  QString title{};
  QString author{};
  QString language = QStringLiteral("en");  ///< as BCP 47 has it: "en", "hi", "te"
};

/// A document laid out: how many pages it has is known, none is painted yet. Painting changes
/// nothing, so a preview and the printer may share one; all of it in the thread of the windows, as
/// letters and fonts are.
class PrintedPages {
 public:
  virtual ~PrintedPages() = default;

  /// How many; at least one.
  virtual int Count() const = 0;
  /// Of each page, in millimetres as it is read.
  virtual QSizeF SizeMm() const = 0;
  /// Paints a page, 0 to Count() - 1. The painter's unit is a millimetre and its origin the
  /// upper left corner of the paper; nothing is painted over the margins. The painter is left as
  /// it was. The ground is left as it is: paper is white by itself.
  virtual void Paint(QPainter& painter, int page) const = 0;
  /// What had to be left out or made otherwise, a line each for people: a letter without strokes,
  /// a caption that no font can show. Empty when all is as it was asked for.
  virtual QStringList Notes() const = 0;
};

/// What laying out comes to: pages, or why there are none.
struct LaidOut {
  std::shared_ptr<const PrintedPages> pages;  ///< nullptr with an error
  PaperError error;
};

}  // namespace bramlee
