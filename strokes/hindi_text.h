// What a Hindi letter with its signs consists of, read from text.
#pragma once

#include <span>
#include <vector>

#include "strokes/hindi_anchors.h"
#include "strokes/utf8.h"

namespace bramlee {

/// How a consonant joins the next one.
enum class HindiJoin : std::uint8_t {
  None,  ///< it has its vowel: the last one
  Half,  ///< as its half form
  Mark,  ///< whole, with the mark below that takes the vowel away
};

struct HindiConsonant {
  const HindiConsonantAnchors* letter = nullptr;
  bool dotBelow = false;
  bool withR = false;  ///< an r is joined below
  HindiJoin join = HindiJoin::None;
};

/// A letter with all its signs. Without consonants and vowel its signs stand alone.
struct HindiSyllable {
  bool reph = false;  ///< an r before, written above
  std::vector<HindiConsonant> consonants;
  const HindiVowelAnchors* vowel = nullptr;
  char32_t sign = 0;   ///< the vowel's sign; 0 for none
  bool moon = false;   ///< the open arc above of sounds from English
  char32_t above = 0;  ///< the dot or the arc with a dot; 0 for none
  bool dotsBeside = false;
  std::size_t characters = 0;  ///< how many of the text it takes; 0: they are no Hindi
  std::vector<TextCharacter> leftOut;
};

/// The signs' characters.
namespace hindi {
inline constexpr char32_t kArcAbove = 0x901;
inline constexpr char32_t kDotAbove = 0x902;
inline constexpr char32_t kDotsBeside = 0x903;
inline constexpr char32_t kDotBelow = 0x93C;
inline constexpr char32_t kAa = 0x93E;
inline constexpr char32_t kI = 0x93F;
inline constexpr char32_t kIi = 0x940;
inline constexpr char32_t kU = 0x941;
inline constexpr char32_t kUu = 0x942;
inline constexpr char32_t kRi = 0x943;
inline constexpr char32_t kMoon = 0x945;
inline constexpr char32_t kE = 0x947;
inline constexpr char32_t kAi = 0x948;
inline constexpr char32_t kMoonAa = 0x949;
inline constexpr char32_t kO = 0x94B;
inline constexpr char32_t kAu = 0x94C;
inline constexpr char32_t kMark = 0x94D;
inline constexpr char32_t kStop = 0x964;  ///< the stroke that ends a sentence
inline constexpr char32_t kDoubleStop = 0x965;
}  // namespace hindi

/// The first letter of the text with its signs. A second vowel sign, or a mark that stands already,
/// is left out.
HindiSyllable ReadSyllable(std::span<const TextCharacter> text);

}  // namespace bramlee
