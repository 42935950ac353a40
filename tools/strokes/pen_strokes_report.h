// A letter's pen strokes as JSON.
#pragma once

#include <string>

#include "strokes/letter.h"

namespace bramlee {

/// The letter's pen strokes in writing order, with points about one sheet pixel apart in the
/// direction of the pen: one JSON object in one line, its end included. Coordinates are sheet
/// pixels, to a thousandth.
std::string PenStrokesAsJson(const Letter& letter);

}  // namespace bramlee
