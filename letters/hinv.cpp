// Hindi vowels and vowel signs.
#include "letters/letter_sets.h"

namespace bramlee {

void WriteHindiVowel(StrokeRec& /*rec*/, DrawingSurface& /*sheet*/) {}

}  // namespace bramlee
