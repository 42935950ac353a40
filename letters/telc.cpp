// Telugu consonants.
#include "letters/letter_sets.h"

namespace bramlee {

void WriteTeluguConsonant(StrokeRec& /*rec*/, DrawingSurface& /*sheet*/) {}

}  // namespace bramlee
