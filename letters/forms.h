// A tile's two forms: the table of a set names the routine of each, and which tiles have a second
// form at all is worked out from there.
#pragma once

#include <vector>

#include "letters/pen.h"

namespace bramlee {

/// The routines of one tile.
struct Forms {
  LetterRoutine usual = nullptr;
  LetterRoutine alternative = nullptr;  ///< null: the tile has one form, whatever is wanted
};

/// The routine for the form that the record asks for.
inline LetterRoutine Wanted(const Forms& forms, const StrokeRec& r) {
  return r.AltFlag != 0 && forms.alternative != nullptr ? forms.alternative : forms.usual;
}

/// Those of the tiles 1 to `tiles` that have an alternative form, in their order.
template <class FormsOf>
std::vector<int> TilesOfTwoForms(int tiles, FormsOf formsOf) {
  std::vector<int> ofTwo;
  for (int tile = 1; tile <= tiles; ++tile) {
    if (formsOf(tile).alternative != nullptr) ofTwo.push_back(tile);
  }
  return ofTwo;
}

}  // namespace bramlee
