// The pen in a letter's hand: the record and the surface together, so that a stroke is one line.
#pragma once

#include <span>

#include "engine/drawing_surface.h"
#include "engine/last_point.h"
#include "engine/stroke_rec.h"

namespace bramlee {

/// Where a stroke left the last-point registers: the end of an arc, or of a slant as far as it
/// moves them. Letters keep it where a later stroke joins on.
struct EndPoint {
  double x;
  double y;
};

/// Writes strokes with one letter's record. engine/primitives.h says what each stroke means and in
/// which order its arguments stand; each leaves its result in the record's LastResult.
struct Pen {
  StrokeRec& rec;
  DrawingSurface& sheet;

  /// An arc from angle to angle, then its centre and radius. Goes into the record first
  /// (StartAngle, EndAngle, SweepDir), as its other strokes do not.
  EndPoint Arc(double from, double to, int sweepDir, double centreX, double centreY, double radius);

  void LineRight(double fromX, double y, double toX);
  void LineLeft(double toX, double y, double fromX);
  void LineDown(double x, double fromY, double toY);
  void LineUp(double x, double fromY, double toY);
  EndPoint SlantLeft(double angle, double x, double y, double limitY);
  EndPoint SlantRight(double angle, double x, double y, double limitY);
  EndPoint SlantUpRight(double angle, double x, double y, double limitY);
};

/// One letter: lays its anchors over the record and writes its strokes.
using LetterRoutine = void (*)(StrokeRec& r, Pen& pen);

/// Writes letter rec.LetterNo of a set, the first one being 1. A number outside the set writes
/// nothing.
void WriteFrom(std::span<const LetterRoutine> letters, StrokeRec& rec, DrawingSurface& sheet);

}  // namespace bramlee
