// Telugu letters by their tiles: what the sources of a Telugu set know of each other.
#pragma once

#include <initializer_list>
#include <span>

#include "letters/pen.h"

namespace bramlee {

/// A tile and the routine that writes its letter.
struct TeluguTile {
  int tile;
  LetterRoutine write;
};

/// The vowels' signs, in telv_signs.cpp.
std::span<const TeluguTile> TeluguVowelSigns();

/// The consonants from ta on, in telc_ta_to_rra.cpp.
std::span<const TeluguTile> TeluguConsonantsFromTa();

/// The forms that a consonant takes below another one, in telc_below.cpp, and those from ta on, in
/// telc_below_ta_to_rra.cpp.
std::span<const TeluguTile> TeluguConsonantsBelow();
std::span<const TeluguTile> TeluguConsonantsBelowFromTa();

/// Writes the letter of the record's tile, from the table that has it. A number that none has
/// writes nothing.
void WriteTelugu(std::initializer_list<std::span<const TeluguTile>> tables, StrokeRec& rec,
                 DrawingSurface& sheet);

}  // namespace bramlee
