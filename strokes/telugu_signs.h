// The Telugu signs that reach out to the right over their letter: aa, o, oo and au, made to the
// letter's measure. On their tiles they are as long as on ka.
#pragma once

#include <vector>

#include "engine/run.h"

namespace bramlee {

/// Where a sign that reaches out lies, in sheet pixels of its letter.
struct SignReach {
  double bar = 0;    ///< where its bar begins
  double curl = 0;   ///< where the curl of o ends on the letter, and au's turn begins
  double level = 0;  ///< the Y of the letter's end that it joins
  double ring = 0;   ///< the middle of the ring at its right end
};

/// The sign of aa: a bar, and a ring that hangs from its end.
std::vector<Run> SignOfAa(const SignReach& reach);
/// The bar and ring of aa alone, from the place where a letter's last back is cut off.
std::vector<Run> BarWithRing(double from, double level, double ring);
/// The sign of o, or of oo with its tail above the ring.
std::vector<Run> SignOfO(const SignReach& reach, bool isLong);
/// The sign of au: two bars, joined by a turn over the letter.
std::vector<Run> SignOfAu(const SignReach& reach);
/// The bow that stands on the bar's end of ha with aa, (x, y).
Run BowOfHaa(double x, double y);

}  // namespace bramlee
