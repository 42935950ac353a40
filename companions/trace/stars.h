// The stars that a child earns: one over the sheet for a second, a small one on the letter's tile.
#pragma once

#include <QObject>
#include <QPointF>
#include <QTimer>
#include <map>

#include "board/sheet.h"
#include "ink/ink.h"

namespace bramlee {

class PictureBox;

/// A star that our own pen draws over the sheet, and that goes after a second.
class SheetStar : public QObject, public SheetLayer {
 public:
  SheetStar(Sheet& sheet, QObject* parent);
  /// `centre` in sheet pixels.
  void Draw(QPointF centre);
  bool IsSeen() const { return frame_ >= 0; }
  void Paint(QPainter& painter) const override;

 private:
  void NextFrame();

  Sheet& sheet_;
  QPointF centre_;
  int frame_ = -1;
  QTimer frames_;
};

/// The stars on a board's tiles, until the board goes. A full star stays full.
class TileStars {
 public:
  /// Full for a letter that was written without help.
  void Give(PictureBox& tile, bool full);

 private:
  std::map<PictureBox*, bool> full_;
};

}  // namespace bramlee
