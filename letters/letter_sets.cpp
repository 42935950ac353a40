#include "letters/letter_sets.h"

#include <algorithm>

namespace bramlee {
namespace {

// clang-format off
constexpr LetterSet kLetterSets[] = {
    {.name = "engc", .sheet = SheetKind::Capitals,     .tiles = 26,  .alternatives = false, .write = WriteCapital},
    {.name = "engs", .sheet = SheetKind::SmallLetters, .tiles = 26,  .alternatives = false, .write = WriteSmallLetter},
    {.name = "hinv", .sheet = SheetKind::Wide,         .tiles = 28,  .alternatives = true,  .write = WriteHindiVowel},
    {.name = "hinc", .sheet = SheetKind::Wide,         .tiles = 111, .alternatives = true,  .write = WriteHindiConsonant, .footTilesFrom = 75},
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

void WriteWholeTile(const LetterSet& set, int tile, const TileForm& form, DrawingSurface& sheet) {
  StrokeRec rec = FillStrokeRec(set.sheet, static_cast<std::int16_t>(tile));
  rec.AltFlag = form.alternative ? 1 : 0;
  rec.LoopNo = static_cast<std::int16_t>(form.place);
  set.write(rec, sheet);
  if (set.footTilesFrom != 0 && tile >= set.footTilesFrom) WriteHindiFootStroke(rec, sheet);
}

}  // namespace bramlee
