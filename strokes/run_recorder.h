// Takes down what a program writes, as data.
#pragma once

#include <vector>

#include "engine/drawing_surface.h"
#include "engine/run.h"

namespace bramlee {

/// A surface that keeps the runs and wants none of their dots: whatever writes on surfaces leaves
/// its runs here, and the last-point registers as on any other surface.
class RunRecorder final : public DrawingSurface {
 public:
  /// `step` as DrawingSurface::Step(): where arcs and slants end, and so where runs that join on
  /// to them begin, depends on it.
  explicit RunRecorder(double step) : step_(step) {}

  void PSet(float /*x*/, float /*y*/) override {}
  double Step() const override { return step_; }
  bool WantsDots() const override { return false; }
  void BeginRun(Primitive primitive, std::span<const double> arguments) override;

  /// The runs so far, in writing order.
  const std::vector<Run>& Runs() const { return runs_; }
  /// Hands the runs over and begins anew.
  std::vector<Run> TakeRuns();

 private:
  double step_;
  std::vector<Run> runs_;
};

}  // namespace bramlee
