// When the pen writes what of a letter.
#pragma once

#include <cstdint>
#include <vector>

#include "strokes/letter.h"

namespace bramlee {

/// How many dots the pen sets in a second, whatever the machine. At the step of the start, 0.01,
/// that is 1000 sheet pixels of line: a capital takes half a second to a second.
inline constexpr double kDotsPerSecond = 100'000;

/// The steps of the six speeds, as quotients of whole numbers: the pace is the same, but dots
/// further apart make a faster pen.
inline constexpr double kSpeedSteps[] = {1.0 / 1000, 2.0 / 500, 3.0 / 100,
                                         4.0 / 50,   5.0 / 25,  6.0 - 5};

/// A part of a letter's time, in seconds from the pen's first dot.
struct TimeSpan {
  double begin = 0;
  double seconds = 0;
  double End() const { return begin + seconds; }
};

/// When each part of a letter is written, as on a board: dot after dot, without a rest in between,
/// so at an arc's end the pen has gone faster or slower than on a line.
struct Timeline {
  std::vector<TimeSpan> runs;     ///< one a run of the letter
  std::vector<TimeSpan> strokes;  ///< one a pen stroke
  double seconds = 0;             ///< until the last dot stands
  double dotsPerSecond = 0;       ///< how fast the pen goes

  /// How many dots stand so long after the first one was due.
  std::int64_t DotsBy(double second) const {
    return second <= 0 ? 0 : static_cast<std::int64_t>(second * dotsPerSecond);
  }
};

/// The timeline of a letter whose pen goes `rate` times as fast as usual; greater than 0.
Timeline TimelineOf(const Letter& letter, double rate = 1);

}  // namespace bramlee
