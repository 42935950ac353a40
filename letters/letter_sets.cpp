#include "letters/letter_sets.h"

#include <algorithm>

#include "engine/last_point.h"

namespace bramlee {

std::span<const LetterSet> LetterSets() {
  // clang-format off
  static const LetterSet kLetterSets[] = {
      {.name = "engc", .sheet = SheetKind::Capitals,     .tiles = 26,          .secondForms = {},                          .write = WriteCapital},
      {.name = "engs", .sheet = SheetKind::SmallLetters, .tiles = 26,          .secondForms = {},                          .write = WriteSmallLetter},
      {.name = "hinv", .sheet = SheetKind::Wide,         .tiles = 28,          .secondForms = HindiVowelsOfTwoForms(),     .write = WriteHindiVowel},
      {.name = "hinc", .sheet = SheetKind::Wide,         .tiles = kHindiTiles, .secondForms = HindiConsonantsOfTwoForms(), .write = WriteHindiConsonant, .footTilesFrom = FirstHindiTileOf(kHindiFootSet)},
      {.name = "telv", .sheet = SheetKind::Wide,         .tiles = 36,          .secondForms = {},                          .write = WriteTeluguVowel},
      {.name = "telc", .sheet = SheetKind::Wide,         .tiles = 75,          .secondForms = {},                          .write = WriteTeluguConsonant},
      {.name = "mat",  .sheet = SheetKind::Wide,         .tiles = 17,          .secondForms = NumbersOfTwoForms(),         .write = WriteNumberTile, .digits = kDigitTiles},
  };
  // clang-format on
  return kLetterSets;
}

bool HasSecondForm(const LetterSet& set, int tile) {
  return std::ranges::find(set.secondForms, tile) != set.secondForms.end();
}

const LetterSet* FindLetterSet(std::string_view name) {
  const auto found = std::ranges::find(LetterSets(), name, &LetterSet::name);
  return found == LetterSets().end() ? nullptr : &*found;
}

void WriteWholeTile(const LetterSet& set, int tile, const TileForm& form, DrawingSurface& sheet) {
  if (tile < 1 || tile > set.tiles) return;
  ClearLastPoint();
  StrokeRec rec = FillStrokeRec(set.sheet, static_cast<std::int16_t>(tile));
  rec.AltFlag = form.alternative ? 1 : 0;
  rec.LoopNo = static_cast<std::int16_t>(form.place);
  const bool typed = form.place != 0 && set.digits != 0;
  (typed ? WriteTypedDigit : set.write)(rec, sheet);
  if (set.footTilesFrom != 0 && tile >= set.footTilesFrom) WriteHindiFootStroke(rec, sheet);
}

}  // namespace bramlee
