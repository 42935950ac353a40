#include "letters/letter_sets.h"

#include <algorithm>

namespace bramlee {
namespace {

// clang-format off
constexpr LetterSet kLetterSets[] = {
    {.name = "engc", .sheet = SheetKind::Capitals,     .tiles = 26,  .alternatives = false, .write = WriteCapital},
    {.name = "engs", .sheet = SheetKind::SmallLetters, .tiles = 26,  .alternatives = false, .write = WriteSmallLetter},
    {.name = "hinv", .sheet = SheetKind::Wide,         .tiles = 28,  .alternatives = true,  .write = WriteHindiVowel},
    {.name = "hinc", .sheet = SheetKind::Wide,         .tiles = 111, .alternatives = true,  .write = WriteHindiConsonant},
    {.name = "telv", .sheet = SheetKind::Wide,         .tiles = 36,  .alternatives = false, .write = WriteTeluguVowel},
    {.name = "telc", .sheet = SheetKind::Wide,         .tiles = 75,  .alternatives = false, .write = WriteTeluguConsonant},
    {.name = "mat",  .sheet = SheetKind::Wide,         .tiles = 17,  .alternatives = true,  .write = WriteNumberTile},
};
// clang-format on

}  // namespace

std::span<const LetterSet> LetterSets() {
  return kLetterSets;
}

const LetterSet* FindLetterSet(std::string_view name) {
  const auto* found = std::ranges::find(kLetterSets, name, &LetterSet::name);
  return found == std::end(kLetterSets) ? nullptr : found;
}

}  // namespace bramlee
