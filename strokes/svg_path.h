// Lines and arcs as the text of an SVG path.
#pragma once

#include <string>

#include "strokes/run_track.h"

namespace bramlee {

/// A number rounded to a hundredth, as short as SVG takes it: "-.5". Infinity is a billion, and
/// what is no number 0.
std::string SvgNumber(double number);

/// The `d` of an SVG path. Coordinates are written as steps from place to place, each place rounded
/// to a hundredth by itself, so that roundings do not add up.
class SvgPath {
 public:
  /// Places are written from there on, in sheet pixels.
  explicit SvgPath(const Point& origin) : origin_(origin) {}

  void MoveTo(const Point& to);
  void LineTo(const Point& to);
  /// Goes along a run: a line to where it begins, unless the path stands there, and its line or
  /// arc. The first run of a path moves there. A dot is a line of a hundredth of a pixel, which a
  /// round pen shows.
  void Follow(const RunTrack& track);

  const std::string& Text() const { return text_; }

 private:
  struct Place {
    long x = 0;  ///< in hundredths
    long y = 0;
  };
  Place PlaceOf(const Point& point) const;
  void Add(char command, const Place& step);
  void ArcTo(const Point& to, double radius, bool clockwise);

  Point origin_;
  Place at_;
  std::string text_;
};

}  // namespace bramlee
