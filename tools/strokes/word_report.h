// A word as JSON.
#pragma once

#include <string>
#include <string_view>

#include "strokes/word.h"
#include "tools/strokes/request.h"

namespace bramlee {

/// The word that is asked for, at the request's step.
Word WordAsked(const Request& request);

/// The word's strokes and what letters they belong to: one JSON object in one line, its end
/// included. `text` is the word as it was asked for.
std::string WordAsJson(const Word& word, std::string_view text);

/// The text as a string of JSON.
std::string QuotedForJson(std::string_view text);

}  // namespace bramlee
