#include "tools/strokes/report.h"

#include "engine/last_point.h"
#include "strokes/letter.h"
#include "tools/strokes/number_text.h"

namespace bramlee {
namespace {

std::string List(std::span<const double> numbers) {
  std::string list;
  for (const double number : numbers) {
    if (!list.empty()) list += ',';
    list += ShortestText(number);
  }
  return '[' + list + ']';
}

std::string Runs(const Letter& letter) {
  std::string runs;
  for (const Run& run : letter.Runs()) {
    if (!runs.empty()) runs += ',';
    runs += std::string("{\"run\":\"") + PrimitiveName(run.primitive) +
            "\",\"args\":" + List(run.Arguments()) +
            ",\"dots\":" + std::to_string(DotCount(run, letter.Step())) + '}';
  }
  return '[' + runs + ']';
}

}  // namespace

std::string StrokesAsJson(const Request& request, int tile) {
  const Letter letter = RecordTile(request.Tile(tile), request.step);

  std::string line = "{\"board\":\"" + std::string(request.set->name) + '"';
  const auto add = [&line](const char* name, const std::string& value) {
    line += std::string(",\"") + name + "\":" + value;
  };
  add("tile", std::to_string(tile));
  add("alt", request.form.alternative ? "1" : "0");
  if (request.form.book) add("book", HasBookForm(*request.set, tile, request.form) ? "1" : "0");
  if (request.form.place != 0) add("place", std::to_string(request.form.place));
  add("step", ShortestText(request.step));
  add("strokes", Runs(letter));
  const double last[] = {LastX, LastY, LastX2, LastY2};
  add("last", List(last));
  return line + "}\n";
}

}  // namespace bramlee
