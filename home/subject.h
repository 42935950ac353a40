// What home offers to learn.
#pragma once

#include <cstddef>

#include "ink/colours.h"

namespace bramlee {

/// One subject: its caption, and the tile that opens its board.
struct HomeSubject {
  const char* caption;
  const char* board;    ///< the id of the form to open; nullptr: a caption alone, without a tile
  ColourWord colour;    ///< of the caption, and of the tile's frame
  const char* picture;  ///< on the tile: the resource's name
};

/// Home has room for that many, two in a row.
inline constexpr std::size_t kMostSubjects = 8;

}  // namespace bramlee
