// A letter's strokes as a line of JSON.
#pragma once

#include <string>

#include "tools/strokes/request.h"

namespace bramlee {

/// Runs the program of one tile of the request and returns its strokes: one JSON object in one
/// line, its end included. The last-point registers start from zeros.
std::string StrokesAsJson(const Request& request, int tile);

}  // namespace bramlee
