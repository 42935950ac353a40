// A surface that only remembers, for tests.
#pragma once

#include <vector>

#include "engine/drawing_surface.h"

namespace bramlee {

struct Dot {
  float x;
  float y;
  bool operator==(const Dot&) const = default;
};

struct RecordedRun {
  Primitive primitive;
  std::vector<double> arguments;
  int dots = 0;
  bool operator==(const RecordedRun&) const = default;
};

/// Remembers every dot and every run.
class Recorder : public DrawingSurface {
 public:
  explicit Recorder(double step) : step_(step) {}

  void PSet(float x, float y) override {
    dots.push_back({x, y});
    if (!runs.empty()) ++runs.back().dots;
  }
  double Step() const override { return step_; }
  void BeginRun(Primitive primitive, std::span<const double> arguments) override {
    runs.push_back({
        primitive, {arguments.begin(), arguments.end()}
    });
  }

  std::vector<Dot> dots;
  std::vector<RecordedRun> runs;

 private:
  double step_;
};

}  // namespace bramlee
