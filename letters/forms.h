// A tile's two forms: the table of a set names the routine of each, and which tiles have a second
// form at all is worked out from there.
#pragma once

#include <array>
#include <cstddef>

#include "letters/pen.h"

namespace bramlee {

/// The routines of one tile.
struct Forms {
  Letter usual = nullptr;
  Letter alternative = nullptr;  ///< null: the tile has one form, whatever is wanted
};

/// The routine for the form that the record asks for.
inline Letter Wanted(const Forms& forms, const StrokeRec& r) {
  return r.AltFlag != 0 && forms.alternative != nullptr ? forms.alternative : forms.usual;
}

/// The tiles 1 to `kTiles` for which `kHasTwo` is true, in their order.
template <int kTiles, bool (*kHasTwo)(int tile)>
constexpr auto TilesOfTwoForms() {
  constexpr std::size_t kCount = [] {
    std::size_t count = 0;
    for (int tile = 1; tile <= kTiles; ++tile) {
      if (kHasTwo(tile)) ++count;
    }
    return count;
  }();
  std::array<int, kCount> tiles{};
  std::size_t next = 0;
  for (int tile = 1; tile <= kTiles; ++tile) {
    if (kHasTwo(tile)) tiles[next++] = tile;
  }
  return tiles;
}

}  // namespace bramlee
