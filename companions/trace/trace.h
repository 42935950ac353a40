// The child writes itself: a pale letter to trace, judged while the pen moves.
#pragma once

namespace bramlee {

class Board;

/// Puts strip_trace and strip_level on the board's strip, and, while tracing is on, strip_hand,
/// strip_clicks and strip_given. Space then writes the stroke that is on for the child.
void AddTracing(Board& board);

}  // namespace bramlee
