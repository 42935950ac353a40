#include "strokes/placing.h"

namespace bramlee {

Run PlacedRun(const Run& run, const Placing& placing) {
  Run placed = run;
  auto& value = placed.values;
  const auto length = [&](std::size_t i) { value[i] *= placing.scale; };
  const auto x = [&](std::size_t i) { value[i] = value[i] * placing.scale + placing.right; };
  const auto y = [&](std::size_t i) { value[i] = value[i] * placing.scale + placing.down; };
  switch (run.primitive) {
    case Primitive::ArcStroke:
      x(3), y(4), length(5);
      break;
    case Primitive::LineRight:
    case Primitive::LineLeft:
      x(0), y(1), x(2);
      break;
    case Primitive::LineDown:
    case Primitive::LineUp:
      x(0), y(1), y(2);
      break;
    case Primitive::SlantLeft:
    case Primitive::SlantRight:
    case Primitive::SlantUpRight:
      x(1), y(2), y(3);
      break;
  }
  return placed;
}

}  // namespace bramlee
