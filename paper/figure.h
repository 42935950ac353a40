// A letter or word at its size on paper, and how each kind of row shows it.
#pragma once

#include <QList>
#include <QPointF>
#include <vector>

#include "paper/practice.h"
#include "paper/sheet_style.h"

class QPainter;

namespace bramlee {

/// A practice in a body height. Its own coordinates are the practice's sheet pixels.
class Figure {
 public:
  Figure(Practice practice, double bodyMm, Hand hand);

  const Practice& Shown() const { return practice_; }
  /// How many millimetres a sheet pixel is.
  double Scale() const { return scale_; }
  /// Where the model's numbers stand, in sheet pixels.
  const std::vector<StrokeNumber>& Numbers() const { return numbers_; }
  /// The dots of a dotted one, in sheet pixels.
  const QList<QPointF>& Dots() const { return dots_; }
  std::size_t Strokes() const { return practice_.letter.PenStrokes().size(); }

  /// From the middle of its ink to the furthest edge, numbers included, in millimetres.
  double HalfWidthMm() const;
  /// How far it reaches over the base line, in millimetres, the model's numbers included or not.
  double AboveMm(bool model) const;
  /// How far below it; negative when it ends above.
  double BelowMm(bool model) const;
  /// From the base line up to another line, in millimetres.
  double OverBaseMm(double y) const { return (practice_.lines.base - y) * scale_; }

  /// Paints it with the middle of its ink there and its base line at `base`; the painter's unit is
  /// a millimetre. `strokes` says how many a built-up one has, the last of them black.
  void Paint(QPainter& painter, RowKind kind, double middle, double base,
             std::size_t strokes = 0) const;

 private:
  // In sheet pixels.
  double PenWidth() const;
  double DotDiameter() const;

  void PaintModel(QPainter& painter) const;
  void PaintBuiltUp(QPainter& painter, std::size_t strokes) const;
  void PaintDots(QPainter& painter) const;

  Practice practice_;
  double bodyMm_;
  double scale_;
  std::vector<StrokeNumber> numbers_;
  QList<QPointF> dots_;
  Box ink_;    ///< with the pen's width
  Box model_;  ///< with numbers and arrows too
};

}  // namespace bramlee
