// Strokes as path data.
#pragma once

#include <QPointF>
#include <QStringList>

#include "engine/drawing_surface.h"

namespace bramlee {

/// Takes dots and joins those of a run to a path, for a round pen. Dots that the joined ones leave
/// nothing to show are passed over; dots that stand so far apart that the sheet shows them apart
/// are not joined.
class PathSurface : public DrawingSurface {
 public:
  explicit PathSurface(double step) : step_(step) {}

  void PSet(float x, float y) override;
  double Step() const override { return step_; }
  void BeginRun(Primitive primitive, std::span<const double> arguments) override;
  void EndRun() override;

  /// A path for each run that plotted a dot, in the form of an SVG path's `d`, in sheet pixels.
  const QStringList& Paths() const { return paths_; }

 private:
  void JoinTo(QPointF dot);

  double step_;
  QStringList paths_;
  QString path_;           ///< of the run being taken down
  bool straight_ = false;  ///< whether that run is no arc
  QPointF joined_;         ///< the last dot in the path
  QPointF dot_;            ///< the last dot of all
};

}  // namespace bramlee
