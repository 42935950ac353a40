#include "letters/letter_sets.h"

#include <algorithm>

#include "engine/last_point.h"

namespace bramlee {
namespace {

bool IsFromBook(const LetterSet& set, int tile, const TileForm& form) {
  return form.book && HasBookForm(set, tile, form);
}

}  // namespace

std::span<const LetterSet> LetterSets() {
  // clang-format off
  static const LetterSet kLetterSets[] = {
      {.name = "engc", .sheet = SheetKind::Capitals,     .tiles = 26,          .secondForms = {},                          .write = WriteCapital,         .bookForms = CapitalsInTheBook(),         .writeBook = WriteFromBook<CapitalsInTheBook>},
      {.name = "engs", .sheet = SheetKind::SmallLetters, .tiles = 26,          .secondForms = {},                          .write = WriteSmallLetter,     .bookForms = SmallLettersInTheBook(),     .writeBook = WriteFromBook<SmallLettersInTheBook>},
      {.name = "hinv", .sheet = SheetKind::Wide,         .tiles = 28,          .secondForms = HindiVowelsOfTwoForms(),     .write = WriteHindiVowel,      .bookForms = HindiVowelsInTheBook(),      .writeBook = WriteHindiVowelInTheBook},
      {.name = "hinc", .sheet = SheetKind::Wide,         .tiles = kHindiTiles, .secondForms = HindiConsonantsOfTwoForms(), .write = WriteHindiConsonant,  .bookForms = HindiConsonantsInTheBook(),  .writeBook = WriteFromBook<HindiConsonantsInTheBook>, .footTilesFrom = FirstHindiTileOf(kHindiFootSet)},
      {.name = "telv", .sheet = SheetKind::Wide,         .tiles = 36,          .secondForms = {},                          .write = WriteTeluguVowel,     .bookForms = TeluguVowelsInTheBook(),     .writeBook = WriteFromBook<TeluguVowelsInTheBook>},
      {.name = "telc", .sheet = SheetKind::Wide,         .tiles = 75,          .secondForms = {},                          .write = WriteTeluguConsonant, .bookForms = TeluguConsonantsInTheBook(), .writeBook = WriteFromBook<TeluguConsonantsInTheBook>},
      {.name = "mat",  .sheet = SheetKind::Wide,         .tiles = 17,          .secondForms = NumbersOfTwoForms(),         .write = WriteNumberTile,      .bookForms = NumbersInTheBook(),          .writeBook = WriteNumberInTheBook, .digits = kDigitTiles},
  };
  // clang-format on
  return kLetterSets;
}

bool HasSecondForm(const LetterSet& set, int tile) {
  return std::ranges::find(set.secondForms, tile) != set.secondForms.end();
}

bool HasBookForm(const LetterSet& set, int tile, const TileForm& form) {
  const bool alternative = form.alternative && HasSecondForm(set, tile);
  return std::ranges::any_of(set.bookForms, [&](const BookForm& book) {
    return book.tile == tile && book.alternative == alternative;
  });
}

const LetterSet* FindLetterSet(std::string_view name) {
  const auto found = std::ranges::find(LetterSets(), name, &LetterSet::name);
  return found == LetterSets().end() ? nullptr : &*found;
}

WriteLetter ProgramOf(const LetterSet& set, int tile, const TileForm& form) {
  const bool typed = form.place != 0 && set.digits != 0;
  if (IsFromBook(set, tile, form)) return typed ? WriteTypedDigitInTheBook : set.writeBook;
  return typed ? WriteTypedDigit : set.write;
}

bool IsFollowedByFootStroke(const LetterSet& set, int tile, const TileForm& form) {
  return set.footTilesFrom != 0 && tile >= set.footTilesFrom && !IsFromBook(set, tile, form);
}

void WriteWholeTile(const LetterSet& set, int tile, const TileForm& form, DrawingSurface& sheet) {
  if (tile < 1 || tile > set.tiles) return;
  ClearLastPoint();
  StrokeRec rec = FillStrokeRec(set.sheet, static_cast<std::int16_t>(tile));
  rec.AltFlag = form.alternative ? 1 : 0;
  rec.LoopNo = static_cast<std::int16_t>(form.place);
  ProgramOf(set, tile, form)(rec, sheet);
  if (IsFollowedByFootStroke(set, tile, form)) WriteHindiFootStroke(rec, sheet);
}

}  // namespace bramlee
