// The letter sets as data: what tells one set's letters from another's.
#pragma once

#include <span>
#include <string_view>

#include "engine/drawing_surface.h"
#include "engine/stroke_rec.h"

namespace bramlee {

/// Lays a letter's anchors over the record and writes its strokes. The record is fresh from
/// FillStrokeRec, with LetterNo the tile and AltFlag the wanted form; what a set reads besides
/// is told with its routine. A tile outside the set writes nothing.
using WriteLetter = void (*)(StrokeRec& rec, DrawingSurface& sheet);

/// One letter set.
struct LetterSet {
  std::string_view name;  ///< as the sound folders and the tools name it: "engc"
  SheetKind sheet;        ///< how its sheet is divided
  int tiles;              ///< tiles are 1 to this
  bool alternatives;      ///< whether some letters have a second form
  WriteLetter write;
};

/// All sets that there are.
std::span<const LetterSet> LetterSets();

/// The set of that name, or nullptr.
const LetterSet* FindLetterSet(std::string_view name);

// One routine a set, each in the source that bears the set's name.
void WriteCapital(StrokeRec& rec, DrawingSurface& sheet);
void WriteSmallLetter(StrokeRec& rec, DrawingSurface& sheet);
void WriteHindiVowel(StrokeRec& rec, DrawingSurface& sheet);
void WriteHindiConsonant(StrokeRec& rec, DrawingSurface& sheet);
void WriteTeluguVowel(StrokeRec& rec, DrawingSurface& sheet);
void WriteTeluguConsonant(StrokeRec& rec, DrawingSurface& sheet);
void WriteNumberTile(StrokeRec& rec, DrawingSurface& sheet);

}  // namespace bramlee
