#include "letters/telugu_tiles.h"

#include <algorithm>

namespace bramlee {

void WriteTelugu(std::initializer_list<std::span<const TeluguTile>> tables, StrokeRec& rec,
                 DrawingSurface& sheet) {
  Pen pen{rec, sheet};
  for (const std::span<const TeluguTile> table : tables) {
    const auto letter = std::ranges::find(table, rec.LetterNo, &TeluguTile::tile);
    if (letter != table.end()) return letter->write(rec, pen);
  }
}

}  // namespace bramlee
