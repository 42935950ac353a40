// What a child sees on the sheet while it traces a letter, beside the ink.
#pragma once

#include <QColor>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <optional>
#include <vector>

#include "board/sheet.h"
#include "strokes/stroke_numbers.h"

namespace bramlee {

/// From picture to picture of what moves, in milliseconds.
inline constexpr int kFrameMs = 20;

/// The letter to trace, pale, beneath all ink.
class TraceGuide : public SheetLayer {
 public:
  /// The strokes still to be written, and the letter's colour over the sheet's ground.
  void Show(std::vector<QPolygonF> strokes, const QColor& pale);
  void Hide() { strokes_.clear(); }
  void Paint(QPainter& painter) const override;

 private:
  std::vector<QPolygonF> strokes_;
  QColor pale_;
};

/// Start dot, arrow, dotted line, the child's own ink and what the pen shows, above all ink. Each
/// change says which part of the sheet it touches.
class TraceMarks : public SheetLayer {
 public:
  /// The way that is on: a dotted line along `rest`, the start dot at its beginning, and the sign
  /// of the stroke; without a number where the way goes on in the stroke's middle.
  struct Way {
    QPolygonF rest;
    int number = 0;  ///< of the stroke in its letter, from 1
    StrokeNumber sign;
  };
  void SetWay(std::optional<Way> way) { way_ = std::move(way); }
  /// How much larger the start dot is for now, 0 to 1.
  void SetPulse(double pulse) { pulse_ = pulse; }

  /// What the pen shows of a stroke for now; empty for nothing.
  void SetShown(QPolygonF shown, const QColor& colour);

  // --- the child's ink. That of a miss goes when the next touch begins; the rest stays.
  void BeginInk(QPointF place);
  void GoOnWithInk(QPointF place);
  void EndInk(bool missed);
  void WipeInk();
  /// Around the last stretch of ink.
  QRectF LastInk() const;

  void Paint(QPainter& painter) const override;

 private:
  struct TouchInk {
    QPolygonF line;
    QRectF around;
    bool missed = false;
  };

  void PaintWay(QPainter& painter) const;
  void PaintInk(QPainter& painter) const;

  std::optional<Way> way_;
  double pulse_ = 0;
  QPolygonF shown_;
  QColor shownColour_;
  std::vector<TouchInk> inks_;
};

}  // namespace bramlee
