// How the letter sets meet the user: captions, colours, sheets. The same in the program and in a
// browser.
#pragma once

#include <array>
#include <iterator>
#include <span>
#include <string_view>

#include "letters/letter_sets.h"
#include "strokes/colour_words.h"
#include "strokes/rules.h"

namespace bramlee {

/// The look of one letter set.
struct SetLook {
  std::string_view set;
  const char* subject;         ///< its caption on home
  ColourWord subjectColour;    ///< of the caption, and of the frame around the subject's tile
  const char* title;           ///< of its board
  ColourWord tileInk;          ///< of the letter on a tile
  ColourWord tileGround;       ///< behind it
  ColourWord sheet = kGround;  ///< the ground of the board's sheet

  SheetExtent gridExtent = kWideExtent;
  SheetExtent ruleExtent = kWideExtent;
  RuleLines ruleLines = RuleLines::WritingBook;
  bool rulesComeBack = true;  ///< whether a group start draws the checked rule again

  std::span<const int> groupStarts;  ///< tiles before which the sheet is wiped
};

inline constexpr int kEnglishGroups[] = {1, 5, 9, 13, 17, 21, 25};
inline constexpr int kHindiVowelGroups[] = {1, 5, 8, 12, 14, 18, 21, 25};
/// The first letters of the groups, in each set of tiles.
inline constexpr auto kHindiConsonantGroups = [] {
  constexpr int kInSet[] = {1, 5, 6, 10, 11, 15, 16, 20, 21, 25, 26, 30, 34};
  std::array<int, kHindiSets * std::size(kInSet)> starts{};
  std::size_t next = 0;
  for (int set = 1; set <= kHindiSets; ++set) {
    for (const int letter : kInSet) starts[next++] = FirstHindiTileOf(set) + letter - 1;
  }
  return starts;
}();
inline constexpr int kTeluguVowelGroups[] = {1,  5,  7,  9,  12, 15, 17, 18, 19,
                                             21, 23, 26, 29, 31, 33, 34, 35, 36};
/// Tiles 72 to 75 are written beside 71 and never begin a group.
inline constexpr int kTeluguConsonantGroups[] = {1,  5,  6,  9,  12, 13, 15, 16, 17, 18, 22,
                                                 23, 26, 29, 30, 34, 35, 36, 39, 40, 44, 45,
                                                 49, 52, 56, 57, 61, 62, 63, 66, 67, 71};
inline constexpr int kNumberGroups[] = {1, 5, 9, 13, 15};

inline constexpr SetLook kCapitalsLook{
    .set = "engc",
    .subject = "English:Capital Letters",
    .subjectColour = 0x002828C6,
    .title = "English Capital Letters",
    .tileInk = 0x002828C6,
    .tileGround = 0x00F0F6FF,
    .sheet = kCapitalsGround,
    .gridExtent = kCapitalsExtent,
    .ruleExtent = kCapitalsExtent,
    .ruleLines = RuleLines::FirstToLast,
    .rulesComeBack = false,  // on this board a group start never draws the rule again
    .groupStarts = kEnglishGroups,
};

inline constexpr SetLook kSmallLettersLook{
    .set = "engs",
    .subject = "English:Small Letters",
    .subjectColour = 0x008A3AAD,
    .title = "English Small Letters",
    .tileInk = 0x008C3AAD,
    .tileGround = 0x00FAF3FD,
    .gridExtent = kSmallExtent,
    .ruleExtent = kSmallExtent,
    .ruleLines = RuleLines::FirstToLast,
    .groupStarts = kEnglishGroups,
};

inline constexpr SetLook kHindiVowelsLook{
    .set = "hinv",
    .subject = "Hindi:Wovels",
    .subjectColour = 0x00C06515,
    .title = "Hindi Vowels",
    .tileInk = 0x00C06515,
    .tileGround = 0x00FEF7F1,
    .groupStarts = kHindiVowelGroups,
};

inline constexpr SetLook kHindiConsonantsLook{
    .set = "hinc",
    .subject = "Hindi:Consonants",
    .subjectColour = 0x005C6800,
    .title = "Hindi Consonants",
    .tileInk = 0x005C6900,
    .tileGround = 0x00F6F9EF,
    .groupStarts = kHindiConsonantGroups,
};

inline constexpr SetLook kTeluguVowelsLook{
    .set = "telv",
    .subject = "Telugu:Wovels",
    .subjectColour = 0x009A1B6A,
    .title = "TELUGU-VOWELS",
    .tileInk = 0x009A1B6A,
    .tileGround = 0x00FCF2F8,
    // As on the small letters' sheet, so the rules do not meet the grid of this one.
    .ruleExtent = kSmallExtent,
    .ruleLines = RuleLines::FirstToLast,
    .groupStarts = kTeluguVowelGroups,
};

inline constexpr SetLook kTeluguConsonantsLook{
    .set = "telc",
    .subject = "Telugu:Consonants",
    .subjectColour = 0x00004C9C,
    .title = "TELUGU-CONSONANTS",
    .tileInk = 0x00004A9E,
    .tileGround = 0x00ECF7FF,
    .groupStarts = kTeluguConsonantGroups,
};

inline constexpr SetLook kNumbersLook{
    .set = "mat",
    .subject = "Maths:Numbers",
    .subjectColour = 0x00327D2E,
    .title = "MATHS NUMBERS",
    .tileInk = 0x00327D2E,
    .tileGround = 0x00F0FAF2,
    .groupStarts = kNumberGroups,
};

/// All looks, in the order of home.
inline constexpr const SetLook* kSetLooks[] = {
    &kCapitalsLook,     &kSmallLettersLook,     &kHindiVowelsLook, &kHindiConsonantsLook,
    &kTeluguVowelsLook, &kTeluguConsonantsLook, &kNumbersLook,
};

}  // namespace bramlee
