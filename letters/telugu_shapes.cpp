#include "letters/telugu_shapes.h"

namespace bramlee {

void HeadTick(Pen& pen, double& x, double y, double r, TickArms arms) {
  pen.SlantRight(45, x - r, y - r / arms.down, y);
  x = LastX2;  // the arm is short, so the register stands at its last dot
  pen.SlantUpRight(45, x, y, y - r / arms.up);
}

void SideHook(Pen& pen, double x, double y, double r) {
  const double end = x + 4.5 * r;
  pen.LineRight(x, y, end);
  pen.Arc(90, -270, -1, end, y + r, r);
}

void FootHook(Pen& pen, double& x, double y, double r) {
  const double right = x + 2.5 * r;
  pen.Arc(270, -90, -1, right, y - r, r);
  x = x - 2 * r;
  pen.LineLeft(x, y, right);
}

void CrestHook(Pen& pen, double x, double y, double r) {
  const double end = x + 4.5 * r;
  pen.LineRight(x - r, y - 9, x + r);
  pen.Arc(-90, 90, +1, x + r, y - r - 9, r);
  pen.LineRight(x - r, y - 2 * r - 9, end);
  pen.Arc(90, -270, -1, end, y - r - 9, r);
}

void DoubleCrest(Pen& pen, double x, double y, double& r) {
  const double upper = y - 0.885 * r;
  r = r / 4;
  const double left = x - r / 2;
  pen.LineLeft(left, y - 9, x + r);
  pen.Arc(270, 90, -1, left, y - r - 10, r);
  pen.LineRight(left, LastY, x + r);
  pen.Arc(270, 90, -1, left, upper, r);
  pen.LineRight(left, LastY, x + 3 * r);
}

void TwinCurl(Pen& pen) {
  const StrokeRec& r = pen.rec;
  pen.Arc(90, -270, -1, r.CX1, r.CY1, r.Rad);
  pen.Arc(-90, 180, +1, r.CX1, r.CY2, r.Rad);
}

void OpenCurl(Pen& pen) {
  const StrokeRec& r = pen.rec;
  pen.Arc(40, -270, -1, r.CX1, r.CY1, r.Rad);
  pen.Arc(-90, 100, +1, r.CX1, r.CY2, r.Rad);
}

void RingOfA(Pen& pen, double x, double y, double scale) {
  pen.Arc(-180, 180, +1, x - 68 * scale, y - 17 * scale, 30 * scale);
}

void CurlOfA(Pen& pen, double x, double y, double scale) {
  pen.Arc(-2, 270, +1, x + 63 * scale, y - 9 * scale, 37 * scale);
  pen.LineLeft(LastX - 110 * scale, LastY, LastX);
}

void LetterA(Pen& pen, double column) {
  const double x = column + 125;
  const double y = pen.rec.Row3 - 28;
  RingOfA(pen, x, y, 1);
  pen.Arc(-195, 3, +1, x, y, 100);
  CurlOfA(pen, x, y, 1);
}

double CrownX(const StrokeRec& r) {
  return r.X1 + 152.5 - r.RowH / 2.95 - 2;
}

void CrownedBack(Pen& pen, double y) {
  const StrokeRec& r = pen.rec;
  pen.Arc(190, 346, +1, r.X1 + 152.5, y + 37.5, 37.5);
  pen.Arc(335, 360, +1, r.X1 + 87.5, y, 112.5);
  pen.Arc(360, 450, +1, CrownX(r), y, 75);
}

}  // namespace bramlee
