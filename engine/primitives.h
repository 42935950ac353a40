// The eight runs of the pen. Each is a counted loop that plots one dot a turn. The loop itself is
// the animation: the surface sets the pace, nothing here waits. Ends are not fitted: the step is
// added after each turn, and the accumulated sum decides whether a last dot is plotted.
//
// A run whose ends lie the wrong way round plots nothing. No argument is checked. All return 0.
#pragma once

#include <cstdint>

#include "engine/drawing_surface.h"
#include "engine/run.h"

namespace bramlee {

/// A circle's arc, angle by angle: 0 degrees right of the centre, 90 its top; `sweepDir` +1
/// anticlockwise, -1 clockwise. LastX, LastY become its last point, or 0, 0 if no dot is plotted.
/// `stepFlag` is part of the call and has no effect.
std::int16_t ArcStroke(DrawingSurface& sheet, std::int16_t sweepDir, std::int16_t stepFlag,
                       double startAngle, double endAngle, double centreX, double centreY,
                       double radius);

std::int16_t LineRight(DrawingSurface& sheet, double fromX, double y, double toX);
std::int16_t LineLeft(DrawingSurface& sheet, double toX, double y, double fromX);
std::int16_t LineDown(DrawingSurface& sheet, double x, double fromY, double toY);
std::int16_t LineUp(DrawingSurface& sheet, double x, double fromY, double toY);

// Slants: `angle` in degrees from the vertical. The first dot lies one pixel along the run; the
// dot that crosses `limitY` is the last, and is plotted.

/// Down and to the left. Counts to `limitY` itself, a coordinate and not a length. Sets LastX,
/// LastY.
std::int16_t SlantLeft(DrawingSurface& sheet, double angle, double x, double y, double limitY);
/// Down and to the right, at most kSlantReach along the slope. Sets LastX2, LastY2.
std::int16_t SlantRight(DrawingSurface& sheet, double angle, double x, double y, double limitY);
/// Up and to the right, at most kSlantReach along the slope. Sets LastX2, LastY2.
std::int16_t SlantUpRight(DrawingSurface& sheet, double angle, double x, double y, double limitY);

/// Any of them, by its run: calls BeginRun, plots the dots, calls EndRun and sets the registers.
std::int16_t WriteRun(DrawingSurface& sheet, const Run& run);

}  // namespace bramlee
