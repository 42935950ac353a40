// Where words stand on a board's sheet.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "strokes/rules.h"
#include "strokes/word.h"
#include "writing/page.h"

namespace bramlee {

/// The room for words on a sheet, in sheet pixels.
struct WordRoom {
  SheetExtent around;  ///< where the board's letters stand
  double head = 0;     ///< where capitals end and head lines run
  double base = 0;     ///< where letters stand
};

/// A text on a sheet.
struct SetText {
  /// All lines together as one letter of the page, so that a hand goes back, on and over all of
  /// them; nothing where no character has strokes.
  std::optional<PlacedLetter> letter;
  std::size_t lines = 0;
  std::vector<LeftOut> leftOut;
};

/// Sets a text as large as it fits: on one line it stands between head and base, smaller where it
/// is longer than the room, with its feet on the base; a text that would be larger on several lines
/// fills the room from line to line.
SetText SetWords(std::string_view text, const WordOptions& options, const WordRoom& room,
                 std::uint32_t colour);

}  // namespace bramlee
