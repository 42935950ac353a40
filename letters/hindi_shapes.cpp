#include "letters/hindi_shapes.h"

namespace bramlee {

HookEnds WriteHook(const StrokeRec& r, Pen& pen) {
  pen.LineDown(r.X1, r.Y1, r.Y1 + 22.5);
  pen.LineLeft(r.X1 - 28.5, r.Y1 + 22.5, r.X1);
  const EndPoint upper = pen.Arc(90, 270, +1, r.X1 - 28.5, r.Y1 + 50.25, 27.75);
  const EndPoint lower = pen.Arc(90, -150, -1, r.X1 - 28.5, r.Y1 + 115.05, 36);
  return {.upper = upper, .lower = lower};
}

}  // namespace bramlee
