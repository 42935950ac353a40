// A letter's pen strokes as JSON.
#pragma once

#include <string>
#include <string_view>

#include "strokes/word.h"

namespace bramlee {

/// The letter's pen strokes in writing order, with points about one sheet pixel apart in the
/// direction of the pen: one JSON object in one line, its end included. Coordinates are sheet
/// pixels, to a thousandth.
std::string PenStrokesAsJson(const Letter& letter);

/// The same of a word, with the text that was asked for.
std::string PenStrokesAsJson(const Word& word, std::string_view text);

}  // namespace bramlee
