// The exact picture of a stroke, for tests: the union of its dots' discs, finely sampled.
#pragma once

#include <QImage>
#include <QRectF>
#include <vector>

#include "ink/colours.h"
#include "tests/recorder.h"

namespace bramlee {

// Pens.
inline constexpr ColourWord kBlack = 0;
inline constexpr ColourWord kRed = 0x0000FF;
inline constexpr ColourWord kBlue = 0xFF0000;
inline constexpr ColourWord kYellow = 0x00FFFF;

/// How much of each device pixel the discs of some dots cover together, in samples of 64 by 64.
class Discs {
 public:
  static constexpr int kFull = 64 * 64;

  /// `area` in sheet pixels, whole numbers of device pixels at `ratio`.
  Discs(const QRectF& area, double ratio);

  /// The discs of these dots as well.
  void Add(const std::vector<Dot>& dots);

  /// Samples covered of the pixel at `x`, `y`.
  int Covered(int x, int y) const;

 private:
  struct Stretch {
    int from;
    int to;  ///< the first sample beyond
  };

  QRectF area_;
  double scale_;  ///< samples to a sheet pixel
  std::vector<std::vector<Stretch>> rows_;
};

/// How far a picture is from the exact one, in levels of 255.
struct Distance {
  int worst = 0;
  double mean = 0;  ///< over the pixels that a rim runs through
};

/// Of black dots on white.
Distance Compare(const QImage& picture, const Discs& exact);

}  // namespace bramlee
