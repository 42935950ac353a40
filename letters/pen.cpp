#include "letters/pen.h"

#include "engine/primitives.h"

namespace bramlee {

EndPoint Pen::Arc(double from, double to, int sweepDir, double centreX, double centreY,
                  double radius) {
  rec.StartAngle = from;
  rec.EndAngle = to;
  rec.SweepDir = static_cast<std::int16_t>(sweepDir);
  rec.LastResult = ArcStroke(sheet, rec.SweepDir, rec.StepFlag, from, to, centreX, centreY, radius);
  return {LastX, LastY};
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

EndPoint Pen::SlantLeft(double angle, double x, double y, double limitY) {
  rec.StartAngle = angle;
  rec.LastResult = bramlee::SlantLeft(sheet, angle, x, y, limitY);
  return {LastX, LastY};
}

EndPoint Pen::SlantRight(double angle, double x, double y, double limitY) {
  rec.StartAngle = angle;
  rec.LastResult = bramlee::SlantRight(sheet, angle, x, y, limitY);
  return {LastX2, LastY2};
}

EndPoint Pen::SlantUpRight(double angle, double x, double y, double limitY) {
  rec.StartAngle = angle;
  rec.LastResult = bramlee::SlantUpRight(sheet, angle, x, y, limitY);
  return {LastX2, LastY2};
}

void WriteFrom(std::span<const LetterRoutine> letters, StrokeRec& rec, DrawingSurface& sheet) {
  if (rec.LetterNo < 1 || rec.LetterNo > std::ssize(letters)) return;
  Pen pen{rec, sheet};
  letters[static_cast<std::size_t>(rec.LetterNo - 1)](rec, pen);
}

}  // namespace bramlee
