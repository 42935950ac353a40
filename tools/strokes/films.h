// Letters as moving pictures and steps, in files.
#pragma once

#include "tools/strokes/request.h"

namespace bramlee {

/// Writes the request's letters to its file or folder, which is made if it is not there; as many at
/// the same time as there are processors. Prints to standard error which letters it leaves out.
/// Returns an error of one line, with nothing written, or an empty text.
QString WriteFilms(const Request& request);

}  // namespace bramlee
