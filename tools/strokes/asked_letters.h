// The letters that a request names, and the ground that they are shown on.
#pragma once

#include <QColor>
#include <vector>

#include "ink/colours.h"
#include "strokes/letter.h"
#include "tools/strokes/request.h"

namespace bramlee {

/// The letters of the tiles, at the request's step, or the word as one.
std::vector<Letter> LettersAsked(const Request& request);

/// The colour of the letters' board.
QColor GroundOf(const Request& request);

}  // namespace bramlee
