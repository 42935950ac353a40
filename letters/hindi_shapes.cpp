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

}  // namespace bramlee
