#include "letters/hindi_shapes.h"

namespace bramlee {

HookEnds WriteHook(const StrokeRec& r, Pen& pen) {
  pen.LineDown(r.X1, r.Y1, r.Y1 + 22.5);
  pen.LineLeft(r.X1 - 28.5, r.Y1 + 22.5, r.X1);
  const EndPoint upper = pen.Arc(90, 270, +1, r.X1 - 28.5, r.Y1 + 50.25, 27.75);
  const EndPoint lower = pen.Arc(90, -150, -1, r.X1 - 28.5, r.Y1 + 115.05, 36);
  return {.upper = upper, .lower = lower};
}

void WriteRingAndTail(const StrokeRec& r, Pen& pen) {
  const EndPoint ring = pen.Arc(360, 0, -1, r.X1 + 41.25, r.Y1 + 22.5, 22.5);
  pen.Arc(360, 290, -1, ring.x - 67.5, ring.y, 67.5);
}

void WriteStemAndBowl(double end, const StrokeRec& r, Pen& pen) {
  pen.LineDown(r.X1 + 62.5, r.Y1, r.Y1 + 56.25);
  pen.Arc(180, end, +1, r.X1 + 103.75, r.Y1 + 56.25, 41.25);
}

void WriteArmsOfTra(double archX, const StrokeRec& r, Pen& pen) {
  const EndPoint arch = pen.Arc(160, 45, -1, archX, r.Y1 + 56.25, 26.25);
  pen.SlantRight(50, arch.x, arch.y, arch.y + 37.5);
  pen.SlantLeft(50, arch.x + 45, arch.y + 37.5, arch.y + 97.5);
}

void WriteUBows(const StrokeRec& r, Pen& pen) {
  pen.Arc(65, -90, -1, r.X1 + 30, r.Y1 + 30, 30);
  pen.Arc(90, -170, -1, r.X1 + 30, r.Y1 + 105, 45);
}

void WriteMoonBowl(const StrokeRec& r, Pen& pen) {
  pen.Arc(190, 350, +1, r.X1, r.Y1 - 45, 30);
}

void WriteHindiDot(double centreX, double centreY, Pen& pen) {
  pen.Arc(90, -270, -1, centreX, centreY, 7.5);
}

}  // namespace bramlee
