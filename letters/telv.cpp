// Telugu vowels.
#include "letters/letter_sets.h"

namespace bramlee {

void WriteTeluguVowel(StrokeRec& /*rec*/, DrawingSurface& /*sheet*/) {}

}  // namespace bramlee
