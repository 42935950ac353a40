// Parts of single Telugu letters that their book forms are made of as well: a change to one changes
// both. Each stands in the source of its given letter. `column` is the left edge of the letter's
// own column in sheet pixels; angles are degrees. A letter that begins with a ring is written once
// around it from the angle `ringFrom`: the tables begin at its top, where the pen has to be lifted
// then, the book where the ring goes on into the bow.
#pragma once

#include <cstdint>

#include "letters/pen.h"

namespace bramlee {

// In telc.cpp.

/// One of the ways in which dda is written, and the beginning of the same way of ddha; returns the
/// place between its bowls. The ring at its right ends at the angle `ringEnd`; 0 is no ring.
EndPoint DdaAt(double column, int ringEnd, StrokeRec& r, Pen& pen);

/// The `ringEnd` of the way with a whole ring.
inline constexpr int kWholeRing = 405;

/// The letter tta; the bow beside its ring ends at the angle `bowEnd`.
void TtaWithRing(int ringFrom, int bowEnd, StrokeRec& r, Pen& pen);

// In telc_below.cpp.

/// The form of tta.
void BelowTtaWithRing(int ringFrom, StrokeRec& r, Pen& pen);

// In telc_ta_to_rra.cpp.

/// The way of ta with a ring at both ends of its bowl, and the letter la.
void TaWithRing(int ringFrom, StrokeRec& r, Pen& pen);
void LaWithRing(int ringFrom, StrokeRec& r, Pen& pen);

/// How often the pen goes over the tick of na, ma, ya and va, dot for dot.
enum class TickPasses : std::uint8_t { Once = 1, Twice = 2 };

/// The letters na, ma, ya and va, each in its own column.
void NaWithTick(TickPasses passes, StrokeRec& r, Pen& pen);
void MaWithTick(TickPasses passes, StrokeRec& r, Pen& pen);
void YaWithTick(TickPasses passes, StrokeRec& r, Pen& pen);
void VaWithTick(TickPasses passes, StrokeRec& r, Pen& pen);

/// The ring of pa, pha, ssa and ha about (x, y), and the bowl beside it with its back. `scale` is
/// the letter's size, 1 that of a whole one. Each returns its end, the second one that of the bowl.
EndPoint RingOfPa(double x, double y, double scale, Pen& pen);
EndPoint BowlAndBackOfPa(double x, double y, double scale, Pen& pen);

/// Their tick, which stands over a ring about (x, y).
void TickOfPa(double x, double y, StrokeRec& r, Pen& pen);

// In telc_below_ta_to_rra.cpp.

/// The way of the form of ra that is a bowl under the letter.
void BowlOfRaBelow(const StrokeRec& r, Pen& pen);

// In telv.cpp.

/// The arch and bowls of u and uu; X1 becomes `column`.
void BowlsOfU(double column, StrokeRec& r, Pen& pen);

/// What follows them: the marks on top, the bar and, in uu, the curl at its end.
void RestOfU(StrokeRec& r, Pen& pen);
void RestOfUu(StrokeRec& r, Pen& pen);

}  // namespace bramlee
