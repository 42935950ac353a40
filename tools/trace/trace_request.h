// What bramlee-trace was asked for.
#pragma once

#include <QString>
#include <QStringList>

#include "strokes/pen_strokes.h"
#include "tools/letters/tool.h"
#include "writing/tracer.h"

namespace bramlee {

inline constexpr Tool kTool("bramlee-trace");

/// What the arguments come to: a text to print (help, version), an error of one line, or, when
/// both are empty, a letter to trace.
struct TraceRequest {
  LetterId letter;
  TraceLevel level = TraceLevel::Normal;
  double leastRadius = 0;  ///< as Tracer::SetLeastRadius has it
  QString text;
  QString error;
};

/// Reads a command line; its first element is the program's name.
TraceRequest ReadTraceRequest(const QStringList& arguments);

}  // namespace bramlee
