// What letters are drawn on: the sheet of a board, a picture, a recorder.
#pragma once

#include <cstdint>
#include <span>

namespace bramlee {

/// The eight runs a letter is made of.
enum class Primitive : std::uint8_t {
  ArcStroke,
  LineRight,
  LineLeft,
  LineDown,
  LineUp,
  SlantLeft,
  SlantRight,
  SlantUpRight,
};

/// The primitive's own name, as "ArcStroke".
const char* PrimitiveName(Primitive primitive);

/// A surface that takes dots. The engine knows geometry only: colour, width and pace of the
/// pen are the surface's own business.
class DrawingSurface {
 public:
  virtual ~DrawingSurface() = default;

  /// Plots one dot at `x`, `y` (sheet pixels, Y downward) in the current pen colour.
  virtual void PSet(float x, float y) = 0;

  /// The distance between two dots of a line or slant (sheet pixels) and the angle between two
  /// dots of an arc (degrees). Read once on entry of each primitive; greater than 0.
  virtual double Step() const = 0;

  /// Whether the surface wants the dots. One that does not gets BeginRun and EndRun alone; where
  /// the runs end and what they leave in the last-point registers is the same.
  virtual bool WantsDots() const { return true; }

  /// Sets the colour of the dots to come; the surface defines what the figure means. Primitives
  /// leave the colour alone: the caller sets it.
  virtual void SetPen(std::uint32_t /*colour*/) {}

  /// Called when a primitive begins, with its arguments in its own order (see primitives.h).
  virtual void BeginRun(Primitive /*primitive*/, std::span<const double> /*arguments*/) {}

  /// Called when the primitive begun last has plotted its last dot.
  virtual void EndRun() {}
};

}  // namespace bramlee
