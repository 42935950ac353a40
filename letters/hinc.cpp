// Hindi consonants.
#include "letters/letter_sets.h"

namespace bramlee {

void WriteHindiConsonant(StrokeRec& /*rec*/, DrawingSurface& /*sheet*/) {}

void WriteHindiFootStroke(StrokeRec& /*rec*/, DrawingSurface& /*sheet*/) {}

}  // namespace bramlee
