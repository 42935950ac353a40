// What tests of the tracer share: two strokes, and a tracer along them.
#pragma once

#include <gtest/gtest.h>

#include <limits>
#include <ostream>

#include "tests/writing/pen_marks.h"
#include "writing/tracer.h"

namespace bramlee {

inline void PrintTo(TraceVerdict verdict, std::ostream* out) {
  *out << NameOf(verdict);
}
inline void PrintTo(TraceHelp help, std::ostream* out) {
  *out << NameOf(help);
}

inline constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
inline constexpr double kInfinite = std::numeric_limits<double>::infinity();

/// 100 units to the right.
inline const Way kBar = {
    {0,   0},
    {100, 0}
};
/// 100 units down, begun where no pen that writes the bar comes by.
inline const Way kStem = {
    {50, 60 },
    {50, 160}
};
/// Far from both.
inline const Way kFarAway = {
    {300, 300},
    {340, 300}
};

/// The bar with another end.
inline Way To(double x) {
  return {
      {0, 0},
      {x, 0}
  };
}

/// A loop: to the right, round, and on to the right through the crossing.
inline Way Loop(double radius) {
  Way way = Joined(
      {
          {0, 0}
  },
      Arc({60, -radius}, radius, 90, -270));
  way.push_back({120, 0});
  return way;
}

inline Tracer BarAndStem(TraceLevel level = TraceLevel::Normal) {
  return Tracer({StrokeThrough(kBar), StrokeThrough(kStem)}, level);
}

inline Tracer Of(const Way& way, TraceLevel level = TraceLevel::Normal) {
  return Tracer({StrokeThrough(way)}, level);
}

}  // namespace bramlee
