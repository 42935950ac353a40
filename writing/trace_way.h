// The way that a child still has to go along the stroke that is on.
#pragma once

#include <span>

#include "strokes/stroke_arrow.h"
#include "strokes/stroke_numbers.h"
#include "writing/tracer.h"

namespace bramlee {

/// The points of the stroke that is on from where it goes on, in sheet pixels; none when all are
/// written. Valid as long as the tracer is not changed.
std::span<const Point> RestOfStroke(const Tracer& tracer);

/// The arrow that shows where the way goes on in a stroke's middle, on the side away from the hand.
StrokeArrow ArrowToGoOn(std::span<const Point> rest, Hand hand);

}  // namespace bramlee
