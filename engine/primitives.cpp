#include "engine/primitives.h"

#include <initializer_list>

namespace bramlee {
namespace {

/// Frames a run: BeginRun before its first dot, EndRun after its last.
class FramedRun {
 public:
  FramedRun(DrawingSurface& sheet, const Run& run) : sheet_(sheet) {
    sheet_.BeginRun(run.primitive, run.Arguments());
  }
  ~FramedRun() { sheet_.EndRun(); }
  FramedRun(const FramedRun&) = delete;
  FramedRun& operator=(const FramedRun&) = delete;

 private:
  DrawingSurface& sheet_;
};

std::int16_t Write(DrawingSurface& sheet, Primitive primitive,
                   std::initializer_list<double> arguments) {
  return WriteRun(sheet, MakeRun(primitive, {arguments.begin(), arguments.size()}));
}

}  // namespace

std::int16_t WriteRun(DrawingSurface& sheet, const Run& run) {
  const FramedRun framed(sheet, run);
  RunCursor cursor(run, sheet.Step());
  if (sheet.WantsDots()) {
    cursor.Plot(sheet);
  } else {
    cursor.Skip();
  }
  cursor.LeaveLastPoint();
  return 0;
}

std::int16_t ArcStroke(DrawingSurface& sheet, std::int16_t sweepDir, std::int16_t /*stepFlag*/,
                       double startAngle, double endAngle, double centreX, double centreY,
                       double radius) {
  return Write(sheet, Primitive::ArcStroke,
               {static_cast<double>(sweepDir), startAngle, endAngle, centreX, centreY, radius});
}

std::int16_t LineRight(DrawingSurface& sheet, double fromX, double y, double toX) {
  return Write(sheet, Primitive::LineRight, {fromX, y, toX});
}

std::int16_t LineLeft(DrawingSurface& sheet, double toX, double y, double fromX) {
  return Write(sheet, Primitive::LineLeft, {toX, y, fromX});
}

std::int16_t LineDown(DrawingSurface& sheet, double x, double fromY, double toY) {
  return Write(sheet, Primitive::LineDown, {x, fromY, toY});
}

std::int16_t LineUp(DrawingSurface& sheet, double x, double fromY, double toY) {
  return Write(sheet, Primitive::LineUp, {x, fromY, toY});
}

std::int16_t SlantLeft(DrawingSurface& sheet, double angle, double x, double y, double limitY) {
  return Write(sheet, Primitive::SlantLeft, {angle, x, y, limitY});
}

std::int16_t SlantRight(DrawingSurface& sheet, double angle, double x, double y, double limitY) {
  return Write(sheet, Primitive::SlantRight, {angle, x, y, limitY});
}

std::int16_t SlantUpRight(DrawingSurface& sheet, double angle, double x, double y, double limitY) {
  return Write(sheet, Primitive::SlantUpRight, {angle, x, y, limitY});
}

}  // namespace bramlee
