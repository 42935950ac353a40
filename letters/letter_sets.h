// The letter sets as data: what differs from set to set.
#pragma once

#include <span>
#include <string_view>

#include "engine/drawing_surface.h"
#include "engine/stroke_rec.h"
#include "letters/book_forms.h"

namespace bramlee {

/// Lays a letter's anchors over the record and writes its strokes. The record is fresh from
/// FillStrokeRec, with LetterNo the tile and AltFlag the wanted form; what a set reads besides
/// is said with its routine. A tile outside the set writes nothing.
using WriteLetter = void (*)(StrokeRec& rec, DrawingSurface& sheet);

/// One letter set.
struct LetterSet {
  std::string_view name;             ///< as the sound folders and the tools name it: "engc"
  SheetKind sheet;                   ///< how its sheet is divided
  int tiles;                         ///< tiles are 1 to this
  std::span<const int> secondForms;  ///< tiles that have an alternative form too
  WriteLetter write;
  std::span<const BookForm> bookForms;  ///< the forms that stand otherwise in the book
  WriteLetter writeBook;                ///< writes those alone, the foot stroke included
  int footTilesFrom = 0;  ///< tiles from here on get the foot stroke after `write`; 0 for none
  int digits = 0;         ///< tiles 1 to this can stand in a typed number
};

// The Hindi consonants come in three sets of tiles: whole letters, half forms, letters with the
// foot stroke.
inline constexpr int kHindiSetTiles = 37;  ///< tiles of one set: its letters
inline constexpr int kHindiSets = 3;
inline constexpr int kHindiHalfSet = 2;
inline constexpr int kHindiFootSet = 3;
inline constexpr int kHindiTiles = kHindiSets * kHindiSetTiles;

/// The set, 1 to 3, that the tile belongs to.
constexpr int HindiSetOf(int tile) {
  return (tile - 1) / kHindiSetTiles + 1;
}

/// The tile's letter, 1 to 37, the same in each set.
constexpr int HindiLetterOf(int tile) {
  return (tile - 1) % kHindiSetTiles + 1;
}

/// The tile of a set's first letter.
constexpr int FirstHindiTileOf(int set) {
  return (set - 1) * kHindiSetTiles + 1;
}

/// The first tiles of the number set are digits: 1 to 9, then 0.
inline constexpr int kDigitTiles = 10;

/// All sets that there are.
std::span<const LetterSet> LetterSets();

/// The set of that name, or nullptr.
const LetterSet* FindLetterSet(std::string_view name);

/// Whether the tile has an alternative form beside its usual one.
bool HasSecondForm(const LetterSet& set, int tile);

/// Which form of a tile is wanted.
struct TileForm {
  bool alternative = false;
  int place = 0;      ///< column of a digit in a typed number, 1 to 5; 0 is the tile's own
  bool book = false;  ///< as in the book, where the tile stands otherwise there
  bool operator==(const TileForm&) const = default;
};

/// Whether the tile stands otherwise in the book: its alternative form, if that is wanted and there
/// is one, or its usual form. `form.book` does not matter.
bool HasBookForm(const LetterSet& set, int tile, const TileForm& form = {});

/// The program that writes the tile in that form: of the book, of a typed digit, or the set's own.
WriteLetter ProgramOf(const LetterSet& set, int tile, const TileForm& form);

/// Whether WriteHindiFootStroke follows the tile's program. A book form has its own.
bool IsFollowedByFootStroke(const LetterSet& set, int tile, const TileForm& form);

// One routine a set, each in the source that is named after the set.
void WriteCapital(StrokeRec& rec, DrawingSurface& sheet);
void WriteSmallLetter(StrokeRec& rec, DrawingSurface& sheet);
void WriteHindiVowel(StrokeRec& rec, DrawingSurface& sheet);
void WriteHindiConsonant(StrokeRec& rec, DrawingSurface& sheet);
void WriteTeluguVowel(StrokeRec& rec, DrawingSurface& sheet);
void WriteTeluguConsonant(StrokeRec& rec, DrawingSurface& sheet);
void WriteNumberTile(StrokeRec& rec, DrawingSurface& sheet);

// Those of the book whose anchors stand with the set's own letters.
void WriteHindiVowelInTheBook(StrokeRec& rec, DrawingSurface& sheet);
void WriteNumberInTheBook(StrokeRec& rec, DrawingSurface& sheet);
/// As WriteTypedDigit.
void WriteTypedDigitInTheBook(StrokeRec& rec, DrawingSurface& sheet);

/// A digit at its place in a typed number: in the column of LoopNo, 1 to 5, instead of its tile's
/// own. For another place, or a tile that is no digit, it writes nothing.
void WriteTypedDigit(StrokeRec& rec, DrawingSurface& sheet);

/// The stroke at the foot of the Hindi consonants' third set, written after the letter with the
/// same record. A board writes it as long as it has that set in use, whatever the tile.
void WriteHindiFootStroke(StrokeRec& rec, DrawingSurface& sheet);

// The tiles that have an alternative form, of the sets that have any: those whose table names a
// second routine.
std::span<const int> HindiVowelsOfTwoForms();
std::span<const int> HindiConsonantsOfTwoForms();
std::span<const int> NumbersOfTwoForms();

/// Writes all that belongs to one tile from a fresh record and cleared last-point registers, as a
/// board just opened does on a click: for uses without a board. A tile outside the set writes
/// nothing.
void WriteWholeTile(const LetterSet& set, int tile, const TileForm& form, DrawingSurface& sheet);

}  // namespace bramlee
