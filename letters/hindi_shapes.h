// Strokes that letters of several Hindi sources share: a change to one changes every letter that
// uses it.
#pragma once

#include "letters/pen.h"

namespace bramlee {

/// A full stem is this long.
inline constexpr double kHindiStem = 150;

/// Where the two bows of the hook ended.
struct HookEnds {
  EndPoint upper;
  EndPoint lower;
};

/// The hook of इ, ङ, झ and ड: a short stem under the bar at X1, Y1 and two bows below each other.
HookEnds WriteHook(const StrokeRec& r, Pen& pen);

/// The body of थ and श: a ring about the upper left of the letter, and the tail that leaves it.
void WriteRingAndTail(const StrokeRec& r, Pen& pen);

/// The short stem and the bowl of प, फ and ष, to the angle `end`.
void WriteStemAndBowl(double end, const StrokeRec& r, Pen& pen);

/// The arm of त्र that runs to its stem, from an arch about `archX`, and the one that leaves it.
void WriteArmsOfTra(double archX, const StrokeRec& r, Pen& pen);

/// The two bows of उ and ऊ.
void WriteUBows(const StrokeRec& r, Pen& pen);

/// The bowl of ँ.
void WriteMoonBowl(const StrokeRec& r, Pen& pen);

/// One of the round dots of the marks.
void WriteHindiDot(double centreX, double centreY, Pen& pen);

}  // namespace bramlee
