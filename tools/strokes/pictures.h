// A letter as a picture: the sheet that it is written on, from the top left corner, in the board's
// colours.
#pragma once

#include "tools/strokes/request.h"

namespace bramlee {

/// Writes the letter to request.svg, one path a stroke in writing order, in sheet pixels. Returns
/// an error of one line, or an empty text.
QString WriteSvg(const Request& request);

/// Writes the letter to request.png with the ink of the boards. Returns like WriteSvg.
QString WritePng(const Request& request);

}  // namespace bramlee
