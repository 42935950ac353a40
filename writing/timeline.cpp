#include "writing/timeline.h"

namespace bramlee {

Timeline TimelineOf(const Letter& letter, double rate) {
  Timeline line{.runs = {}, .strokes = {}, .seconds = 0, .dotsPerSecond = kDotsPerSecond * rate};
  for (const PenStroke& stroke : letter.PenStrokes()) {
    line.strokes.push_back({.begin = line.seconds, .seconds = 0});
    for (const Run& run : letter.Runs().subspan(stroke.firstRun, stroke.runs)) {
      const auto dots = static_cast<double>(DotCount(run, letter.Step()));
      line.runs.push_back({.begin = line.seconds, .seconds = dots / line.dotsPerSecond});
      line.seconds += line.runs.back().seconds;
    }
    line.strokes.back().seconds = line.seconds - line.strokes.back().begin;
  }
  return line;
}

}  // namespace bramlee
