// A run as data, and its dots one by one.
#pragma once

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>

#include "engine/drawing_surface.h"

namespace bramlee {

/// Pi as the letters were laid out with; a more exact one would end arcs elsewhere.
inline constexpr double kPi = 3.14159;

/// How far a SlantRight or SlantUpRight goes along its slope at most, in sheet pixels.
inline constexpr double kSlantReach = 300;

/// How far from a slant's start Y its dots still move the last-point registers, in sheet pixels.
inline constexpr double kRegisterReach = 100;

/// A primitive with its arguments: all that decides its dots, but for the step.
struct Run {
  static constexpr std::size_t kMostArguments = 6;

  Primitive primitive{};
  std::array<double, kMostArguments> values{};  ///< in the primitive's own order, then zeros

  /// The arguments that the primitive has.
  std::span<const double> Arguments() const;

  bool operator==(const Run&) const = default;
};

/// A run with these arguments; those beyond the primitive's own count are left out.
Run MakeRun(Primitive primitive, std::span<const double> arguments);

/// The dots of a run one by one. It can stop between any two and go on later: each dot's place
/// comes from a sum to which the step is added after each turn, and that sum is kept. A plain
/// value: a copy stands at the same dot.
class RunCursor {
 public:
  static constexpr std::int64_t kAll = std::numeric_limits<std::int64_t>::max();

  /// At the end of a run without dots.
  RunCursor() = default;
  /// Before the run's first dot. `step` as DrawingSurface::Step().
  RunCursor(const Run& run, double step);

  /// Whether no dot is left.
  bool AtEnd() const { return over_ || !Within(counter_); }

  /// Calls `take(double x, double y)` for the next dots, at most `most`; returns how many. A dot
  /// for which `take` throws is still the next one.
  template <class Take>
  std::int64_t Advance(std::int64_t most, Take take);

  /// Plots the next dots, at most `most`; returns how many.
  std::int64_t Plot(DrawingSurface& sheet, std::int64_t most = kAll);

  /// Skips the next dots, at most `most`, and computes of them only what decides the end and the
  /// registers; returns how many.
  std::int64_t Skip(std::int64_t most = kAll);

  /// Sets the last-point registers as the run would if it ended here.
  void LeaveLastPoint() const;

 private:
  enum class Way : std::uint8_t { Arc, AlongX, AlongY, Slant };
  struct Place {
    double x = 0;
    double y = 0;
  };

  static constexpr double kRadians = kPi / 180;

  void BeginLine(Way way, double from, double to, double across, double step);
  void BeginArc(const Run& run, double step);
  void BeginSlant(const Run& run, double step);

  bool Within(double counter) const { return step_ >= 0 ? counter <= to_ : counter >= to_; }
  Place OnArc(double angle) const {
    const double t = angle * kRadians;
    return {radius_ * std::cos(t) + x_, y_ - radius_ * std::sin(t)};
  }
  Place OnSlant(double i) const { return {x_ + i * acrossBy_, y_ + i * downBy_}; }
  /// Whether a dot at that Y still moves the registers.
  bool MovesLastPoint(double y) const {
    return upward_ ? y >= y_ - kRegisterReach : y <= y_ + kRegisterReach;
  }
  bool IsShortOfLimit(double y) const { return upward_ ? y > limitY_ : y < limitY_; }

  /// The counted loop of all runs: `turn` is called with the counter, tested before each turn, and
  /// the step is added after it. `turn` returns false after the run's last dot.
  template <class Turn>
  std::int64_t Count(std::int64_t most, Turn turn);

  Primitive primitive_{};
  Way way_ = Way::AlongX;
  bool upward_ = false;  ///< whether a slant goes up
  bool over_ = false;    ///< whether a slant has crossed its limit
  bool moved_ = false;   ///< whether last_ goes to the registers
  double counter_ = 1;
  double to_ = 0;
  double step_ = 1;
  double x_ = 0;  ///< centre of an arc, start of a slant
  double y_ = 0;  ///< the same; a level line's Y or an upright one's X
  double radius_ = 0;
  double acrossBy_ = 0;  ///< how far right a slant goes in a pixel
  double downBy_ = 0;    ///< how far down
  double limitY_ = 0;
  Place last_;  ///< what the registers become
};

/// How many dots the run plots.
inline std::int64_t DotCount(const Run& run, double step) {
  return RunCursor(run, step).Skip();
}

template <class Turn>
std::int64_t RunCursor::Count(std::int64_t most, Turn turn) {
  // The sum runs in a variable of its own, which goes back also when a turn throws.
  struct Sum {
    ~Sum() { kept = counter; }
    double counter;
    double& kept;
  } sum{counter_, counter_};
  const double to = to_;
  const double step = step_;
  std::int64_t dots = 0;
  if (over_) return dots;
  if (step >= 0) {
    for (; dots < most && sum.counter <= to; ++dots, sum.counter += step) {
      if (!turn(sum.counter)) return over_ = true, dots + 1;
    }
  } else {
    for (; dots < most && sum.counter >= to; ++dots, sum.counter += step) {
      if (!turn(sum.counter)) return over_ = true, dots + 1;
    }
  }
  return dots;
}

template <class Take>
std::int64_t RunCursor::Advance(std::int64_t most, Take take) {
  switch (way_) {
    case Way::Arc:
      return Count(most, [&](double angle) {
        const Place dot = OnArc(angle);
        take(dot.x, dot.y);
        last_ = dot;
        return true;
      });
    case Way::AlongX:
      return Count(most, [&](double x) { return take(x, y_), true; });
    case Way::AlongY:
      return Count(most, [&](double y) { return take(y_, y), true; });
    case Way::Slant:
      break;
  }
  return Count(most, [&](double i) {
    const Place dot = OnSlant(i);
    take(dot.x, dot.y);
    if (MovesLastPoint(dot.y)) last_ = dot, moved_ = true;
    return IsShortOfLimit(dot.y);
  });
}

}  // namespace bramlee
