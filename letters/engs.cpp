// English small letters.
#include "letters/letter_sets.h"

namespace bramlee {

void WriteSmallLetter(StrokeRec& /*rec*/, DrawingSurface& /*sheet*/) {}

}  // namespace bramlee
