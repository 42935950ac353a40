#include "assets/letter_path.h"

#include "strokes/letter.h"
#include "strokes/run_lines.h"

namespace bramlee {
namespace {

/// How far apart the points of a path lie, in sheet pixels or degrees: near enough for a curve.
constexpr LineRule kPathLines{.step = 1};

}  // namespace

QPainterPath LetterPath(std::string_view letterSet, int tile, bool book) {
  const Letter letter =
      RecordTile({.set = letterSet, .tile = tile, .form = {.book = book}}, kPathLines.step);
  QPainterPath path;
  for (const Run& run : letter.Runs()) {
    for (const Lines& piece : LinesOf(run, kPathLines)) {
      path.moveTo(piece.front().x, piece.front().y);
      for (const Point& point : piece) path.lineTo(point.x, point.y);
    }
  }
  return path;
}

}  // namespace bramlee
