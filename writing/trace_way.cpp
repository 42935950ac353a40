#include "writing/trace_way.h"

#include <cmath>
#include <cstddef>

namespace bramlee {
namespace {

// In sheet pixels.
constexpr double kArrowFrom = 4;
constexpr double kArrowLength = 26;
constexpr double kArrowAside = 16;

}  // namespace

std::span<const Point> RestOfStroke(const Tracer& tracer) {
  if (tracer.IsFinished()) return {};
  const std::span<const Point> points = tracer.Strokes()[tracer.Stroke()].points;
  const auto last = static_cast<double>(points.size() - 1);
  return points.subspan(static_cast<std::size_t>(std::lround(tracer.Progress() * last)));
}

StrokeArrow ArrowToGoOn(std::span<const Point> rest, Hand hand) {
  const StrokePath path{
      .points = {rest.begin(), rest.end()},
        .length = LengthOf(rest)
  };
  const double aside = hand == Hand::Left ? kArrowAside : -kArrowAside;
  return ArrowAlong(path, {.from = kArrowFrom, .length = kArrowLength, .aside = aside});
}

}  // namespace bramlee
