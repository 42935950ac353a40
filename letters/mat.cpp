// Maths digits and signs.
#include "letters/letter_sets.h"

namespace bramlee {

void WriteNumberTile(StrokeRec& /*rec*/, DrawingSurface& /*sheet*/) {}

}  // namespace bramlee
