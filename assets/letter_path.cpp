#include "assets/letter_path.h"

#include "engine/last_point.h"
#include "letters/letter_sets.h"

namespace bramlee {
namespace {

/// How far apart the points of a path lie, in sheet pixels or degrees: near enough for a curve.
constexpr double kPathStep = 1;

/// Joins the dots of each run by a line.
class PathSurface : public DrawingSurface {
 public:
  void PSet(float x, float y) override {
    const QPointF dot(static_cast<double>(x), static_cast<double>(y));
    if (begins_) {
      path.moveTo(dot);
    } else {
      path.lineTo(dot);
    }
    begins_ = false;
  }
  double Step() const override { return kPathStep; }
  void BeginRun(Primitive /*primitive*/, std::span<const double> /*arguments*/) override {
    begins_ = true;
  }

  QPainterPath path;

 private:
  bool begins_ = true;
};

}  // namespace

QPainterPath LetterPath(std::string_view letterSet, int tile) {
  const LetterSet* set = FindLetterSet(letterSet);
  if (set == nullptr) return {};
  PathSurface surface;
  ClearLastPoint();
  WriteWholeTile(*set, tile, {}, surface);
  return surface.path;
}

}  // namespace bramlee
