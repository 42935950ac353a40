#include "tools/strokes/report.h"

#include "engine/last_point.h"
#include "strokes/letter.h"
#include "tools/strokes/number_text.h"
#include "tools/strokes/run_text.h"

namespace bramlee {

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
  add("strokes", RunsAsJson(letter));
  const double last[] = {LastX, LastY, LastX2, LastY2};
  add("last", NumbersAsJson(last));
  return line + "}\n";
}

}  // namespace bramlee
