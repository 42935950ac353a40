#include "engine/run.h"

#include <algorithm>

#include "engine/last_point.h"

namespace bramlee {
namespace {

std::size_t ArgumentCount(Primitive primitive) {
  switch (primitive) {
    case Primitive::ArcStroke:
      return 6;
    case Primitive::LineRight:
    case Primitive::LineLeft:
    case Primitive::LineDown:
    case Primitive::LineUp:
      return 3;
    case Primitive::SlantLeft:
    case Primitive::SlantRight:
    case Primitive::SlantUpRight:
      return 4;
  }
  return 0;
}

}  // namespace

const char* PrimitiveName(Primitive primitive) {
  switch (primitive) {
    case Primitive::ArcStroke:
      return "ArcStroke";
    case Primitive::LineRight:
      return "LineRight";
    case Primitive::LineLeft:
      return "LineLeft";
    case Primitive::LineDown:
      return "LineDown";
    case Primitive::LineUp:
      return "LineUp";
    case Primitive::SlantLeft:
      return "SlantLeft";
    case Primitive::SlantRight:
      return "SlantRight";
    case Primitive::SlantUpRight:
      return "SlantUpRight";
  }
  return "";
}

std::span<const double> Run::Arguments() const {
  return {values.data(), ArgumentCount(primitive)};
}

Run MakeRun(Primitive primitive, std::span<const double> arguments) {
  Run run{.primitive = primitive, .values = {}};
  const std::size_t count = std::min(arguments.size(), ArgumentCount(primitive));
  std::copy_n(arguments.begin(), count, run.values.begin());
  return run;
}

RunCursor::RunCursor(const Run& run, double step) : primitive_(run.primitive) {
  const auto& value = run.values;
  switch (run.primitive) {
    case Primitive::ArcStroke:
      BeginArc(run, step);
      break;
    case Primitive::LineRight:
      BeginLine(Way::AlongX, value[0], value[2], value[1], step);
      break;
    case Primitive::LineLeft:
      BeginLine(Way::AlongX, value[2], value[0], value[1], -step);
      break;
    case Primitive::LineDown:
      BeginLine(Way::AlongY, value[1], value[2], value[0], step);
      break;
    case Primitive::LineUp:
      BeginLine(Way::AlongY, value[1], value[2], value[0], -step);
      break;
    case Primitive::SlantLeft:
    case Primitive::SlantRight:
    case Primitive::SlantUpRight:
      BeginSlant(run, step);
      break;
  }
}

void RunCursor::BeginLine(Way way, double from, double to, double across, double step) {
  way_ = way;
  counter_ = from, to_ = to, y_ = across, step_ = step;
}

void RunCursor::BeginArc(const Run& run, double step) {
  const auto [sweepDir, startAngle, endAngle, centreX, centreY, radius] = run.values;
  way_ = Way::Arc;
  counter_ = startAngle, to_ = endAngle, step_ = sweepDir * step;
  x_ = centreX, y_ = centreY, radius_ = radius;
  moved_ = true;  // to 0, 0 when it plots nothing
}

void RunCursor::BeginSlant(const Run& run, double step) {
  const double angle = run.values[0] * kRadians;
  const double sine = std::sin(angle);
  const double cosine = std::cos(angle);
  const bool left = run.primitive == Primitive::SlantLeft;
  way_ = Way::Slant;
  upward_ = run.primitive == Primitive::SlantUpRight;
  x_ = run.values[1], y_ = run.values[2], limitY_ = run.values[3];
  acrossBy_ = left ? -sine : sine;
  downBy_ = upward_ ? -cosine : cosine;
  counter_ = 1, to_ = left ? limitY_ : kSlantReach, step_ = step;
}

std::int64_t RunCursor::Plot(DrawingSurface& sheet, std::int64_t most) {
  return Advance(most, [&sheet](double x, double y) {
    sheet.PSet(static_cast<float>(x), static_cast<float>(y));
  });
}

std::int64_t RunCursor::Skip(std::int64_t most) {
  if (way_ == Way::Slant) return Advance(most, [](double /*x*/, double /*y*/) {});
  double last = 0;
  const std::int64_t dots = Count(most, [&last](double counter) { return last = counter, true; });
  if (way_ == Way::Arc && dots > 0) last_ = OnArc(last);
  return dots;
}

void RunCursor::LeaveLastPoint() const {
  if (!moved_) return;
  const bool second = primitive_ == Primitive::SlantRight || primitive_ == Primitive::SlantUpRight;
  (second ? LastX2 : LastX) = last_.x;
  (second ? LastY2 : LastY) = last_.y;
}

}  // namespace bramlee
