// Shapes that Telugu letters share: a change to one changes every letter that uses it. A shape
// takes its place by reference where it leaves something for its caller there; x, y and r are sheet
// pixels.
#pragma once

#include "letters/pen.h"

namespace bramlee {

/// How far a HeadTick's arms reach in Y: its r divided by these.
struct TickArms {
  double down;
  double up;
};
inline constexpr TickArms kVowelTick{.down = 4, .up = 2};
inline constexpr TickArms kConsonantTick{.down = 2.2, .up = 1};

/// The two-armed tick: down to the right from r left of `x` until Y reaches `y`, then up to the
/// right. `x` becomes the end of the first arm, for strokes that hang on it.
void HeadTick(Pen& pen, double& x, double y, double r, TickArms arms = kConsonantTick);

/// A bar to the right from `x`, 4.5 r long, and a ring of radius r below its end.
void SideHook(Pen& pen, double x, double y, double r);

/// A ring of radius r above the right of `x`, then a bar to the left, both at the place that `x`
/// has on entry. `x` becomes the bar's left end, 2 r lower.
void FootHook(Pen& pen, double& x, double y, double r);

/// Two bars, one over the other, joined by a half circle of radius r, with a ring at the upper's
/// right end.
void CrestHook(Pen& pen, double x, double y, double r);

/// Three bars, one over the other, joined by half circles of radius r / 4. `r` becomes that
/// quarter, so a caller that writes two of these sets it anew.
void DoubleCrest(Pen& pen, double x, double y, double& r);

/// A ring and three quarters of one above it, of radius Rad about (CX1, CY1) and (CX1, CY2).
void TwinCurl(Pen& pen);

/// The consonants' form of TwinCurl, with open arcs.
void OpenCurl(Pen& pen);

/// The small ring that a, aa and rra begin with, and the curl with a bar that ends a and rra. (x,
/// y) is the middle of the large round between them, `scale` the letter's size, 1 that of a whole
/// one.
void RingOfA(Pen& pen, double x, double y, double scale);
void CurlOfA(Pen& pen, double x, double y, double scale);

/// The letter a, in a column of its own or as the first letter of a word; `column` is its left
/// edge.
void LetterA(Pen& pen, double column);

/// Where a crown has its centre: just left of the back that it closes.
double CrownX(const StrokeRec& r);

/// The bowl, back and crown that e and the signs of u and vocalic r end with, the bowl under the
/// line `y`. X1 is the left edge of the column.
void CrownedBack(Pen& pen, double y);

}  // namespace bramlee
