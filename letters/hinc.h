// What the sources of the Hindi consonants know of each other.
#pragma once

#include <span>

#include "letters/forms.h"

namespace bramlee {

/// Where a stem or a bar begins across the sheet and how long it is; a length of 0 is none.
struct HindiExtent {
  double x;
  double length;
};

/// A letter's column on the sheet, and how far in it its foot stroke begins right of the column's
/// middle, in widths of a cell.
struct HindiFoot {
  int column;
  double across;
};

/// A letter that is put together: its body, then for some a stem and a bar.
struct HindiParts {
  LetterRoutine body;
  HindiExtent stem, bar;
};

/// The routines of a letter's body, and where its parts stand. The letters of set 3 have the usual
/// body of set 1.
struct HindiConsonant {
  Forms whole;  ///< of set 1
  Forms half;   ///< of set 2
  double x;     ///< X1 of the body
  HindiExtent stem, bar;
  HindiExtent halfStem, halfBar;  ///< of set 2
  HindiFoot foot;                 ///< of set 3
};

/// Letters 1 to this are in hinc_ka_to_dha.cpp, the rest in hinc_na_to_jnya.cpp.
inline constexpr int kHindiKaToDha = 19;
std::span<const HindiConsonant> HindiKaToDha();
std::span<const HindiConsonant> HindiNaToJnya();

/// The letter of that tile.
const HindiConsonant& HindiConsonantOf(int tile);

/// The parts of a tile as they are given, in the form that the record asks for.
HindiParts GivenPartsOf(int tile, const StrokeRec& r);

/// Writes the parts: a body with its X1 at `x`, its stem, its bar.
void WriteHindiParts(double x, const HindiParts& parts, StrokeRec& r, Pen& pen);

/// Writes the foot stroke that the tile's letter has in set 3.
void WriteFootStrokeOf(int tile, StrokeRec& r, Pen& pen);

/// Whether the letter, 1 to 37, has no stem to lose: in the book its half form is the whole letter
/// with the mark below.
bool HasMarkForHalf(int letter);

}  // namespace bramlee
