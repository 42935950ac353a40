// The file of trapped errors, which no screen shows.
#pragma once

#include "files/trap.h"

namespace bramlee {

/// Appends the error's text to the report's file, whole or not at all. Shows the message
/// "ErrorReportNotResponding" when that fails.
void AppendErrorReport(ErrInfo& err);

}  // namespace bramlee
