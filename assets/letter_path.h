// A letter as a path, taken down from its own strokes.
#pragma once

#include <QPainterPath>
#include <string_view>

namespace bramlee {

/// The strokes of a tile as lines between its dots, in sheet pixels. A tile that writes nothing
/// gives an empty path. `book`: as the tile stands in the book.
QPainterPath LetterPath(std::string_view letterSet, int tile, bool book = false);

}  // namespace bramlee
