// Strokes that Hindi vowels and consonants share.
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

}  // namespace bramlee
