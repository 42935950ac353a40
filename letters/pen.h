// The pen in a letter's hand: the record and the surface together, so that a stroke is one line.
#pragma once

#include "engine/drawing_surface.h"
#include "engine/last_point.h"
#include "engine/stroke_rec.h"

namespace bramlee {

/// Writes strokes with one letter's record. What each stroke means, and its argument order, is
/// told in engine/primitives.h; each leaves its result in the record's LastResult.
struct Pen {
  StrokeRec& rec;
  DrawingSurface& sheet;

  /// An arc from angle to angle, then its centre and radius. Goes into the record first
  /// (StartAngle, EndAngle, SweepDir), as its other strokes do not.
  void Arc(double from, double to, int sweepDir, double centreX, double centreY, double radius);

  void LineRight(double fromX, double y, double toX);
  void LineLeft(double toX, double y, double fromX);
  void LineDown(double x, double fromY, double toY);
  void LineUp(double x, double fromY, double toY);
  void SlantLeft(double angle, double x, double y, double limitY);
  void SlantRight(double angle, double x, double y, double limitY);
  void SlantUpRight(double angle, double x, double y, double limitY);
};

}  // namespace bramlee
