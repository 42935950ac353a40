// Strokes that the digits and signs and their book forms share: a change to one changes both.
#pragma once

#include "letters/pen.h"

namespace bramlee {

/// Where the 5 stands: its hat from WX1 to WX2 at WY1, its stem from there to WY2.
void LayFive(StrokeRec& r);
void WriteStemAndBowOfFive(StrokeRec& r, Pen& pen);

/// The ring of the 9, of radius R4 about (X1, CY1), from the angle `start` once around; returns its
/// end.
EndPoint WriteRingOfNine(double start, StrokeRec& r, Pen& pen);
/// The stem from the ring's right side, and with it the hook.
void WriteStemOfNine(EndPoint right, StrokeRec& r, Pen& pen);
void WriteStemAndHookOfNine(EndPoint right, StrokeRec& r, Pen& pen);

/// The cross of the sign x.
void WriteCross(StrokeRec& r, Pen& pen);
/// The bar of the sign / between its two dots.
void WriteBarAndDots(StrokeRec& r, Pen& pen);

}  // namespace bramlee
