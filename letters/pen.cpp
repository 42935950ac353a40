#include "letters/pen.h"

#include "engine/primitives.h"

namespace bramlee {

void Pen::Arc(double from, double to, int sweepDir, double centreX, double centreY, double radius) {
  rec.StartAngle = from;
  rec.EndAngle = to;
  rec.SweepDir = static_cast<std::int16_t>(sweepDir);
  rec.LastResult = ArcStroke(sheet, rec.SweepDir, rec.StepFlag, from, to, centreX, centreY, radius);
}

void Pen::LineRight(double fromX, double y, double toX) {
  rec.LastResult = bramlee::LineRight(sheet, fromX, y, toX);
}

void Pen::LineLeft(double toX, double y, double fromX) {
  rec.LastResult = bramlee::LineLeft(sheet, toX, y, fromX);
}

void Pen::LineDown(double x, double fromY, double toY) {
  rec.LastResult = bramlee::LineDown(sheet, x, fromY, toY);
}

void Pen::LineUp(double x, double fromY, double toY) {
  rec.LastResult = bramlee::LineUp(sheet, x, fromY, toY);
}

void Pen::SlantLeft(double angle, double x, double y, double limitY) {
  rec.StartAngle = angle;
  rec.LastResult = bramlee::SlantLeft(sheet, angle, x, y, limitY);
}

void Pen::SlantRight(double angle, double x, double y, double limitY) {
  rec.StartAngle = angle;
  rec.LastResult = bramlee::SlantRight(sheet, angle, x, y, limitY);
}

void Pen::SlantUpRight(double angle, double x, double y, double limitY) {
  rec.StartAngle = angle;
  rec.LastResult = bramlee::SlantUpRight(sheet, angle, x, y, limitY);
}

}  // namespace bramlee
