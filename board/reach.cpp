#include "board/reach.h"

#include <algorithm>

#include "engine/last_point.h"

namespace bramlee {
namespace {

constexpr double kCoarseStep = 1;
constexpr double kHalfPen = 5;

QRectF AroundPen(double left, double top, double right, double bottom) {
  return QRectF(QPointF(left, top), QPointF(right, bottom))
      .adjusted(-kHalfPen, -kHalfPen, kHalfPen, kHalfPen);
}

/// A surface that only remembers how far its dots reach.
class Bounds : public DrawingSurface {
 public:
  void PSet(float x, float y) override {
    left_ = std::min(left_, x), right_ = std::max(right_, x);
    top_ = std::min(top_, y), bottom_ = std::max(bottom_, y);
  }
  double Step() const override { return kCoarseStep; }

  QRectF Reach() const {
    if (left_ > right_) return {};
    return AroundPen(static_cast<double>(left_), static_cast<double>(top_),
                     static_cast<double>(right_), static_cast<double>(bottom_));
  }

 private:
  static constexpr float kFar = 1e9F;
  float left_ = kFar, right_ = -kFar, top_ = kFar, bottom_ = -kFar;
};

}  // namespace

QRectF ReachOf(WriteLetter program, StrokeRec rec) {
  const KeepLastPoint kept;
  Bounds bounds;
  program(rec, bounds);
  return bounds.Reach();
}

QRectF ReachOf(const SheetExtent& extent) {
  return AroundPen(extent.left, extent.top, extent.right, extent.bottom);
}

}  // namespace bramlee
