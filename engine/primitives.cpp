#include "engine/primitives.h"

#include <cmath>

#include "engine/last_point.h"

namespace bramlee {

double LastX, LastY;
double LastX2, LastY2;

void ClearLastPoint() {
  LastX = LastY = LastX2 = LastY2 = 0;
}

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

namespace {

constexpr double kRadians = kPi / 180;

void Plot(DrawingSurface& sheet, double x, double y) {
  sheet.PSet(static_cast<float>(x), static_cast<float>(y));
}

/// Tells the surface about a run from its first dot to its last.
class Run {
 public:
  template <class... Arguments>
  Run(DrawingSurface& sheet, Primitive primitive, Arguments... arguments) : sheet_(sheet) {
    const double told[] = {static_cast<double>(arguments)...};
    sheet_.BeginRun(primitive, told);
  }
  ~Run() { sheet_.EndRun(); }
  Run(const Run&) = delete;
  Run& operator=(const Run&) = delete;

 private:
  DrawingSurface& sheet_;
};

/// The counted loop of all runs: `body` is called with the counter, tested before each turn,
/// and the step is added after it. `body` returns false to stop early.
template <class Body>
void CountedLoop(double from, double to, double step, Body body) {
  if (step >= 0) {
    for (double counter = from; counter <= to; counter += step) {
      if (!body(counter)) return;
    }
  } else {
    for (double counter = from; counter >= to; counter += step) {
      if (!body(counter)) return;
    }
  }
}

}  // namespace

std::int16_t ArcStroke(DrawingSurface& sheet, std::int16_t sweepDir, std::int16_t /*stepFlag*/,
                       double startAngle, double endAngle, double centreX, double centreY,
                       double radius) {
  const Run run(sheet, Primitive::ArcStroke, sweepDir, startAngle, endAngle, centreX, centreY,
                radius);
  double x = 0;
  double y = 0;
  CountedLoop(startAngle, endAngle, sweepDir * sheet.Step(), [&](double angle) {
    const double t = angle * kRadians;
    x = radius * std::cos(t) + centreX;
    y = centreY - radius * std::sin(t);
    Plot(sheet, x, y);
    return true;
  });
  LastX = x;
  LastY = y;
  return 0;
}

std::int16_t LineRight(DrawingSurface& sheet, double fromX, double y, double toX) {
  const Run run(sheet, Primitive::LineRight, fromX, y, toX);
  CountedLoop(fromX, toX, sheet.Step(), [&](double x) { return Plot(sheet, x, y), true; });
  return 0;
}

std::int16_t LineLeft(DrawingSurface& sheet, double toX, double y, double fromX) {
  const Run run(sheet, Primitive::LineLeft, toX, y, fromX);
  CountedLoop(fromX, toX, -sheet.Step(), [&](double x) { return Plot(sheet, x, y), true; });
  return 0;
}

std::int16_t LineDown(DrawingSurface& sheet, double x, double fromY, double toY) {
  const Run run(sheet, Primitive::LineDown, x, fromY, toY);
  CountedLoop(fromY, toY, sheet.Step(), [&](double y) { return Plot(sheet, x, y), true; });
  return 0;
}

std::int16_t LineUp(DrawingSurface& sheet, double x, double fromY, double toY) {
  const Run run(sheet, Primitive::LineUp, x, fromY, toY);
  CountedLoop(fromY, toY, -sheet.Step(), [&](double y) { return Plot(sheet, x, y), true; });
  return 0;
}

std::int16_t SlantLeft(DrawingSurface& sheet, double angle, double x, double y, double limitY) {
  const Run run(sheet, Primitive::SlantLeft, angle, x, y, limitY);
  const double sine = std::sin(angle * kRadians);
  const double cosine = std::cos(angle * kRadians);
  CountedLoop(1, limitY, sheet.Step(), [&](double i) {
    const double dotX = x - i * sine;
    const double dotY = y + i * cosine;
    Plot(sheet, dotX, dotY);
    if (dotY <= y + kRegisterReach) LastX = dotX, LastY = dotY;
    return dotY < limitY;
  });
  return 0;
}

std::int16_t SlantRight(DrawingSurface& sheet, double angle, double x, double y, double limitY) {
  const Run run(sheet, Primitive::SlantRight, angle, x, y, limitY);
  const double sine = std::sin(angle * kRadians);
  const double cosine = std::cos(angle * kRadians);
  CountedLoop(1, kSlantReach, sheet.Step(), [&](double i) {
    const double dotX = x + i * sine;
    const double dotY = y + i * cosine;
    Plot(sheet, dotX, dotY);
    if (dotY <= y + kRegisterReach) LastX2 = dotX, LastY2 = dotY;
    return dotY < limitY;
  });
  return 0;
}

std::int16_t SlantUpRight(DrawingSurface& sheet, double angle, double x, double y, double limitY) {
  const Run run(sheet, Primitive::SlantUpRight, angle, x, y, limitY);
  const double sine = std::sin(angle * kRadians);
  const double cosine = std::cos(angle * kRadians);
  CountedLoop(1, kSlantReach, sheet.Step(), [&](double i) {
    const double dotX = x + i * sine;
    const double dotY = y - i * cosine;
    Plot(sheet, dotX, dotY);
    if (dotY >= y - kRegisterReach) LastX2 = dotX, LastY2 = dotY;
    return dotY > limitY;
  });
  return 0;
}

}  // namespace bramlee
