// Reports of trapped errors: a notice that goes by itself and a record in the report's file,
// which no screen shows.
#pragma once

#include "files/trap.h"

namespace bramlee {

/// Shows the notice `ReportNotice` with the error's text, which may be empty, and appends the text
/// to the report's file. A second report while the notice stands uses the same notice and does not
/// make it stay longer. A report that fails ends in a message box; it is not reported itself.
void ReportError(ErrInfo& err);

/// Appends the error's text to the report's file, whole or not at all. A failure is told in a
/// message box: "ErrorReportNotResponding".
void AppendErrorReport(ErrInfo& err);

}  // namespace bramlee
