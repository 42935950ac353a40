// What is seen of tracing on a board's sheet, and how it moves.
#pragma once

#include <QColor>
#include <QObject>
#include <QTimer>
#include <cstdint>
#include <span>

#include "companions/trace/trace_layers.h"
#include "writing/tracer.h"

namespace bramlee {

/// Shows the guide, the way that is on and the child's ink, and the help that moves: a start dot
/// that pulses, a stroke that is written slowly. Whatever moves ends when the child touches the
/// sheet.
class TraceView : public QObject {
 public:
  explicit TraceView(Sheet& sheet);

  /// The strokes that are left, in that colour, pale over the ground.
  void ShowGuide(std::span<const GuideStroke> strokes, const QColor& colour, const QColor& ground);
  void HideGuide();

  /// The rest of the tracer's stroke, with the sign of that stroke at its start; nothing when it is
  /// finished.
  void ShowWay(const Tracer& tracer, int number, const StrokeNumber& sign, Hand hand);
  void HideWay();

  /// Three pulses of the start dot.
  void Pulse();
  /// The pen shows the stroke, at about a quarter of its pace.
  void ShowStroke(const GuideStroke& stroke, const QColor& colour);
  /// Ends what moves.
  void Stop();

  // --- the child's ink, in sheet pixels
  void BeginInk(QPointF place);
  void GoOnWithInk(QPointF place);
  void EndInk(bool missed);
  void WipeInk();

 private:
  enum class Moves : std::uint8_t { None, Pulse, Stroke };

  void Start(Moves moves);
  void NextFrame();

  Sheet& sheet_;
  TraceGuide guide_;
  TraceMarks marks_;
  Moves moves_ = Moves::None;
  QPolygonF shown_;
  QColor shownColour_;
  int frame_ = 0;
  QTimer frames_;
};

}  // namespace bramlee
