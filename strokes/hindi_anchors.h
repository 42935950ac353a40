// Where signs hang on Hindi letters, a line a letter.
#pragma once

#include <span>

#include "strokes/letter_shape.h"

namespace bramlee {

/// A consonant as its tiles have it, in sheet pixels of the Hindi consonants' own sheet; its half
/// form and its form with r stand at the same place.
struct HindiConsonantAnchors {
  char32_t code;     ///< 0 for those that only two characters together are
  int tile;          ///< of the whole letter
  double left;       ///< where its room begins
  double headFrom;   ///< where its head line begins: later than its room under a curl
  double halfRight;  ///< where the room of its half form ends, and its head line with it
  double right;      ///< where the room of the whole letter ends
  double head;       ///< where a sign above stands on the head line
  Point foot;        ///< where a sign below hangs
};

/// A vowel, in sheet pixels of the vowels' own sheet.
struct HindiVowelAnchors {
  char32_t code;
  int tile;
  double left, headFrom, right;  ///< as of a consonant
  double head;                   ///< where a mark above stands
};

std::span<const HindiConsonantAnchors> HindiConsonants();
std::span<const HindiVowelAnchors> HindiVowels();

}  // namespace bramlee
