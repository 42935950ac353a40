// Ctrl-C and the wish to end, which tools follow between two steps of their work: no half file is
// left.
#pragma once

namespace bramlee {

/// From here on SIGINT and SIGTERM end nothing by themselves.
void CatchStop();

/// Whether one of them has come.
bool IsStopAsked();

}  // namespace bramlee
