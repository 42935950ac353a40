#include "tools/strokes/pen_strokes_report.h"

#include <span>

#include "tools/strokes/number_text.h"
#include "tools/strokes/word_report.h"

namespace bramlee {
namespace {

template <class Thing, class Text>
std::string List(std::span<const Thing> things, Text text) {
  std::string list;
  for (const Thing& thing : things) {
    if (!list.empty()) list += ", ";
    list += text(thing);
  }
  return '[' + list + ']';
}

std::string PointAsJson(const Point& point) {
  return '[' + ToThousandth(point.x) + ", " + ToThousandth(point.y) + ']';
}

std::string PathAsJson(const StrokePath& path) {
  return "{\"points\": " + List<Point>(path.points, PointAsJson) +
         ", \"length\": " + ToThousandth(path.length) +
         ", \"closed\": " + (path.closed ? "true" : "false") + '}';
}

std::string BoxAndStrokes(const Letter& letter) {
  const Box& box = letter.Bounds();
  const double sides[] = {box.x, box.y, box.width, box.height};
  return ", \"box\": " + List<double>(sides, ToThousandth) +
         ", \"strokes\": " + List<StrokePath>(letter.Shape().strokes, PathAsJson) + "}\n";
}

}  // namespace

std::string PenStrokesAsJson(const Letter& letter) {
  return "{\"set\": \"" + std::string(letter.Id().set) +
         "\", \"tile\": " + std::to_string(letter.Id().tile) + BoxAndStrokes(letter);
}

std::string PenStrokesAsJson(const Word& word, std::string_view text) {
  return "{\"word\": " + QuotedForJson(text) + BoxAndStrokes(word.letter);
}

}  // namespace bramlee
