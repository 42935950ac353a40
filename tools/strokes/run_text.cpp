#include "tools/strokes/run_text.h"

#include "tools/strokes/number_text.h"

namespace bramlee {

std::string NumbersAsJson(std::span<const double> numbers) {
  std::string list;
  for (const double number : numbers) {
    if (!list.empty()) list += ',';
    list += ShortestText(number);
  }
  return '[' + list + ']';
}

std::string RunsAsJson(const Letter& letter) {
  std::string runs;
  for (const Run& run : letter.Runs()) {
    if (!runs.empty()) runs += ',';
    runs += std::string("{\"run\":\"") + PrimitiveName(run.primitive) +
            "\",\"args\":" + NumbersAsJson(run.Arguments()) +
            ",\"dots\":" + std::to_string(DotCount(run, letter.Step())) + '}';
  }
  return '[' + runs + ']';
}

}  // namespace bramlee
