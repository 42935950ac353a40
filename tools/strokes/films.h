// Letters as moving pictures, steps and flash cards, in files.
#pragma once

#include "tools/strokes/request.h"

namespace bramlee {

// Each of them stops when IsStopAsked() and prints to standard error which letters it leaves out.
// Returns an error of one line, with nothing written, or an empty text.

/// Writes the request's letters to its file or folder, which is made if it is not there; as many at
/// the same time as there are processors. Prints how far it is where it takes long.
QString WriteFilms(const Request& request);

/// Writes them to its file as flash cards. Needs a QGuiApplication, for the fonts.
QString WriteCards(const Request& request);

}  // namespace bramlee
