// How far a letter reaches on the sheet, found out without writing it.
#pragma once

#include <QRectF>

#include "engine/stroke_rec.h"
#include "letters/letter_sets.h"
#include "strokes/rules.h"

namespace bramlee {

/// The rectangle around the letter's strokes, the pen's width included, in sheet pixels; an empty
/// one for a letter without strokes. Records the program at a coarse step, on a copy of the record,
/// and leaves the last-point registers as they were.
QRectF ReachOf(WriteLetter program, StrokeRec rec);

/// The same for a sheet's rules or grid.
QRectF ReachOf(const SheetExtent& extent);

}  // namespace bramlee
