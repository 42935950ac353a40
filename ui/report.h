// Reports of trapped errors: a notice that closes by itself, and a record in the report's file.
#pragma once

#include "files/trap.h"

namespace bramlee {

/// Shows the notice `ReportNotice` with the error's text, which may be empty, and appends the text
/// to the report's file. A second report while the notice is shown uses the same notice and does
/// not prolong it. A report that fails shows a message box and is not reported itself.
void ReportError(ErrInfo& err);

}  // namespace bramlee
