// Where signs hang on Telugu consonants, a line a letter.
#pragma once

#include <cstdint>
#include <span>

#include "strokes/letter_shape.h"
#include "strokes/word_ink.h"

namespace bramlee {

/// How a letter takes signs that reach out to the right: aa, o, oo and au.
enum class TeluguForm : std::uint8_t {
  Round,   ///< they lie on its top
  Open,    ///< its back rises through them
  Hooked,  ///< its last hook goes over into them
  Ha,      ///< it has the bar of aa already
};

/// A consonant as its tile has it, in sheet pixels of the Telugu consonants' own sheet.
struct TeluguAnchors {
  char32_t code;  ///< 0 for the one that only two characters together are
  int tile;       ///< of the letter
  int below;      ///< of its form below another one; 0 for none
  Point head;     ///< where a sign above stands: at the lower end of the tick that it replaces
  double side;    ///< where signs that reach out to the right join: aa, o, oo and au
  double loop;    ///< and where the loop of i and ii does
  Reach foot;     ///< the letter's body at its foot: signs stand at its right end, or below it
  TeluguForm form = TeluguForm::Round;
};

/// In the order of their codes but for the last, the joined letter.
std::span<const TeluguAnchors> TeluguLetters();

}  // namespace bramlee
