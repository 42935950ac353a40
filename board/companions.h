// What stands beside the boards without being part of them: each companion adds to a board's strip
// or opens from it.
#pragma once

namespace bramlee {

class Board;

/// Adds a companion's part to a board that was just made.
using Companion = void (*)(Board& board);

/// From now on every board is made with that companion. They stand on the strip in the order of
/// these calls; a board without any has no strip.
void AddCompanion(Companion companion);

/// Calls every companion for the board.
void MakeCompanions(Board& board);

}  // namespace bramlee
