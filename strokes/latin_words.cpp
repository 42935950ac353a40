// Latin letters, digits and signs in words: side by side, each with its own room.
#include <algorithm>
#include <span>
#include <string_view>

#include "strokes/word.h"
#include "strokes/word_ink.h"

namespace bramlee {
namespace {

// How far ink stands from the end of its room, in sheet pixels of the word: two straight sides
// furthest from each other, two slanted ones nearest, so that the white between letters looks
// alike. Print has the same order; the figures are those at which names look evenly set.
constexpr double kStraight = 17;
constexpr double kRound = 11;
constexpr double kOpenSide = 8;
constexpr double kSlanted = 4;

struct LatinLetter {
  char32_t code;
  std::string_view set;
  int tile;
  double left;   ///< room before its ink
  double right;  ///< room after it
};

// clang-format off
constexpr LatinLetter kLetters[] = {
    // code, set, tile, left, right
    {U'A',  "engc",  1, kSlanted,  kSlanted},
    {U'B',  "engc",  2, kStraight, kRound},
    {U'C',  "engc",  3, kRound,    kOpenSide},
    {U'D',  "engc",  4, kStraight, kRound},
    {U'E',  "engc",  5, kStraight, kOpenSide},
    {U'F',  "engc",  6, kStraight, kOpenSide},
    {U'G',  "engc",  7, kRound,    kStraight},
    {U'H',  "engc",  8, kStraight, kStraight},
    {U'I',  "engc",  9, kStraight, kStraight},
    {U'J',  "engc", 10, kOpenSide,     kStraight},
    {U'K',  "engc", 11, kStraight, kSlanted},
    {U'L',  "engc", 12, kStraight, kOpenSide},
    {U'M',  "engc", 13, kStraight, kStraight},
    {U'N',  "engc", 14, kStraight, kStraight},
    {U'O',  "engc", 15, kRound,    kRound},
    {U'P',  "engc", 16, kStraight, kRound},
    {U'Q',  "engc", 17, kRound,    kRound},
    {U'R',  "engc", 18, kStraight, kSlanted},
    {U'S',  "engc", 19, kRound,    kRound},
    {U'T',  "engc", 20, kSlanted,  kSlanted},
    {U'U',  "engc", 21, kStraight, kStraight},
    {U'V',  "engc", 22, kSlanted,  kSlanted},
    {U'W',  "engc", 23, kSlanted,  kSlanted},
    {U'X',  "engc", 24, kSlanted,  kSlanted},
    {U'Y',  "engc", 25, kSlanted,  kSlanted},
    {U'Z',  "engc", 26, kOpenSide,     kOpenSide},
    {U'a',  "engs",  1, kRound,    kStraight},
    {U'b',  "engs",  2, kStraight, kRound},
    {U'c',  "engs",  3, kRound,    kOpenSide},
    {U'd',  "engs",  4, kRound,    kStraight},
    {U'e',  "engs",  5, kRound,    kOpenSide},
    {U'f',  "engs",  6, kOpenSide,     kSlanted},
    {U'g',  "engs",  7, kRound,    kStraight},
    {U'h',  "engs",  8, kStraight, kStraight},
    {U'i',  "engs",  9, kStraight, kStraight},
    {U'j',  "engs", 10, kOpenSide,     kStraight},
    {U'k',  "engs", 11, kStraight, kSlanted},
    {U'l',  "engs", 12, kStraight, kStraight},
    {U'm',  "engs", 13, kStraight, kStraight},
    {U'n',  "engs", 14, kStraight, kStraight},
    {U'o',  "engs", 15, kRound,    kRound},
    {U'p',  "engs", 16, kStraight, kRound},
    {U'q',  "engs", 17, kRound,    kStraight},
    {U'r',  "engs", 18, kStraight, kSlanted},
    {U's',  "engs", 19, kRound,    kRound},
    {U't',  "engs", 20, kOpenSide,     kOpenSide},
    {U'u',  "engs", 21, kStraight, kStraight},
    {U'v',  "engs", 22, kSlanted,  kSlanted},
    {U'w',  "engs", 23, kSlanted,  kSlanted},
    {U'x',  "engs", 24, kSlanted,  kSlanted},
    {U'y',  "engs", 25, kSlanted,  kSlanted},
    {U'z',  "engs", 26, kOpenSide,     kOpenSide},
    {U'1',  "mat",  1, kStraight, kStraight},
    {U'2',  "mat",  2, kRound,    kOpenSide},
    {U'3',  "mat",  3, kOpenSide,     kRound},
    {U'4',  "mat",  4, kSlanted,  kStraight},
    {U'5',  "mat",  5, kOpenSide,     kRound},
    {U'6',  "mat",  6, kRound,    kRound},
    {U'7',  "mat",  7, kOpenSide,     kSlanted},
    {U'8',  "mat",  8, kRound,    kRound},
    {U'9',  "mat",  9, kRound,    kStraight},
    {U'0',  "mat", 10, kRound,    kRound},
    {U'+',  "mat", 11, kOpenSide,     kOpenSide},
    {U'-',  "mat", 12, kOpenSide,     kOpenSide},
    {0xD7,  "mat", 13, kOpenSide,     kOpenSide},  // ×
    {0xF7,  "mat", 14, kOpenSide,     kOpenSide},  // ÷
    {U'%',  "mat", 15, kRound,    kRound},
    {U'=',  "mat", 16, kOpenSide,     kOpenSide},
    {U'?',  "mat", 17, kOpenSide,     kOpenSide},
};
// clang-format on

/// Where a set's letters stand on its own sheet.
struct LatinSheet {
  double top;
  double base;
};

/// Its base line comes to the word's, and capitals, the digits and the tall small letters end at
/// the word's head.
LatinSheet SheetOf(std::string_view set) {
  if (set == "engc") return {.top = 150, .base = 350};
  if (set == "engs") return {.top = 50, .base = 275};
  return {.top = kWordHead, .base = kWordBase};
}

/// Moves the ink's left edge, a place on the set's own sheet, to `left` in the word.
Placing PlacingOf(std::string_view set, double ink, double left) {
  const LatinSheet sheet = SheetOf(set);
  const double scale = (kWordBase - kWordHead) / (sheet.base - sheet.top);
  return {.scale = scale, .right = left - ink * scale, .down = kWordBase - sheet.base * scale};
}

}  // namespace

Cluster ReadLatin(std::span<const TextCharacter> text) {
  const LatinLetter* found = std::ranges::find(kLetters, text.front().code, &LatinLetter::code);
  if (found == std::end(kLetters)) return {};
  const Letter& letter = LetterOf({.set = found->set, .tile = found->tile, .form = {.book = true}});
  const Box& ink = letter.Bounds();
  const Placing placing = PlacingOf(found->set, ink.x, found->left);
  Cluster cluster{.characters = 1};
  cluster.ink.Add(letter, placing);
  cluster.width = found->left + ink.width * placing.scale + found->right;
  return cluster;
}

}  // namespace bramlee
