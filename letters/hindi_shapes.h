// Strokes that letters of several Hindi sources share: a change to one changes every letter that
// uses it.
#pragma once

#include "letters/pen.h"

namespace bramlee {

/// Where the two bows of the hook ended.
struct HookEnds {
  EndPoint upper;
  EndPoint lower;
};

/// The hook of इ, ङ, झ and ड: a short stem under the bar at X1, Y1 and two bows below each other.
HookEnds WriteHook(const StrokeRec& r, Pen& pen);

/// The body of थ and श: a ring about the upper left of the letter, and the tail that leaves it.
void WriteRingAndTail(const StrokeRec& r, Pen& pen);

}  // namespace bramlee
