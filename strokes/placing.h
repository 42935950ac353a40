// Where a letter's own sheet lies on another one.
#pragma once

#include "engine/run.h"

namespace bramlee {

/// Where a letter's sheet lies on the page: each coordinate times `scale`, then moved.
struct Placing {
  double scale = 1;
  double right = 0;  ///< sheet pixels
  double down = 0;   ///< sheet pixels

  /// A letter left where it was laid out keeps its dots to the last bit.
  bool IsNone() const { return *this == Placing{}; }
  bool operator==(const Placing&) const = default;
};

/// The run with its arguments so placed. The dots stay one step apart, so a smaller letter has
/// fewer. `placing.scale` is greater than 0 and at most 1: a slant's reach does not grow with it.
Run PlacedRun(const Run& run, const Placing& placing);

}  // namespace bramlee
