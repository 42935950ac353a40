// What the sources of the Hindi consonants know of each other.
#pragma once

#include <span>

#include "letters/forms.h"

namespace bramlee {

/// A full stem is this long.
inline constexpr double kHindiStem = 150;

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

}  // namespace bramlee
