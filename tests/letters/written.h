// What a tile writes, for tests that compare letters.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string_view>
#include <vector>

#include "engine/last_point.h"
#include "letters/letter_sets.h"
#include "tests/recorder.h"

namespace bramlee {

/// The tile written alone, from cleared registers.
inline Recorder Written(std::string_view set, int tile, const TileForm& form = {},
                        double step = 1) {
  Recorder sheet(step);
  WriteWholeTile(*FindLetterSet(set), tile, form, sheet);
  return sheet;
}

inline constexpr TileForm kAlternative{.alternative = true};
inline constexpr TileForm kBook{.book = true};
inline constexpr TileForm kBookAlternative{.alternative = true, .book = true};

using Runs = std::vector<RecordedRun>;

inline Runs FirstOf(const Runs& runs, std::ptrdiff_t count) {
  return {runs.begin(), runs.begin() + count};
}

/// The run, moved to the right by `by` sheet pixels.
inline RecordedRun Moved(RecordedRun run, double by) {
  const auto move = [&](std::initializer_list<std::size_t> places) {
    for (const std::size_t place : places) run.arguments[place] += by;
  };
  switch (run.primitive) {
    case Primitive::ArcStroke:
      move({3});
      break;
    case Primitive::LineRight:
    case Primitive::LineLeft:
      move({0, 2});
      break;
    case Primitive::LineDown:
    case Primitive::LineUp:
      move({0});
      break;
    case Primitive::SlantLeft:
    case Primitive::SlantRight:
    case Primitive::SlantUpRight:
      move({1});
      break;
  }
  return run;
}

inline Runs Moved(Runs runs, double by) {
  for (RecordedRun& run : runs) run = Moved(run, by);
  return runs;
}

}  // namespace bramlee
