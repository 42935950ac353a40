#include "board/reach.h"

#include "engine/last_point.h"
#include "strokes/letter_shape.h"
#include "strokes/run_recorder.h"

namespace bramlee {
namespace {

constexpr double kCoarseStep = 1;
constexpr double kHalfPen = 5;

QRectF AroundPen(double left, double top, double right, double bottom) {
  return QRectF(QPointF(left, top), QPointF(right, bottom))
      .adjusted(-kHalfPen, -kHalfPen, kHalfPen, kHalfPen);
}

}  // namespace

QRectF ReachOf(WriteLetter program, StrokeRec rec) {
  const KeepLastPoint kept;
  RunRecorder recorder(kCoarseStep);
  program(rec, recorder);
  const std::optional<Box> box = BoundsOf(recorder.Runs(), kCoarseStep);
  if (!box) return {};
  return AroundPen(box->x, box->y, box->x + box->width, box->y + box->height);
}

QRectF ReachOf(const SheetExtent& extent) {
  return AroundPen(extent.left, extent.top, extent.right, extent.bottom);
}

}  // namespace bramlee
